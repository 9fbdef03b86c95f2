#include "platform/soft/text/glyph_painter.h"

#include <algorithm>
#include <cstring>

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
  const std::ptrdiff_t stride = glyph.width;
  const std::uint8_t* coverage =
      glyph.coverage + static_cast<std::ptrdiff_t>(top - glyphTop) * stride + (left - glyphLeft);
  if (depth < 24) {
    for (int y = top; y < bottom; ++y, coverage += stride) {
      for (int px = left; px < right; ++px) {
        if (coverage[px - left] >= kThreshold) target_.SetPixel(px, y, textPixel_);
      }
    }
    return;
  }
  if (depth == 32) {
    DrawOn32(coverage, stride, left, top, right, bottom);
    return;
  }
  // Device pixel bytes at 24 bits are blue, green, red.
  const int red = GetRValue(textColor_), green = GetGValue(textColor_),
            blue = GetBValue(textColor_);
  for (int y = top; y < bottom; ++y, coverage += stride) {
    std::uint8_t* p = target_.Row(y) + left * 3;
    for (int px = left; px < right; ++px, p += 3) {
      const int alpha = coverage[px - left];
      if (alpha == 0) continue;
      p[0] = Blend(blue, p[0], alpha);
      p[1] = Blend(green, p[1], alpha);
      p[2] = Blend(red, p[2], alpha);
    }
  }
}

// The same blend on whole 0x00RRGGBB pixels, red and blue side by side in one word: each
// channel's sum stays below 65536, so the lanes never carry into each other.
void GlyphPainter::DrawOn32(const std::uint8_t* coverage, std::ptrdiff_t stride, int left, int top,
                            int right, int bottom) {
  const std::uint32_t text = textPixel_ & 0x00FFFFFFu;
  const std::uint32_t textRedBlue = text & 0x00FF00FFu;
  const std::uint32_t textGreen = (text >> 8) & 0xFFu;
  for (int y = top; y < bottom; ++y, coverage += stride) {
    std::uint8_t* p = target_.Row(y) + left * 4;
    for (int px = left; px < right; ++px, p += 4) {
      const std::uint32_t alpha = coverage[px - left];
      if (alpha == 0) continue;
      std::uint32_t pixel = text;
      if (alpha != 255) {
        std::memcpy(&pixel, p, 4);
        const std::uint32_t rest = 255 - alpha;
        std::uint32_t redBlue = (pixel & 0x00FF00FFu) * rest + textRedBlue * alpha + 0x00800080u;
        redBlue = ((redBlue + ((redBlue >> 8) & 0x00FF00FFu)) >> 8) & 0x00FF00FFu;
        std::uint32_t green = ((pixel >> 8) & 0xFFu) * rest + textGreen * alpha + 0x80u;
        green = ((green + (green >> 8)) >> 8) & 0xFFu;
        pixel = redBlue | (green << 8);
      }
      std::memcpy(p, &pixel, 4);
    }
  }
}

}  // namespace glyphon::win::soft
