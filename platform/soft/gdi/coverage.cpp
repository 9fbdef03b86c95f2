#include "platform/soft/gdi/coverage.h"

#include <algorithm>

namespace glyphon::win::soft {

CoverageMask::CoverageMask(const RECT& bounds) : bounds_(bounds), width_(0) {
  if (bounds_.left >= bounds_.right || bounds_.top >= bounds_.bottom) {
    bounds_ = RECT{0, 0, 0, 0};
    return;
  }
  width_ = bounds_.right - bounds_.left;
  cells_.assign(static_cast<std::size_t>(width_) *
                    static_cast<std::size_t>(bounds_.bottom - bounds_.top),
                0);
}

void CoverageMask::AddSpan(long long y, long long left, long long right) {
  if (y < bounds_.top || y >= bounds_.bottom) return;
  left = std::max<long long>(left, bounds_.left);
  right = std::min<long long>(right, bounds_.right);
  if (left >= right) return;
  const auto row = Index(static_cast<int>(left), static_cast<int>(y));
  std::fill_n(cells_.begin() + static_cast<std::ptrdiff_t>(row), right - left, std::uint8_t{1});
}

void CoverageMask::AddRect(long long left, long long top, long long right, long long bottom) {
  top = std::max<long long>(top, bounds_.top);
  bottom = std::min<long long>(bottom, bounds_.bottom);
  for (long long y = top; y < bottom; ++y) AddSpan(y, left, right);
}

void CoverageMask::Subtract(const CoverageMask& other) {
  for (std::size_t i = 0; i < cells_.size() && i < other.cells_.size(); ++i) {
    if (other.cells_[i] != 0) cells_[i] = 0;
  }
}

}  // namespace glyphon::win::soft
