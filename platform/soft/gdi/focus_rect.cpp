// USER's DrawFocusRect.
#include "platform/soft/gdi/shapes.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

// The outline of the rectangle with a pen that inverts every other pixel and no fill, the dots
// counted from the top right corner; drawing it again restores what was there.
BOOL SoftEngine::DrawFocusRect(HDC hdc, const RECT* rect) {
  if (rect == nullptr || Dc(hdc) == nullptr) return FALSE;
  const RasterTarget target = ResolveTarget(*this, hdc);
  if (target) {
    DrawRectangle(target, AlternatePen(RGB(0, 0, 0)), BrushPixels(nullptr, target), R2_NOT,
                  rect->left, rect->top, rect->right, rect->bottom);
  }
  return TRUE;
}

}  // namespace glyphon::win::soft
