// Puts glyph coverage and solid spans onto a pixmap, clipped to a rectangle. At 24 and 32 bits per
// pixel coverage is blended in the text colour onto what is there; on colour-table surfaces (such
// as 1-bit masks) a pixel is either set to the nearest table colour or left alone.
#pragma once

#include "platform/soft/pixmap.h"
#include "platform/soft/text/realized_font.h"

namespace glyphon::win::soft {

class GlyphPainter {
 public:
  // clip is intersected with the pixmap's bounds.
  GlyphPainter(Pixmap& target, const RECT& clip, COLORREF textColor);

  // Fills [left, right) x [top, bottom) with a solid colour.
  void Fill(int left, int top, int right, int bottom, COLORREF color);
  // Fills in the text colour.
  void Fill(int left, int top, int right, int bottom) {
    Fill(left, top, right, bottom, textColor_);
  }
  // Draws a glyph whose pen position is x and whose baseline is just above row baselineY.
  void Draw(const Glyph& glyph, int x, int baselineY);

 private:
  Pixmap& target_;
  RECT clip_;
  COLORREF textColor_;
  PixelValue textPixel_;
};

}  // namespace glyphon::win::soft
