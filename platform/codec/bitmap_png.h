// Reading what a bitmap or a DC shows into an Image through the platform API, so that it works
// on every engine, and writing that as a PNG file.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "platform/codec/png_codec.h"
#include "platform/win32.h"

namespace glyphon {

// All pixels of a bitmap, opaque; nothing for a handle that is not a bitmap.
std::optional<Image> CaptureBitmap(win::HBITMAP bitmap);

// An area of what a DC shows: part of the selected bitmap of a memory DC (nothing when the area
// leaves it), or of the window or screen behind any other DC (copied with BitBlt, so parts
// outside come out black).
std::optional<Image> CaptureDc(win::HDC hdc, const win::RECT& area);

// The whole bitmap selected into a memory DC.
std::optional<Image> CaptureDc(win::HDC hdc);

bool WriteBitmapPng(win::HBITMAP bitmap, const std::filesystem::path& path,
                    std::string* error = nullptr);
bool WriteDcPng(win::HDC hdc, const std::filesystem::path& path, std::string* error = nullptr);

}  // namespace glyphon
