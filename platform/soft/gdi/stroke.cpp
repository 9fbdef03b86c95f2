#include "platform/soft/gdi/stroke.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/soft/gdi/cosmetic_line.h"
#include "platform/soft/gdi/region_shapes.h"

namespace glyphon::win::soft {

namespace {

// Dash and gap lengths in pixels of the cosmetic styles PS_DASH to PS_DASHDOTDOT.
constexpr DashPattern kCosmeticDashes[4] = {
    {2, {18, 6}, 24},
    {2, {3, 3}, 6},
    {4, {9, 6, 3, 6}, 24},
    {6, {9, 3, 3, 3, 3, 3}, 24},
};
constexpr DashPattern kAlternate = {2, {1, 1}, 2};

// Rounds halves away from zero, as the wide-line geometry does.
long long RoundAway(double value) {
  return static_cast<long long>(value > 0 ? value + 0.5 : value - 0.5);
}

// Adds the body of one wide segment: a rectangle for axis-parallel segments, else the
// quadrilateral whose two long sides are offset by the rounded half widths.
void AddWideSegment(CoverageMask& mask, POINT a, POINT b, int width) {
  const long long dx = static_cast<long long>(b.x) - a.x, dy = static_cast<long long>(b.y) - a.y;
  if (dx == 0 && dy == 0) return;
  if (dy == 0) {
    const long long top = a.y - width / 2;
    mask.AddRect(std::min<long long>(a.x, b.x), top, std::max<long long>(a.x, b.x), top + width);
    return;
  }
  if (dx == 0) {
    const long long left = a.x - width / 2;
    mask.AddRect(left, std::min<long long>(a.y, b.y), left + width, std::max<long long>(a.y, b.y));
    return;
  }
  const double length = std::hypot(static_cast<double>(dx), static_cast<double>(dy));
  const double widthX = width * std::fabs(static_cast<double>(dy)) / length;
  const double widthY = width * std::fabs(static_cast<double>(dx)) / length;
  Point64 narrow{RoundAway(widthX / 2), RoundAway(widthY / 2)};
  Point64 wide{RoundAway((widthX + 1) / 2), RoundAway((widthY + 1) / 2)};
  if (dx < 0) {
    wide.y = -wide.y;
    narrow.y = -narrow.y;
  }
  if (dy < 0) {
    std::swap(narrow, wide);
    wide.x = -wide.x;
    narrow.x = -narrow.x;
  }
  const Point64 corners[4] = {{a.x - narrow.x, a.y + narrow.y},
                              {a.x + wide.x, a.y - wide.y},
                              {b.x + wide.x, b.y - wide.y},
                              {b.x - narrow.x, b.y + narrow.y}};
  AddPolygon(mask, corners, 4);
}

}  // namespace

ResolvedPen ResolvePen(const PenObject& pen) {
  ResolvedPen resolved;
  resolved.color = pen.color;
  resolved.width = std::max(pen.width, 1);
  switch (pen.style) {
    case PS_NULL:
      resolved.kind = ResolvedPen::Kind::Null;
      resolved.width = 0;
      return resolved;
    case PS_DASH:
    case PS_DASHDOT:
    case PS_DOT:
    case PS_DASHDOTDOT:
      // Wider pens from CreatePen draw their dashed styles solid.
      if (resolved.width == 1) {
        resolved.kind = ResolvedPen::Kind::Dashed;
        resolved.dashes = &kCosmeticDashes[pen.style - PS_DASH];
        return resolved;
      }
      break;
    case PS_INSIDEFRAME: resolved.insideFrame = true; break;
    default: break;
  }
  resolved.kind = resolved.width > 1 ? ResolvedPen::Kind::Wide : ResolvedPen::Kind::Solid;
  return resolved;
}

ResolvedPen AlternatePen(COLORREF color) {
  ResolvedPen resolved;
  resolved.kind = ResolvedPen::Kind::Dashed;
  resolved.color = color;
  resolved.dashes = &kAlternate;
  resolved.transparentGaps = true;
  return resolved;
}

Stroker::Stroker(const RasterTarget& target, const ResolvedPen& pen, int rop2)
    : target_(target), pen_(pen) {
  const Pixmap& surface = *target.surface;
  const DcAttributes& dc = target.dc->attributes;
  const PixelValue pixel = PenPixel(surface, pen.color, dc.backgroundColor);
  dash_ = Rop2Masks(rop2, pixel);
  if (pen.transparentGaps || dc.backgroundMode == TRANSPARENT) {
    gap_ = RopMasks{~PixelValue{0}, 0};
  } else {
    gap_ = Rop2Masks(rop2, GapPixel(surface, pen.color, pixel, dc.backgroundColor));
  }
}

void Stroker::Polyline(const POINT* points, std::size_t count, bool closed) const {
  if (pen_.kind == ResolvedPen::Kind::Wide) {
    CoverageMask mask(WideBounds(points, count));
    Polyline(points, count, closed, &mask);
    PaintMask(mask);
    return;
  }
  Polyline(points, count, closed, nullptr);
}

void Stroker::Polyline(const POINT* points, std::size_t count, bool closed,
                       CoverageMask* mask) const {
  if (count < 2 || pen_.kind == ResolvedPen::Kind::Null) return;
  if (pen_.kind != ResolvedPen::Kind::Wide) {
    CosmeticLine line(*target_.surface, dash_, gap_,
                      pen_.kind == ResolvedPen::Kind::Dashed ? pen_.dashes : nullptr);
    for (std::size_t i = 0; i + 1 < count; ++i) line.Draw(points[i], points[i + 1]);
    if (closed) line.Draw(points[count - 1], points[0]);
    return;
  }
  if (mask == nullptr) return;
  // Repeated points at either end add nothing; a lone point still gets its round dot.
  while (count > 2 && points[0].x == points[1].x && points[0].y == points[1].y) {
    ++points;
    --count;
  }
  while (count > 2 && points[count - 1].x == points[count - 2].x &&
         points[count - 1].y == points[count - 2].y) {
    --count;
  }
  // Ends and joins are all round: the same disc at every vertex.
  const int w = pen_.width;
  const std::vector<RegionBand> disc =
      EllipticRegion(-(w / 2), -(w / 2), (w + 1) / 2 + 1, (w + 1) / 2 + 1);
  for (std::size_t i = 0; i < count; ++i) AddBands(*mask, disc, points[i].x, points[i].y);
  for (std::size_t i = 0; i + 1 < count; ++i) AddWideSegment(*mask, points[i], points[i + 1], w);
  if (closed) AddWideSegment(*mask, points[count - 1], points[0], w);
}

RECT Stroker::WideBounds(const POINT* points, std::size_t count) const {
  if (count == 0) return RECT{0, 0, 0, 0};
  long long left = points[0].x, top = points[0].y, right = left, bottom = top;
  for (std::size_t i = 1; i < count; ++i) {
    left = std::min<long long>(left, points[i].x);
    right = std::max<long long>(right, points[i].x);
    top = std::min<long long>(top, points[i].y);
    bottom = std::max<long long>(bottom, points[i].y);
  }
  const long long reach = pen_.width + 2;
  const Pixmap& surface = *target_.surface;
  return RECT{static_cast<LONG>(std::clamp<long long>(left - reach, 0, surface.Width())),
              static_cast<LONG>(std::clamp<long long>(top - reach, 0, surface.Height())),
              static_cast<LONG>(std::clamp<long long>(right + reach + 1, 0, surface.Width())),
              static_cast<LONG>(std::clamp<long long>(bottom + reach + 1, 0, surface.Height()))};
}

void Stroker::PaintMask(const CoverageMask& mask) const {
  mask.ForEachSpan([this](int y, int left, int right) {
    MixSpan(*target_.surface, y, left, right, dash_);
  });
}

}  // namespace glyphon::win::soft
