// BMP files: a file header in front of a device-independent bitmap.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/codec/png_codec.h"

namespace glyphon {

// Top-down pixels of a BMP file; alpha as DecodeDibPixels leaves it. Throws DecodeError.
Image DecodeBmp(std::span<const std::uint8_t> data);

// A 24-bit bottom-up BMP of the image's colours (alpha is not stored).
std::vector<std::uint8_t> EncodeBmp(const Image& image);

}  // namespace glyphon
