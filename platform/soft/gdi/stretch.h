// Stretching and shrinking a block of pixel values the way GDI's StretchBlt does: each axis walks
// source and destination together like a Bresenham line, and where several source pixels meet in
// one destination pixel the stretch mode decides (BLACKONWHITE ANDs them, WHITEONBLACK ORs them,
// COLORONCOLOR keeps the last; HALFTONE interpolates colours instead).
#pragma once

#include <vector>

#include "platform/soft/gdi/blit_geometry.h"
#include "platform/soft/pixmap.h"

namespace glyphon::win::soft {

// Pixel values for a rectangle of a surface, row by row.
struct PixelBlock {
  RECT area{};
  std::vector<PixelValue> values;

  int Width() const { return area.right - area.left; }
  int Height() const { return area.bottom - area.top; }
  PixelValue* Row(int y) {
    return values.data() + static_cast<std::size_t>(y - area.top) * Width();
  }
  const PixelValue* Row(int y) const {
    return values.data() + static_cast<std::size_t>(y - area.top) * Width();
  }
};

// A block of zeros covering area.
PixelBlock NewBlock(const RECT& area);

// Stretches source (the values of src.visible, already in the destination's format) over the
// destination. dst.visible shrinks to the pixels the stretch reaches; the block covers it.
// `format` is the destination surface, needed to read and make colours for HALFTONE. False when
// the two sides do not meet.
bool StretchBlock(const PixelBlock& source, const BlitSide& src, BlitSide& dst, int mode,
                  const Pixmap& format, PixelBlock& out);

}  // namespace glyphon::win::soft
