// The core of a block transfer, for the engine's own users of it (icons) that read from pixmaps
// not selected into any DC.
#pragma once

#include "platform/soft/gdi/blit_geometry.h"
#include "platform/soft/gdi/raster.h"
#include "platform/soft/gdi/stretch.h"

namespace glyphon::win::soft {

// Where a transfer reads: a surface, whether it is a monochrome device bitmap, and the
// background colour (plain RGB) that colour-to-monochrome conversion compares with.
struct TransferSource {
  const Pixmap* surface = nullptr;
  bool deviceMonochrome = false;
  COLORREF background = RGB(255, 255, 255);
};

// A StretchBlt from `from` into a DC, using that DC's colours, brush and stretch mode.
BOOL TransferToTarget(const SoftEngine& engine, const RasterTarget& to, BlitSide dst,
                      const TransferSource& from, BlitSide src, DWORD rop);

// The raw values of an area of a surface.
PixelBlock ReadBlock(const Pixmap& surface, const RECT& area);

}  // namespace glyphon::win::soft
