// Rectangle, RoundRect and Ellipse.
#include "platform/soft/gdi/shapes.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

#include "platform/soft/gdi/coverage.h"
#include "platform/soft/gdi/region_shapes.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

namespace {

struct Box {
  long long left, top, right, bottom;
};

// The device rectangle a pen outlines: normalised, and pulled in by half the pen width for
// PS_INSIDEFRAME so the whole stroke stays inside. False when it has no area to begin with.
bool PenBox(const ResolvedPen& pen, int left, int top, int right, int bottom, Box& box) {
  box = Box{std::min(left, right), std::min(top, bottom), std::max(left, right),
            std::max(top, bottom)};
  if (box.left == box.right || box.top == box.bottom) return false;
  if (pen.insideFrame) {
    box.left += pen.width / 2;
    box.top += pen.width / 2;
    box.right -= (pen.width - 1) / 2;
    box.bottom -= (pen.width - 1) / 2;
  }
  return true;
}

POINT Point(long long x, long long y) {
  return POINT{static_cast<LONG>(x), static_cast<LONG>(y)};
}

RECT Union(const RECT& a, const RECT& b) {
  if (IsEmptyRect(a)) return b;
  if (IsEmptyRect(b)) return a;
  return RECT{std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
              std::max(a.bottom, b.bottom)};
}

RECT ClippedBox(const Pixmap& surface, const Box& box) {
  auto clamp = [](long long v, int high) {
    return static_cast<LONG>(std::clamp<long long>(v, 0, high));
  };
  return RECT{clamp(box.left, surface.Width()), clamp(box.top, surface.Height()),
              clamp(box.right, surface.Width()), clamp(box.bottom, surface.Height())};
}

void PaintWithBrush(const RasterTarget& target, const CoverageMask& mask, const BrushPixels& brush,
                    int rop2) {
  mask.ForEachSpan([&](int y, int left, int right) {
    BrushSpan(*target.surface, y, left, right, brush, rop2);
  });
}

// A wide outline and the interior it encloses paint once each: interior first, minus the outline.
template <class AddInterior>
void PaintWideShape(const RasterTarget& target, const Stroker& stroker, const POINT* outlinePoints,
                    std::size_t count, const Box& interiorBox, const BrushPixels& brush, int rop2,
                    AddInterior addInterior) {
  const RECT bounds = Union(stroker.WideBounds(outlinePoints, count),
                            ClippedBox(*target.surface, interiorBox));
  CoverageMask outline(bounds);
  stroker.Polyline(outlinePoints, count, true, &outline);
  if (!brush.PaintsNothing()) {
    CoverageMask interior(bounds);
    addInterior(interior);
    interior.Subtract(outline);
    PaintWithBrush(target, interior, brush, rop2);
  }
  stroker.PaintMask(outline);
}

}  // namespace

void DrawRectangle(const RasterTarget& target, const ResolvedPen& pen, const BrushPixels& brush,
                   int rop2, int left, int top, int right, int bottom) {
  Box box{};
  if (!PenBox(pen, left, top, right, bottom, box)) return;
  // The outline runs through the last column and row, anticlockwise from the top right.
  --box.right;
  --box.bottom;
  const std::array<POINT, 4> corners = {Point(box.right, box.top), Point(box.left, box.top),
                                        Point(box.left, box.bottom), Point(box.right, box.bottom)};
  const Stroker stroker(target, pen, rop2);
  if (pen.kind == ResolvedPen::Kind::Wide) {
    PaintWideShape(target, stroker, corners.data(), corners.size(), box, brush, rop2,
                   [&](CoverageMask& interior) {
      interior.AddRect(std::min(box.left, box.right), std::min(box.top, box.bottom),
                       std::max(box.left, box.right), std::max(box.top, box.bottom));
    });
    return;
  }
  stroker.Polyline(corners.data(), corners.size(), true);
  const long long inset = (pen.width + 1) / 2, outset = pen.width / 2;
  const long long l = box.left + inset, t = box.top + inset;
  const long long r = box.right - outset, b = box.bottom - outset;
  if (l >= r || t >= b) return;
  BrushRect(*target.surface, ClippedBox(*target.surface, Box{l, t, r, b}), brush, rop2);
}

