#include "platform/soft/text/glyph_painter.h"

#include <algorithm>
#include <cstring>

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

GlyphPainter::GlyphPainter(Pixmap& target, const RECT& clip, COLORREF textColor)
    : target_(target),
      clip_{std::max<LONG>(clip.left, 0), std::max<LONG>(clip.top, 0),
            std::min<LONG>(clip.right, target.Width()), std::min<LONG>(clip.bottom, target.Height())},
      textColor_(textColor),
      textPixel_(target.ColorToPixel(textColor)) {}

void GlyphPainter::Fill(int left, int top, int right, int bottom, COLORREF color) {
  left = std::max<int>(left, clip_.left);
  top = std::max<int>(top, clip_.top);
  right = std::min<int>(right, clip_.right);
  bottom = std::min<int>(bottom, clip_.bottom);
  if (left >= right || top >= bottom) return;
  const PixelValue pixel = target_.ColorToPixel(color);
  const int depth = target_.BitsPerPixel();
  for (int y = top; y < bottom; ++y) {
    std::uint8_t* row = target_.Row(y);
    if (depth == 32) {
      for (int x = left; x < right; ++x) std::memcpy(row + x * 4, &pixel, 4);
    } else if (depth == 24) {
      for (int x = left; x < right; ++x) {
        row[x * 3] = static_cast<std::uint8_t>(pixel);
        row[x * 3 + 1] = static_cast<std::uint8_t>(pixel >> 8);
        row[x * 3 + 2] = static_cast<std::uint8_t>(pixel >> 16);
      }
    } else {
      for (int x = left; x < right; ++x) target_.SetPixel(x, y, pixel);
    }
  }
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
    const std::uint8_t* coverage =
        glyph.coverage + static_cast<std::ptrdiff_t>(y - glyphTop) * glyph.width + (left - glyphLeft);
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
