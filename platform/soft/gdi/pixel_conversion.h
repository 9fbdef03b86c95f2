// Turning the raw pixel values of one surface into those of another, as GDI does when it moves
// pixels between different formats.
#pragma once

#include <vector>

#include "platform/soft/pixmap.h"

namespace glyphon::win::soft {

class PixelConversion {
 public:
  // One side of a block transfer. A monochrome device bitmap has no colours of its own: as a
  // source its 0 and 1 take the destination DC's text and background colours; as a destination,
  // source pixels equal to the source DC's background colour become 1 and all others 0.
  struct Side {
    const Pixmap* pixmap = nullptr;
    bool deviceMonochrome = false;
    COLORREF text = 0;        // plain RGB
    COLORREF background = 0;  // plain RGB
  };

  // Each source colour becomes the nearest colour the destination shows (DIB transfers).
  static PixelConversion Nearest(const Pixmap& from, const Pixmap& to);

  // The conversion a block transfer between two DCs applies.
  static PixelConversion ForTransfer(const Side& from, const Side& to);

  bool IsIdentity() const { return kind_ == Kind::Identity; }

  // Converts values in place.
  void Apply(PixelValue* values, int count) const;

 private:
  enum class Kind { Identity, Lookup, DropAlpha, NearestInTable, MatchBackground };

  static PixelConversion FromTable(const Side& from, const Side& to);

  Kind kind_ = Kind::Identity;
  std::vector<PixelValue> lookup_;  // by source index, for Kind::Lookup
  PixelValue background_ = 0;
  const Pixmap* to_ = nullptr;
};

}  // namespace glyphon::win::soft

namespace glyphon::win::soft {

// Copies a width x height block between pixmaps through a conversion; both blocks must lie inside
// their pixmaps.
void ConvertBlock(const Pixmap& from, int fromX, int fromY, Pixmap& to, int toX, int toY, int width,
                  int height, const PixelConversion& conversion);

}  // namespace glyphon::win::soft
