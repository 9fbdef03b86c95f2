// LineTo.
#include "platform/soft/gdi/raster.h"
#include "platform/soft/gdi/stroke.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

BOOL SoftEngine::LineTo(HDC hdc, int x, int y) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr) return FALSE;
  DcAttributes& a = dc->attributes;
  const RasterTarget target = ResolveTarget(*this, hdc);
  const PenObject* pen = Pen(a.pen);
  if (target && pen != nullptr) {
    // Each call starts the dash pattern afresh.
    const POINT points[2] = {a.position, POINT{x, y}};
    Stroker(target, ResolvePen(*pen), a.rop2).Polyline(points, 2, false);
  }
  a.position = POINT{x, y};
  return TRUE;
}

}  // namespace glyphon::win::soft
