// A two-dimensional view of a cDIBSection's pixel bytes, laid over its bits without copying
// them: rows in the order memory holds them (the bottom row of the image first), each
// BytesPerScanLine long, three bytes per pixel in the order blue, green, red. Build it after the
// last drawing call on the DIB section and let it go before the next one.
#pragma once

#include <cstddef>
#include <cstdint>

#include "surface/dib_section.h"

namespace glyphon {

class PixelView {
 public:
  explicit PixelView(const cDIBSection& dib)
      : bits_(dib.DIBSectionBitsPtr()),
        rows_(bits_ != nullptr ? dib.Height() : 0),
        columns_(bits_ != nullptr ? dib.Width() : 0),
        stride_(dib.BytesPerScanLine()) {}

  int Rows() const { return rows_; }
  // Pixels per row.
  int Columns() const { return columns_; }
  // The first of the three bytes of a pixel.
  std::uint8_t* Pixel(int row, int column) const {
    return bits_ + static_cast<std::ptrdiff_t>(row) * stride_ + 3 * column;
  }

 private:
  std::uint8_t* bits_;
  int rows_;
  int columns_;
  int stride_;
};

}  // namespace glyphon
