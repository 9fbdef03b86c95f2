// One-pixel line segments as GDI rasterises them: a Bresenham walk whose rounding ties depend on
// the octant, the end point left out, and clipping done on the walk's own pixels so a segment far
// off the surface costs no more than its visible part. Dashed pens keep their place in the dash
// pattern from segment to segment.
#pragma once

#include "platform/soft/gdi/raster.h"
#include "platform/soft/gdi/stroke.h"

namespace glyphon::win::soft {

class CosmeticLine {
 public:
  // pattern is null for solid pens; gap paints the spaces between dashes.
  CosmeticLine(Pixmap& surface, const RopMasks& pen, const RopMasks& gap,
               const DashPattern* pattern);

  // Paints start up to, but not including, end.
  void Draw(POINT start, POINT end);

 private:
  struct DashState {
    int index = 0;
    long long left = 0;  // pixels left in the current dash or gap
    bool mark = true;    // in a dash rather than a gap
  };

  void Straight(long long from, long long to, long long fixed, bool horizontal);
  void Diagonal(POINT start, POINT end);
  void Skip(long long pixels);
  const RopMasks& Current() const { return dash_.mark ? pen_ : gap_; }

  Pixmap& surface_;
  RopMasks pen_;
  RopMasks gap_;
  const DashPattern* pattern_;
  DashState dash_;
};

}  // namespace glyphon::win::soft
