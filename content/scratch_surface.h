// Off-screen bitmaps that live for one operation: a memory context with a bitmap of its own
// selected and, for colour bitmaps, a palette selected as a background palette and realised.
// Everything selected is put back and everything made is deleted when the object goes.
#pragma once

#include "platform/win32.h"

namespace glyphon {

// The screen's context for the length of a scope.
class ScreenDc {
 public:
  ScreenDc() : dc_(win::GetDC(nullptr)) {}
  ~ScreenDc() { win::ReleaseDC(nullptr, dc_); }
  ScreenDc(const ScreenDc&) = delete;
  ScreenDc& operator=(const ScreenDc&) = delete;
  win::HDC Get() const { return dc_; }

 private:
  win::HDC dc_;
};

class ScratchSurface {
 public:
  // A bitmap compatible with screen (its colour format).
  static ScratchSurface Color(win::HDC screen, int width, int height, win::HPALETTE palette);
  // One plane, one bit per pixel.
  static ScratchSurface Monochrome(win::HDC screen, int width, int height,
                                   win::HPALETTE palette = nullptr);
  // Takes over a bitmap made elsewhere (a DIB section, say).
  static ScratchSurface Adopt(win::HDC screen, win::HBITMAP bitmap);

  ~ScratchSurface();
  ScratchSurface(ScratchSurface&& other) noexcept;
  ScratchSurface(const ScratchSurface&) = delete;
  ScratchSurface& operator=(const ScratchSurface&) = delete;
  ScratchSurface& operator=(ScratchSurface&&) = delete;

  win::HDC Dc() const { return dc_; }

 private:
  ScratchSurface(win::HDC screen, win::HBITMAP bitmap, win::HPALETTE palette);

  win::HDC dc_ = nullptr;
  win::HBITMAP bitmap_ = nullptr;
  win::HGDIOBJ previousBitmap_ = nullptr;
  win::HPALETTE previousPalette_ = nullptr;
  bool paletteSelected_ = false;
};

}  // namespace glyphon
