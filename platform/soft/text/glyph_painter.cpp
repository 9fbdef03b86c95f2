#include "platform/soft/text/glyph_painter.h"

#include <algorithm>

#include "platform/soft/gdi/raster.h"

namespace glyphon::win::soft {

namespace {

// Coverage at or above this sets a pixel of a colour-table surface.
constexpr int kThreshold = 128;

// (source * alpha + destination * (255 - alpha)) / 255, rounded.
std::uint8_t Blend(int source, int destination, int alpha) {
  const int t = source * alpha + destination * (255 - alpha) + 128;
  return static_cast<std::uint8_t>((t + (t >> 8)) >> 8);
}

}  // namespace

GlyphPainter::GlyphPainter(Pixmap& target, const RECT& clip, COLORREF textColor,
                           COLORREF backgroundColor)
    : target_(target),
      clip_(ClipToSurface(target, clip)),
      textColor_(textColor),
      textPixel_(PenPixel(target, textColor, backgroundColor)),
      backgroundPixel_(DevicePixel(target, backgroundColor)) {}

void GlyphPainter::FillBackground(int left, int top, int right, int bottom) {
  Fill(RECT{left, top, right, bottom}, backgroundPixel_, R2_COPYPEN);
}

void GlyphPainter::FillText(int left, int top, int right, int bottom, int rop2) {
  Fill(RECT{left, top, right, bottom}, textPixel_, rop2);
}

void GlyphPainter::Fill(RECT area, PixelValue pixel, int rop2) {
  area.left = std::max(area.left, clip_.left);
  area.top = std::max(area.top, clip_.top);
  area.right = std::min(area.right, clip_.right);
  area.bottom = std::min(area.bottom, clip_.bottom);
  if (IsEmptyRect(area)) return;
  const RopMasks masks = Rop2Masks(rop2, pixel);
  for (int y = area.top; y < area.bottom; ++y) MixSpan(target_, y, area.left, area.right, masks);
}

void GlyphPainter::Draw(const Glyph& glyph, int x, int baselineY) {
  const int glyphLeft = x + glyph.left;
  const int glyphTop = baselineY - glyph.top;
  const int left = std::max<int>(glyphLeft, clip_.left);
  const int top = std::max<int>(glyphTop, clip_.top);
  const int right = std::min<int>(glyphLeft + glyph.width, clip_.right);
  const int bottom = std::min<int>(glyphTop + glyph.height, clip_.bottom);
  if (left >= right || top >= bottom) return;
  const int depth = target_.BitsPerPixel();
  const int bytesPerPixel = depth / 8;
  // Device pixel bytes at 24 and 32 bits are blue, green, red.
  const int red = GetRValue(textColor_), green = GetGValue(textColor_), blue = GetBValue(textColor_);
  for (int y = top; y < bottom; ++y) {
    const std::uint8_t* coverage = glyph.coverage +
                                   static_cast<std::ptrdiff_t>(y - glyphTop) * glyph.width +
                                   (left - glyphLeft);
    std::uint8_t* row = target_.Row(y);
    for (int px = left; px < right; ++px) {
      const int alpha = coverage[px - left];
      if (alpha == 0) continue;
      if (depth < 24) {
        if (alpha >= kThreshold) target_.SetPixel(px, y, textPixel_);
        continue;
      }
      std::uint8_t* p = row + px * bytesPerPixel;
      p[0] = Blend(blue, p[0], alpha);
      p[1] = Blend(green, p[1], alpha);
      p[2] = Blend(red, p[2], alpha);
      if (depth == 32) p[3] = 0;
    }
  }
}

}  // namespace glyphon::win::soft
