#include "platform/soft/gdi/pixel_conversion.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "platform/soft/gdi/pixel_rows.h"

namespace glyphon::win::soft {

namespace {

bool SameColorTables(const Pixmap& a, const Pixmap& b) {
  const auto& ta = a.ColorTable();
  const auto& tb = b.ColorTable();
  return ta.size() == tb.size() &&
         std::memcmp(ta.data(), tb.data(), ta.size() * sizeof(RGBQUAD)) == 0;
}

bool SameFormat(const PixelConversion::Side& from, const PixelConversion::Side& to) {
  const Pixmap& a = *from.pixmap;
  const Pixmap& b = *to.pixmap;
  if (from.deviceMonochrome || to.deviceMonochrome) {
    return from.deviceMonochrome && to.deviceMonochrome;
  }
  if (a.BitsPerPixel() != b.BitsPerPixel()) return false;
  return a.BitsPerPixel() >= 24 || SameColorTables(a, b);
}

}  // namespace

PixelConversion PixelConversion::Nearest(const Pixmap& from, const Pixmap& to) {
  return ForTransfer(Side{&from}, Side{&to});
}

PixelConversion PixelConversion::FromTable(const Side& from, const Side& to) {
  PixelConversion c;
  c.kind_ = Kind::Lookup;
  const Pixmap& source = *from.pixmap;
  const PixelValue count = PixelValue{1} << source.BitsPerPixel();
  const PixelValue backgroundIndex = source.ColorToPixel(from.background);
  c.lookup_.resize(count);
  for (PixelValue i = 0; i < count; ++i) {
    if (to.deviceMonochrome) {
      c.lookup_[i] = i == backgroundIndex ? 1 : 0;
      continue;
    }
    const COLORREF color =
        from.deviceMonochrome ? (i == 0 ? to.text : to.background) : source.PixelToColor(i);
    c.lookup_[i] = to.pixmap->ColorToPixel(color);
  }
  return c;
}

PixelConversion PixelConversion::ForTransfer(const Side& from, const Side& to) {
  PixelConversion c;
  if (SameFormat(from, to)) return c;
  if (from.pixmap->BitsPerPixel() <= 8) return FromTable(from, to);
  c.to_ = to.pixmap;
  if (to.deviceMonochrome) {
    // Compared with the raw value, so a 32-bit pixel with a non-zero top byte never matches.
    c.kind_ = Kind::MatchBackground;
    c.background_ = RgbToPixel32(from.background);
  } else if (to.pixmap->BitsPerPixel() >= 24) {
    c.kind_ = Kind::DropAlpha;
  } else {
    c.kind_ = Kind::NearestInTable;
  }
  return c;
}

void PixelConversion::Apply(PixelValue* values, int count) const {
  switch (kind_) {
    case Kind::Identity: return;
    case Kind::Lookup:
      for (int i = 0; i < count; ++i) values[i] = lookup_[values[i]];
      return;
    case Kind::DropAlpha:
      for (int i = 0; i < count; ++i) values[i] &= 0x00FFFFFFu;
      return;
    case Kind::MatchBackground:
      for (int i = 0; i < count; ++i) values[i] = values[i] == background_ ? 1u : 0u;
      return;
    case Kind::NearestInTable: {
      // Runs of one colour are common; remember the last answer.
      PixelValue lastIn = 0;
      PixelValue lastOut = to_->ColorToPixel(0);
      for (int i = 0; i < count; ++i) {
        const PixelValue v = values[i] & 0x00FFFFFFu;
        if (v != lastIn) {
          lastIn = v;
          lastOut = to_->ColorToPixel(Pixel32ToRgb(v));
        }
        values[i] = lastOut;
      }
      return;
    }
  }
}

void ConvertBlock(const Pixmap& from, int fromX, int fromY, Pixmap& to, int toX, int toY, int width,
                  int height, const PixelConversion& conversion) {
  if (width <= 0 || height <= 0) return;
  std::vector<PixelValue> row(static_cast<std::size_t>(width));
  for (int y = 0; y < height; ++y) {
    ReadPixels(from, fromX, fromY + y, width, row.data());
    conversion.Apply(row.data(), width);
    WritePixels(to, toX, toY + y, width, row.data());
  }
}

}  // namespace glyphon::win::soft