bool DrawRoundRect(const RasterTarget& target, const ResolvedPen& pen, const BrushPixels& brush,
                   int rop2, int left, int top, int right, int bottom, long long ellipseWidth,
                   long long ellipseHeight) {
  Box box{};
  if (!PenBox(pen, left, top, right, bottom, box)) return true;
  const long long width = box.right - box.left, height = box.bottom - box.top;
  const long long ew = std::min(width, std::llabs(ellipseWidth));
  const long long eh = std::min(height, std::llabs(ellipseHeight));
  if (ew <= 2 || eh <= 2) {
    DrawRectangle(target, pen, brush, rop2, left, top, right, bottom);
    return true;
  }
  if (ew > kMaxEllipseExtent || eh > kMaxEllipseExtent) return false;

  // The outline: the first quadrant's curve placed in the top right corner, mirrored to the left
  // and then to the bottom; a middle point shared by both halves appears once.
  std::vector<POINT> quadrant = EllipseFirstQuadrant(static_cast<int>(ew), static_cast<int>(eh));
  const std::size_t count = quadrant.size();
  std::vector<POINT> points(4 * count);
  for (std::size_t i = 0; i < count; ++i) {
    points[i] = Point(box.right - ew + quadrant[i].x, box.top + eh - 1 - quadrant[i].y);
  }
  std::size_t end = 2 * count - 1;
  if (ew % 2 != 0 && ew == width) --end;
  for (std::size_t i = 0; i < count; ++i) {
    points[end - i] = Point(box.left + box.right - 1 - points[i].x, points[i].y);
  }
  const std::size_t half = end + 1;
  end = 2 * half - 1;
  if (eh % 2 != 0 && eh == height) --end;
  for (std::size_t i = 0; i < half; ++i) {
    points[end - i] = Point(points[i].x, box.top + box.bottom - 1 - points[i].y);
  }
  points.resize(end + 1);

  std::vector<RegionBand> interior;
  if (!brush.PaintsNothing()) {
    interior = RoundRectRegion(box.left, box.top, box.right + 1, box.bottom + 1, ew, eh);
  }
  const Stroker stroker(target, pen, rop2);
  if (pen.kind == ResolvedPen::Kind::Wide) {
    PaintWideShape(target, stroker, points.data(), points.size(), box, brush, rop2,
                   [&](CoverageMask& mask) { AddBands(mask, interior); });
    return true;
  }
  // A one-pixel outline is painted over the filled interior.
  for (const RegionBand& band : interior) {
    BrushRect(*target.surface, ClippedBox(*target.surface, Box{band.left, band.top, band.right,
                                                               band.bottom}),
              brush, rop2);
  }
  stroker.Polyline(points.data(), points.size(), true);
  return true;
}

namespace {

// Shape calls draw with the DC's pen, brush and mix.
template <class Draw>
BOOL WithDcTools(const SoftEngine& engine, HDC hdc, Draw draw) {
  const DcObject* dc = engine.Dc(hdc);
  if (dc == nullptr) return FALSE;
  const RasterTarget target = ResolveTarget(engine, hdc);
  if (!target) return TRUE;
  const PenObject* pen = engine.Pen(dc->attributes.pen);
  ResolvedPen resolved;
  if (pen != nullptr) {
    resolved = ResolvePen(*pen);
  } else {
    resolved.kind = ResolvedPen::Kind::Null;
    resolved.width = 0;
  }
  const BrushPixels brush(engine.Brush(dc->attributes.brush), target);
  return draw(target, resolved, brush, dc->attributes.rop2) ? TRUE : FALSE;
}

}  // namespace

BOOL SoftEngine::Rectangle(HDC hdc, int left, int top, int right, int bottom) {
  return WithDcTools(*this, hdc, [&](const RasterTarget& target, const ResolvedPen& pen,
                                     const BrushPixels& brush, int rop2) {
    DrawRectangle(target, pen, brush, rop2, left, top, right, bottom);
    return true;
  });
}

BOOL SoftEngine::RoundRect(HDC hdc, int left, int top, int right, int bottom, int ellipseWidth,
                           int ellipseHeight) {
  return WithDcTools(*this, hdc, [&](const RasterTarget& target, const ResolvedPen& pen,
                                     const BrushPixels& brush, int rop2) {
    return DrawRoundRect(target, pen, brush, rop2, left, top, right, bottom, ellipseWidth,
                         ellipseHeight);
  });
}

BOOL SoftEngine::Ellipse(HDC hdc, int left, int top, int right, int bottom) {
  return WithDcTools(*this, hdc, [&](const RasterTarget& target, const ResolvedPen& pen,
                                     const BrushPixels& brush, int rop2) {
    return DrawRoundRect(target, pen, brush, rop2, left, top, right, bottom,
                         static_cast<long long>(right) - left,
                         static_cast<long long>(bottom) - top);
  });
}

}  // namespace glyphon::win::soft
