// The pixel shapes of GDI's rounded-rectangle and polygon regions, and the corner curve its
// ellipse outlines follow. Filled shapes and wide pens are built from these so that interiors,
// outlines and round line ends all agree with each other.
#pragma once

#include <vector>

#include "platform/soft/gdi/coverage.h"
#include "platform/win32_types.h"

namespace glyphon::win::soft {

// Corner ellipses wider or taller than this are refused: their curves would take too long.
inline constexpr long long kMaxEllipseExtent = 1 << 16;

// Rows [top, bottom) whose pixels [left, right) belong to a region.
struct RegionBand {
  long long top, bottom, left, right;
};

// The rounded rectangle region of (left, top, right, bottom) with corner ellipse
// ellipseWidth x ellipseHeight, as CreateRoundRectRgn makes it: the corners are normalised, the
// right and bottom edges are exclusive less one, and corners smaller than 2 give a plain
// rectangle. Empty when the ellipse is beyond kMaxEllipseExtent.
std::vector<RegionBand> RoundRectRegion(long long left, long long top, long long right,
                                        long long bottom, long long ellipseWidth,
                                        long long ellipseHeight);
inline std::vector<RegionBand> EllipticRegion(long long left, long long top, long long right,
                                              long long bottom) {
  return RoundRectRegion(left, top, right, bottom, right - left, bottom - top);
}

// Adds bands shifted by (dx, dy) to a mask.
void AddBands(CoverageMask& mask, const std::vector<RegionBand>& bands, long long dx = 0,
              long long dy = 0);

struct Point64 {
  long long x, y;
  bool operator==(const Point64&) const = default;
};

// Adds the even-odd (ALTERNATE) interior of a closed polygon: on each row, edges are crossed at
// the pixel their integer edge walk reaches, and the spans between crossing pairs are left-closed,
// right-open; horizontal edges and each edge's last row are skipped.
void AddPolygon(CoverageMask& mask, const Point64* points, std::size_t count);

// The first quadrant of a width x height ellipse outline, from (width - 1, height / 2) towards
// the top of the quadrant, with the centre at (width / 2, height / 2).
std::vector<POINT> EllipseFirstQuadrant(int width, int height);

}  // namespace glyphon::win::soft
