// SetPixel, SetPixelV and GetPixel.
#include "platform/soft/gdi/raster.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

// The colour is mapped to the surface without the monochrome pen rule, and mixed under the DC's
// ROP2; the result is the colour that mapping gives.
COLORREF SoftEngine::SetPixel(HDC hdc, int x, int y, COLORREF color) {
  const RasterTarget target = ResolveTarget(*this, hdc);
  if (!target || !target.surface->Contains(x, y)) return CLR_INVALID;
  Pixmap& surface = *target.surface;
  const PixelValue pixel = DevicePixel(surface, color);
  MixPixel(surface, x, y, Rop2Masks(target.dc->attributes.rop2, pixel));
  return surface.PixelToColor(pixel);
}

BOOL SoftEngine::SetPixelV(HDC hdc, int x, int y, COLORREF color) {
  return SetPixel(hdc, x, y, color) != CLR_INVALID ? TRUE : FALSE;
}

COLORREF SoftEngine::GetPixel(HDC hdc, int x, int y) {
  const RasterTarget target = ResolveTarget(*this, hdc);
  if (!target || !target.surface->Contains(x, y)) return CLR_INVALID;
  return target.surface->PixelToColor(target.surface->GetPixel(x, y));
}

}  // namespace glyphon::win::soft
