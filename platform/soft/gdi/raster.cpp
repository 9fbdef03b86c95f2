#include "platform/soft/gdi/raster.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

RasterTarget ResolveTarget(const SoftEngine& engine, HDC hdc) {
  RasterTarget target;
  DcObject* dc = engine.Dc(hdc);
  if (dc == nullptr || !dc->surface) return target;
  target.dc = dc;
  target.surface = dc->surface.get();
  if (target.surface->BitsPerPixel() == 1) {
    const BitmapObject* bitmap = engine.Bitmap(dc->attributes.bitmap);
    target.monochromeDevice = bitmap != nullptr && !bitmap->dibSection;
  }
  return target;
}

RECT ClipToSurface(const Pixmap& surface, const RECT& rect) {
  RECT clipped{std::max<LONG>(rect.left, 0), std::max<LONG>(rect.top, 0),
               std::min<LONG>(rect.right, surface.Width()),
               std::min<LONG>(rect.bottom, surface.Height())};
  if (IsEmptyRect(clipped)) clipped = RECT{0, 0, 0, 0};
  return clipped;
}

RECT BlitRect(long long x, long long y, long long width, long long height) {
  auto span = [](long long start, long long extent, LONG& low, LONG& high) {
    long long a = start, b = start + extent;
    if (a > b) {
      const long long t = a;
      a = b + 1;
      b = t + 1;
    }
    low = static_cast<LONG>(std::clamp<long long>(a, INT32_MIN, INT32_MAX));
    high = static_cast<LONG>(std::clamp<long long>(b, INT32_MIN, INT32_MAX));
  };
  RECT rect{};
  span(x, width, rect.left, rect.right);
  span(y, height, rect.top, rect.bottom);
  return rect;
}

RopMasks Rop2Masks(int rop2, PixelValue pen) {
  if (rop2 < R2_BLACK || rop2 > R2_WHITE) rop2 = R2_COPYPEN;
  // Bit (p << 1 | d) of rop2 - 1 is the result for pen bit p and destination bit d. Split by the
  // pen bit, each half is a function of d alone: result = (d & (f0 ^ f1)) ^ f0.
  const unsigned table = static_cast<unsigned>(rop2 - 1);
  auto all = [](unsigned bit) { return bit != 0 ? ~PixelValue{0} : PixelValue{0}; };
  const PixelValue penZeroXor = all(table & 1u);
  const PixelValue penZeroAnd = all((table ^ (table >> 1)) & 1u);
  const PixelValue penOneXor = all((table >> 2) & 1u);
  const PixelValue penOneAnd = all(((table >> 2) ^ (table >> 3)) & 1u);
  RopMasks masks;
  masks.andMask = (pen & penOneAnd) | (~pen & penZeroAnd);
  masks.xorMask = (pen & penOneXor) | (~pen & penZeroXor);
  return masks;
}

PixelValue DevicePixel(const Pixmap& surface, COLORREF color) {
  return surface.ColorToPixel(color & 0x00FFFFFFu);
}

PixelValue PenPixel(const Pixmap& surface, COLORREF color, COLORREF backgroundColor) {
  if (surface.BitsPerPixel() != 1) return DevicePixel(surface, color);
  const COLORREF rgb = color & 0x00FFFFFFu;
  const std::vector<RGBQUAD>& table = surface.ColorTable();
  for (PixelValue i = 0; i < 2; ++i) {
    if (RGB(table[i].rgbRed, table[i].rgbGreen, table[i].rgbBlue) == rgb) return i;
  }
  const PixelValue background = DevicePixel(surface, backgroundColor);
  return color == backgroundColor ? background : background ^ 1u;
}

PixelValue GapPixel(const Pixmap& surface, COLORREF color, PixelValue penPixel,
                    COLORREF backgroundColor) {
  if (surface.BitsPerPixel() != 1) return DevicePixel(surface, backgroundColor);
  return color == backgroundColor ? penPixel : penPixel ^ 1u;
}

// ---- Brushes ----------------------------------------------------------------------------------

