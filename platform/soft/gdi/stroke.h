// Pens resolved for one drawing call, and the strokes they make along polylines. Cosmetic
// one-pixel pens paint straight onto the surface, segment by segment, the last point of each
// segment left out; wide pens first collect their whole outline (segments, round ends and round
// joins) in a coverage mask, so overlapping parts paint once.
#pragma once

#include <cstddef>

#include "platform/soft/gdi/coverage.h"
#include "platform/soft/gdi/raster.h"

namespace glyphon::win::soft {

struct DashPattern {
  int count;
  int dashes[6];
  int total;
};

struct ResolvedPen {
  enum class Kind { Null, Solid, Dashed, Wide };
  Kind kind = Kind::Solid;
  int width = 1;  // device width; 0 for the null pen
  bool insideFrame = false;
  COLORREF color = 0;
  const DashPattern* dashes = nullptr;  // Kind::Dashed only
  bool transparentGaps = false;         // extended pens leave their gaps alone in any mode
};

ResolvedPen ResolvePen(const PenObject& pen);

// The extended cosmetic pen that alternates one pixel on, one off.
ResolvedPen AlternatePen(COLORREF color);

// Strokes polylines with one pen under one ROP2 mix. The dash pattern restarts with every
// Polyline call and runs on across its segments.
class Stroker {
 public:
  Stroker(const RasterTarget& target, const ResolvedPen& pen, int rop2);

  // For wide pens: adds the outline to mask instead of painting it.
  void Polyline(const POINT* points, std::size_t count, bool closed, CoverageMask* mask) const;
  void Polyline(const POINT* points, std::size_t count, bool closed) const;

  // The part of the surface a wide outline through these points can reach.
  RECT WideBounds(const POINT* points, std::size_t count) const;

  // Paints a collected wide outline.
  void PaintMask(const CoverageMask& mask) const;

 private:
  RasterTarget target_;
  ResolvedPen pen_;
  RopMasks dash_;  // the pen's own pixels
  RopMasks gap_;   // the gaps between dashes
};

}  // namespace glyphon::win::soft
