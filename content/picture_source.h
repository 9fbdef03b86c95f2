// A picture as a device context to copy from, for the PaintEffects operations.
#pragma once

#include <optional>

#include "content/scratch_surface.h"
#include "platform/ole/std_picture.h"

namespace glyphon {

// Throws AutomationError 481 "Invalid picture" (source: the operation) unless the picture is a
// bitmap or an icon.
void RequireDrawablePicture(const StdPicture& picture, const char* operation);

// A bitmap picture selected into a context of its own with the palette realised, or an icon
// drawn at width x height over a background colour into a bitmap of that area alone. Read from
// (X(), Y()) to get the area at (xSrc, ySrc) of the picture.
class PictureSource {
 public:
  PictureSource(win::HDC screen, const StdPicture& picture, int xSrc, int ySrc, int width,
                int height, win::COLORREF iconBackground, win::HPALETTE palette);
  ~PictureSource();
  PictureSource(const PictureSource&) = delete;
  PictureSource& operator=(const PictureSource&) = delete;

  win::HDC Dc() const { return icon_ ? icon_->Dc() : dc_; }
  int X() const { return x_; }
  int Y() const { return y_; }

 private:
  std::optional<ScratchSurface> icon_;
  int x_ = 0;
  int y_ = 0;
  win::HDC dc_ = nullptr;
  win::HGDIOBJ previousBitmap_ = nullptr;
  win::HPALETTE previousPalette_ = nullptr;
};

}  // namespace glyphon
