// Pixel sets built before painting, for drawings whose parts overlap but must touch each pixel
// once (wide pen strokes and the interiors around them, flood fills). A mask covers one rectangle
// of the surface; anything added outside it is dropped, so huge shapes cost only what shows.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/win32_types.h"

namespace glyphon::win::soft {

class CoverageMask {
 public:
  // bounds must lie inside the surface; an empty rectangle makes an empty mask.
  explicit CoverageMask(const RECT& bounds);

  const RECT& Bounds() const { return bounds_; }

  // Adds the pixels [left, right) of row y; any part outside the bounds is dropped.
  void AddSpan(long long y, long long left, long long right);
  void AddRect(long long left, long long top, long long right, long long bottom);
  void Add(int x, int y) { cells_[Index(x, y)] = 1; }

  bool Contains(int x, int y) const {
    return x >= bounds_.left && x < bounds_.right && y >= bounds_.top && y < bounds_.bottom &&
           cells_[Index(x, y)] != 0;
  }

  // Removes every pixel of other (which must have the same bounds).
  void Subtract(const CoverageMask& other);

  // Calls f(y, left, right) for each maximal run of covered pixels, top to bottom.
  template <class F>
  void ForEachSpan(F&& f) const {
    for (int y = bounds_.top; y < bounds_.bottom; ++y) {
      const std::uint8_t* row = &cells_[Index(bounds_.left, y)];
      int x = 0;
      const int width = bounds_.right - bounds_.left;
      while (x < width) {
        while (x < width && row[x] == 0) ++x;
        const int start = x;
        while (x < width && row[x] != 0) ++x;
        if (x > start) f(y, bounds_.left + start, bounds_.left + x);
      }
    }
  }

 private:
  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y - bounds_.top) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(x - bounds_.left);
  }

  RECT bounds_;
  int width_;
  std::vector<std::uint8_t> cells_;
};

}  // namespace glyphon::win::soft
