#include "platform/soft/gdi/region_shapes.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace glyphon::win::soft {

namespace {

// Incremental midpoint ellipse walk shared by region rows and outline points.
class EllipseWalk {
 public:
  EllipseWalk(long long width, long long height) {
    const long long a = width - 1, b = height - 1;
    stepX_ = 8 * b * b;
    stepY_ = 8 * a * a;
    dx_ = 4 * b * b * (1 - a);
    dy_ = 4 * a * a * (1 + b % 2);
    err_ = dx_ + dy_ + a * a * (b % 2);
  }
  // Decides one step: whether x moves and whether y moves.
  std::pair<bool, bool> Step() {
    const long long e2 = 2 * err_;
    const bool moveX = e2 >= dx_;
    if (moveX) {
      dx_ += stepX_;
      err_ += dx_;
    }
    const bool moveY = e2 <= dy_;
    if (moveY) {
      dy_ += stepY_;
      err_ += dy_;
    }
    return {moveX, moveY};
  }

 private:
  long long stepX_, stepY_, dx_, dy_, err_;
};

// ceil(a * k / d) for d > 0 and 0 <= k, exact without a 128-bit type (32-bit targets have none):
// a and k are differences of device coordinates, below 2^34 in size, so with k split into 16-bit
// halves every partial product fits in 64 bits.
long long CeilMulDiv(long long a, long long k, long long d) {
  const long long magnitude = a < 0 ? -a : a;
  const long long high = magnitude * (k >> 16);
  const long long low = (high % d) * 65536 + magnitude * (k & 0xFFFF);
  const long long quotient = (high / d) * 65536 + low / d;
  if (a < 0) return -quotient;
  return low % d == 0 ? quotient : quotient + 1;
}

}  // namespace

std::vector<RegionBand> RoundRectRegion(long long left, long long top, long long right,
                                        long long bottom, long long ellipseWidth,
                                        long long ellipseHeight) {
  if (left > right) std::swap(left, right);
  if (top > bottom) std::swap(top, bottom);
  --right;
  --bottom;
  const long long ew = std::min(right - left, std::llabs(ellipseWidth));
  const long long eh = std::min(bottom - top, std::llabs(ellipseHeight));
  if (ew < 2 || eh < 2) {
    // A plain rectangle, normalised again as a rectangle region is.
    if (left > right) std::swap(left, right);
    if (top > bottom) std::swap(top, bottom);
    if (left == right || top == bottom) return {};
    return {RegionBand{top, bottom, left, right}};
  }
  if (ew > kMaxEllipseExtent || eh > kMaxEllipseExtent) return {};

  // Row y of the lower half, indexed from the top of the ellipse, spans [left + inset, right -
  // inset); the walk runs from the middle row down.
  std::vector<long long> inset(static_cast<std::size_t>(eh), 0);
  EllipseWalk walk(ew, eh);
  long long x = 0, y = eh / 2;
  while (x <= ew / 2) {
    const auto [moveX, moveY] = walk.Step();
    if (moveX) ++x;
    if (moveY) {
      ++y;
      if (y < eh) inset[static_cast<std::size_t>(y)] = x;
    }
  }
  std::vector<RegionBand> bands;
  bands.reserve(static_cast<std::size_t>(eh));
  const long long b = eh - 1;
  for (long long i = 0; i < eh / 2; ++i) {
    const long long in = inset[static_cast<std::size_t>(b - i)];
    bands.push_back(RegionBand{top + i, top + i + 1, left + in, right - in});
  }
  // The middle row stretches over the straight sides.
  bands.push_back(RegionBand{top + eh / 2, bottom - eh + eh / 2 + 1, left, right});
  for (long long i = eh / 2 + 1; i < eh; ++i) {
    const long long in = inset[static_cast<std::size_t>(i)];
    bands.push_back(RegionBand{bottom - eh + i, bottom - eh + i + 1, left + in, right - in});
  }
  return bands;
}

void AddBands(CoverageMask& mask, const std::vector<RegionBand>& bands, long long dx,
              long long dy) {
  for (const RegionBand& band : bands) {
    mask.AddRect(band.left + dx, band.top + dy, band.right + dx, band.bottom + dy);
  }
}

void AddPolygon(CoverageMask& mask, const Point64* points, std::size_t count) {
  if (count < 2) return;
  struct Edge {
    Point64 top, bottom;
  };
  std::vector<Edge> edges;
  edges.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const Point64& a = points[i == 0 ? count - 1 : i - 1];
    const Point64& b = points[i];
    if (a.y == b.y) continue;
    edges.push_back(a.y < b.y ? Edge{a, b} : Edge{b, a});
  }
  const RECT& bounds = mask.Bounds();
  std::vector<long long> crossings;
  for (long long y = bounds.top; y < bounds.bottom; ++y) {
    crossings.clear();
    for (const Edge& e : edges) {
      if (y < e.top.y || y >= e.bottom.y) continue;
      // The edge walk lands on top.x + ceil(dx * k / dy) at k rows below the top.
      crossings.push_back(e.top.x + CeilMulDiv(e.bottom.x - e.top.x, y - e.top.y,
                                               e.bottom.y - e.top.y));
    }
    std::sort(crossings.begin(), crossings.end());
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
      mask.AddSpan(y, crossings[i], crossings[i + 1]);
    }
  }
}

std::vector<POINT> EllipseFirstQuadrant(int width, int height) {
  std::vector<POINT> points;
  EllipseWalk walk(width, height);
  POINT p{width - 1, height / 2};
  while (p.x >= width / 2) {
    points.push_back(p);
    const auto [moveX, moveY] = walk.Step();
    if (moveX) --p.x;
    if (moveY) ++p.y;
  }
  return points;
}

}  // namespace glyphon::win::soft
