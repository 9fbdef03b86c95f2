#include "content/scratch_surface.h"

#include <utility>

namespace glyphon {

ScratchSurface::ScratchSurface(win::HDC screen, win::HBITMAP bitmap, win::HPALETTE palette)
    : dc_(win::CreateCompatibleDC(screen)), bitmap_(bitmap) {
  previousBitmap_ = win::SelectObject(dc_, bitmap_);
  if (palette != nullptr) {
    previousPalette_ = win::SelectPalette(dc_, palette, win::TRUE);
    win::RealizePalette(dc_);
    paletteSelected_ = true;
  }
}

ScratchSurface ScratchSurface::Color(win::HDC screen, int width, int height,
                                     win::HPALETTE palette) {
  return {screen, win::CreateCompatibleBitmap(screen, width, height), palette};
}

ScratchSurface ScratchSurface::Monochrome(win::HDC screen, int width, int height,
                                          win::HPALETTE palette) {
  return {screen, win::CreateBitmap(width, height, 1, 1, nullptr), palette};
}

ScratchSurface ScratchSurface::Adopt(win::HDC screen, win::HBITMAP bitmap) {
  return {screen, bitmap, nullptr};
}

ScratchSurface::ScratchSurface(ScratchSurface&& other) noexcept
    : dc_(std::exchange(other.dc_, nullptr)),
      bitmap_(std::exchange(other.bitmap_, nullptr)),
      previousBitmap_(other.previousBitmap_),
      previousPalette_(other.previousPalette_),
      paletteSelected_(std::exchange(other.paletteSelected_, false)) {}

ScratchSurface::~ScratchSurface() {
  if (dc_ == nullptr) return;
  win::SelectObject(dc_, previousBitmap_);
  win::DeleteObject(bitmap_);
  if (paletteSelected_) {
    win::SelectPalette(dc_, previousPalette_, win::TRUE);
    win::RealizePalette(dc_);
  }
  win::DeleteDC(dc_);
}

}  // namespace glyphon