namespace {

// 8x8 hatch bitmaps, one byte per row, most significant bit leftmost; set bits are the lines.
constexpr std::uint8_t kHatches[6][8] = {
    {0x00, 0x00, 0x00, 0xFF, 0x00, 0x00, 0x00, 0x00},  // HS_HORIZONTAL
    {0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08},  // HS_VERTICAL
    {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01},  // HS_FDIAGONAL
    {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80},  // HS_BDIAGONAL
    {0x08, 0x08, 0x08, 0xFF, 0x08, 0x08, 0x08, 0x08},  // HS_CROSS
    {0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81},  // HS_DIAGCROSS
};

// Ordered-dither threshold matrices of side 2^k, built by the usual recursion.
template <int Side>
constexpr std::array<std::array<std::uint8_t, Side>, Side> BayerMatrix() {
  std::array<std::array<std::uint8_t, Side>, Side> m{};
  if constexpr (Side == 1) {
    m[0][0] = 0;
  } else {
    constexpr auto half = BayerMatrix<Side / 2>();
    constexpr int offsets[2][2] = {{0, 2}, {3, 1}};
    for (int y = 0; y < Side; ++y) {
      for (int x = 0; x < Side; ++x) {
        m[y][x] = static_cast<std::uint8_t>(4 * half[y % (Side / 2)][x % (Side / 2)] +
                                            offsets[y / (Side / 2)][x / (Side / 2)]);
      }
    }
  }
  return m;
}
constexpr auto kBayer8 = BayerMatrix<8>();
constexpr auto kBayer16 = BayerMatrix<16>();

bool IsBlackOrWhite(COLORREF color) {
  const COLORREF rgb = color & 0x00FFFFFFu;
  return rgb == RGB(0, 0, 0) || rgb == RGB(255, 255, 255);
}

}  // namespace

BrushPixels::BrushPixels(const BrushObject* brush, const RasterTarget& target) {
  if (brush == nullptr || !target) return;
  switch (brush->style) {
    case BS_SOLID: ResolveSolid(brush->color, target); break;
    case BS_HATCHED: ResolveHatch(brush->hatch, brush->color, target); break;
    case BS_PATTERN:
      if (brush->pattern) ResolvePattern(*brush->pattern, target);
      break;
    default: break;  // BS_NULL
  }
}

void BrushPixels::Allocate(int width, int height, bool withCoverage) {
  kind_ = Kind::Pattern;
  width_ = width;
  height_ = height;
  const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  values_.assign(count, 0);
  if (withCoverage) paints_.assign(count, 1);
}

void BrushPixels::ResolveSolid(COLORREF color, const RasterTarget& target) {
  if (target.monochromeDevice && !IsBlackOrWhite(color)) {
    ResolveDither(color);
    return;
  }
  kind_ = Kind::Solid;
  solid_ = PenPixel(*target.surface, color, target.dc->attributes.backgroundColor);
}

// GDI's monochrome dither of a solid colour: white wherever the colour's grey level, on a 0-64
// scale, beats the 8x8 ordered threshold.
void BrushPixels::ResolveDither(COLORREF color) {
  const int grey = (30 * GetRValue(color) + 59 * GetGValue(color) + 11 * GetBValue(color) + 200) /
                   400;
  Allocate(8, 8, false);
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) {
      values_[static_cast<std::size_t>(y * 8 + x)] = grey + kBayer8[y][x] > 63 ? 1u : 0u;
    }
  }
}

void BrushPixels::ResolveHatch(int hatch, COLORREF color, const RasterTarget& target) {
  const DcAttributes& dc = target.dc->attributes;
  const Pixmap& surface = *target.surface;
  const PixelValue line = PenPixel(surface, color, dc.backgroundColor);
  const PixelValue background = GapPixel(surface, color, line, dc.backgroundColor);
  const bool transparent = dc.backgroundMode == TRANSPARENT;
  Allocate(8, 8, transparent);
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) {
      const bool isLine = ((kHatches[hatch][y] >> (7 - x)) & 1u) != 0;
      const auto i = static_cast<std::size_t>(y * 8 + x);
      values_[i] = isLine ? line : background;
      if (transparent) paints_[i] = isLine ? 1 : 0;
    }
  }
}

void BrushPixels::ResolvePattern(const Pixmap& pattern, const RasterTarget& target) {
  const DcAttributes& dc = target.dc->attributes;
  const Pixmap& surface = *target.surface;
  Allocate(pattern.Width(), pattern.Height(), false);
  // A monochrome pattern paints 0 bits in the text colour and 1 bits in the background colour;
  // on a monochrome device bitmap its bits are used as they are.
  PixelValue monochrome[2] = {0, 1};
  const bool monoPattern = pattern.BitsPerPixel() == 1;
  if (monoPattern && !target.monochromeDevice) {
    monochrome[0] = DevicePixel(surface, dc.textColor);
    monochrome[1] = DevicePixel(surface, dc.backgroundColor);
  }
  // Colour patterns are dithered onto one bit per pixel by their grey level.
  const bool dither = !monoPattern && surface.BitsPerPixel() == 1;
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      const PixelValue source = pattern.GetPixel(x, y);
      PixelValue value;
      if (monoPattern) {
        value = monochrome[source & 1u];
      } else {
        COLORREF color = pattern.PixelToColor(source);
        if (dither) {
          const int grey = (30 * GetRValue(color) + 59 * GetGValue(color) +
                            11 * GetBValue(color)) / 100;
          color = grey + kBayer16[y % 16][x % 16] > 255 ? RGB(255, 255, 255) : RGB(0, 0, 0);
        }
        value = DevicePixel(surface, color);
      }
      values_[static_cast<std::size_t>(y * width_ + x)] = value;
    }
  }
}

