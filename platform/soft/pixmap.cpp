#include "platform/soft/pixmap.h"

#include <cstring>
#include <limits>
#include <new>

namespace glyphon::win::soft {

Pixmap::Pixmap(int width, int height, int bitsPerPixel, int stride, bool topDown)
    : width_(width), height_(height), bitsPerPixel_(bitsPerPixel), stride_(stride),
      topDown_(topDown) {}

int Pixmap::StrideFor(int width, int bitsPerPixel, RowAlignment alignment) {
  const long long bits = static_cast<long long>(width) * bitsPerPixel;
  const int unitBits = alignment == RowAlignment::Word ? 16 : 32;
  return static_cast<int>((bits + unitBits - 1) / unitBits * (unitBits / 8));
}

std::shared_ptr<Pixmap> Pixmap::Create(int width, int height, int bitsPerPixel, bool topDown,
                                       RowAlignment alignment) {
  if (width <= 0 || height <= 0 || width > kMaxSide || height > kMaxSide) return nullptr;
  switch (bitsPerPixel) {
    case 1: case 4: case 8: case 24: case 32: break;
    default: return nullptr;
  }
  const int stride = StrideFor(width, bitsPerPixel, alignment);
  const std::size_t bytes = static_cast<std::size_t>(stride) * static_cast<std::size_t>(height);
  if (bytes > kMaxBytes) return nullptr;
  std::shared_ptr<Pixmap> pixmap(new Pixmap(width, height, bitsPerPixel, stride, topDown));
  // Zeroed like fresh GDI memory; nothrow so that an exhausted heap fails the call, not the host.
  pixmap->bits_.reset(new (std::nothrow) std::uint8_t[bytes]());
  if (!pixmap->bits_) return nullptr;
  if (bitsPerPixel <= 8) {
    pixmap->colorTable_.assign(std::size_t{1} << bitsPerPixel, RGBQUAD{0, 0, 0, 0});
    if (bitsPerPixel == 1) pixmap->colorTable_[1] = RGBQUAD{255, 255, 255, 0};
  }
  return pixmap;
}

PixelValue Pixmap::PixelMask() const {
  return bitsPerPixel_ >= 24 ? 0x00FFFFFFu : (1u << bitsPerPixel_) - 1u;
}

PixelValue Pixmap::GetPixel(int x, int y) const {
  const std::uint8_t* row = Row(y);
  switch (bitsPerPixel_) {
    case 32: {
      PixelValue v;
      std::memcpy(&v, row + x * 4, 4);
      return v & 0x00FFFFFFu;
    }
    case 24: {
      const std::uint8_t* p = row + x * 3;
      return p[0] | (p[1] << 8) | (p[2] << 16);
    }
    case 8: return row[x];
    case 4: return (row[x / 2] >> (x % 2 == 0 ? 4 : 0)) & 0x0F;
    default: return (row[x / 8] >> (7 - x % 8)) & 1u;
  }
}

void Pixmap::SetPixel(int x, int y, PixelValue value) {
  std::uint8_t* row = Row(y);
  switch (bitsPerPixel_) {
    case 32: {
      const PixelValue v = value & 0x00FFFFFFu;
      std::memcpy(row + x * 4, &v, 4);
      return;
    }
    case 24: {
      std::uint8_t* p = row + x * 3;
      p[0] = static_cast<std::uint8_t>(value);
      p[1] = static_cast<std::uint8_t>(value >> 8);
      p[2] = static_cast<std::uint8_t>(value >> 16);
      return;
    }
    case 8: row[x] = static_cast<std::uint8_t>(value); return;
    case 4: {
      std::uint8_t& b = row[x / 2];
      b = x % 2 == 0 ? static_cast<std::uint8_t>((b & 0x0F) | ((value & 0x0F) << 4))
                     : static_cast<std::uint8_t>((b & 0xF0) | (value & 0x0F));
      return;
    }
    default: {
      std::uint8_t& b = row[x / 8];
      const auto bit = static_cast<std::uint8_t>(0x80 >> (x % 8));
      b = (value & 1u) ? static_cast<std::uint8_t>(b | bit) : static_cast<std::uint8_t>(b & ~bit);
    }
  }
}

PixelValue Pixmap::ColorToPixel(COLORREF color) const {
  if (bitsPerPixel_ >= 24) return RgbToPixel32(color);
  // Nearest colour-table entry by squared distance; the first of equals wins.
  const int r = GetRValue(color), g = GetGValue(color), b = GetBValue(color);
  PixelValue best = 0;
  int bestDistance = std::numeric_limits<int>::max();
  for (std::size_t i = 0; i < colorTable_.size(); ++i) {
    const RGBQUAD& q = colorTable_[i];
    const int dr = q.rgbRed - r, dg = q.rgbGreen - g, db = q.rgbBlue - b;
    const int distance = dr * dr + dg * dg + db * db;
    if (distance < bestDistance) {
      bestDistance = distance;
      best = static_cast<PixelValue>(i);
      if (distance == 0) break;
    }
  }
  return best;
}

COLORREF Pixmap::PixelToColor(PixelValue value) const {
  if (bitsPerPixel_ >= 24) return Pixel32ToRgb(value);
  if (value >= colorTable_.size()) return 0;
  const RGBQUAD& q = colorTable_[value];
  return RGB(q.rgbRed, q.rgbGreen, q.rgbBlue);
}

}  // namespace glyphon::win::soft
