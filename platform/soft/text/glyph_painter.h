// Puts glyph coverage and solid spans onto a pixmap, clipped to a rectangle. At 24 and 32 bits per
// pixel coverage is blended in the text colour onto what is there; on colour-table surfaces (such
// as 1-bit masks) a pixel either takes the text colour's device value or is left alone. Colours
// map to device pixels as pens and backgrounds do elsewhere in the engine.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/soft/pixmap.h"
#include "platform/soft/text/realized_font.h"

namespace glyphon::win::soft {

class GlyphPainter {
 public:
  // clip is intersected with the pixmap's bounds.
  GlyphPainter(Pixmap& target, const RECT& clip, COLORREF textColor, COLORREF backgroundColor);

  // Fills [left, right) x [top, bottom) with the background colour.
  void FillBackground(int left, int top, int right, int bottom);
  // Fills [left, right) x [top, bottom) with the text colour under a ROP2 mix.
  void FillText(int left, int top, int right, int bottom, int rop2 = R2_COPYPEN);
  // Draws a glyph whose pen position is x and whose baseline is just above row baselineY.
  void Draw(const Glyph& glyph, int x, int baselineY);

 private:
  void Fill(RECT area, PixelValue pixel, int rop2);
  void DrawOn32(const std::uint8_t* coverage, std::ptrdiff_t stride, int left, int top, int right,
                int bottom);

  Pixmap& target_;
  RECT clip_;
  COLORREF textColor_;
  PixelValue textPixel_;
  PixelValue backgroundPixel_;
};

}  // namespace glyphon::win::soft