BrushRow BrushPixels::Row(int y) const {
  if (kind_ != Kind::Pattern) return BrushRow{&solid_, nullptr, 1};
  int row = y % height_;
  if (row < 0) row += height_;
  const auto offset = static_cast<std::size_t>(row) * static_cast<std::size_t>(width_);
  return BrushRow{values_.data() + offset, paints_.empty() ? nullptr : paints_.data() + offset,
                  width_};
}

// ---- Painting ---------------------------------------------------------------------------------

namespace {

std::uint32_t* Row32(Pixmap& surface, int y) {
  return reinterpret_cast<std::uint32_t*>(surface.Row(y));
}

}  // namespace

void MixPixel(Pixmap& surface, int x, int y, const RopMasks& masks) {
  if (surface.BitsPerPixel() == 32) {
    // The whole word takes part, as in GDI, so the unused top byte follows the mix too.
    std::uint32_t* p = Row32(surface, y) + x;
    *p = masks.Apply(*p);
    return;
  }
  surface.SetPixel(x, y, masks.Apply(surface.GetPixel(x, y)));
}

void MixSpan(Pixmap& surface, int y, int left, int right, const RopMasks& masks) {
  if (left >= right || masks.IsNop()) return;
  switch (surface.BitsPerPixel()) {
    case 32: {
      std::uint32_t* p = Row32(surface, y) + left;
      std::uint32_t* const end = p + (right - left);
      if (masks.andMask == 0) {
        std::fill(p, end, masks.xorMask);
      } else {
        for (; p != end; ++p) *p = masks.Apply(*p);
      }
      return;
    }
    case 24: {
      std::uint8_t* p = surface.Row(y) + left * 3;
      const std::uint8_t a[3] = {static_cast<std::uint8_t>(masks.andMask),
                                 static_cast<std::uint8_t>(masks.andMask >> 8),
                                 static_cast<std::uint8_t>(masks.andMask >> 16)};
      const std::uint8_t x[3] = {static_cast<std::uint8_t>(masks.xorMask),
                                 static_cast<std::uint8_t>(masks.xorMask >> 8),
                                 static_cast<std::uint8_t>(masks.xorMask >> 16)};
      for (int i = left; i < right; ++i, p += 3) {
        p[0] = static_cast<std::uint8_t>((p[0] & a[0]) ^ x[0]);
        p[1] = static_cast<std::uint8_t>((p[1] & a[1]) ^ x[1]);
        p[2] = static_cast<std::uint8_t>((p[2] & a[2]) ^ x[2]);
      }
      return;
    }
    default:
      for (int x = left; x < right; ++x) MixPixel(surface, x, y, masks);
  }
}

void BrushSpan(Pixmap& surface, int y, int left, int right, const BrushPixels& brush, int rop2) {
  if (left >= right || brush.PaintsNothing()) return;
  if (brush.IsSolid()) {
    MixSpan(surface, y, left, right, Rop2Masks(rop2, brush.SolidValue()));
    return;
  }
  const BrushRow row = brush.Row(y);
  int phase = row.Phase(left);
  if (surface.BitsPerPixel() == 32 && rop2 == R2_COPYPEN && row.paints == nullptr) {
    std::uint32_t* p = Row32(surface, y) + left;
    for (int x = left; x < right; ++x, ++p) {
      *p = row.values[phase];
      if (++phase == row.period) phase = 0;
    }
    return;
  }
  for (int x = left; x < right; ++x) {
    if (row.paints == nullptr || row.paints[phase] != 0) {
      MixPixel(surface, x, y, Rop2Masks(rop2, row.values[phase]));
    }
    if (++phase == row.period) phase = 0;
  }
}

void BrushRect(Pixmap& surface, const RECT& rect, const BrushPixels& brush, int rop2) {
  const RECT clipped = ClipToSurface(surface, rect);
  if (IsEmptyRect(clipped) || brush.PaintsNothing()) return;
  for (int y = clipped.top; y < clipped.bottom; ++y) {
    BrushSpan(surface, y, clipped.left, clipped.right, brush, rop2);
  }
}

}  // namespace glyphon::win::soft
