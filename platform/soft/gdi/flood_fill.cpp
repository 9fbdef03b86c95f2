// ExtFloodFill.
#include <vector>

#include "platform/soft/gdi/coverage.h"
#include "platform/soft/gdi/raster.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

// Fills the 4-connected area around (x, y) with the DC's brush under its ROP2: the pixels that
// differ from the colour (FLOODFILLBORDER) or equal it (FLOODFILLSURFACE). The whole area is found
// before anything is painted, with an explicit stack of row seeds rather than recursion.
BOOL SoftEngine::ExtFloodFill(HDC hdc, int x, int y, COLORREF color, UINT type) {
  const RasterTarget target = ResolveTarget(*this, hdc);
  if (!target || !target.surface->Contains(x, y)) return FALSE;
  const Pixmap& surface = *target.surface;
  const PixelValue pixel = DevicePixel(surface, color);
  const bool border = type == FLOODFILLBORDER;
  CoverageMask area(RECT{0, 0, surface.Width(), surface.Height()});
  auto open = [&](int px, int py) {
    return !area.Contains(px, py) && (surface.GetPixel(px, py) == pixel) != border;
  };
  if (!open(x, y)) return FALSE;

  struct Seed {
    int x, y;
  };
  std::vector<Seed> seeds{{x, y}};
  while (!seeds.empty()) {
    const Seed seed = seeds.back();
    seeds.pop_back();
    if (!open(seed.x, seed.y)) continue;
    int left = seed.x, right = seed.x + 1;
    while (left > 0 && open(left - 1, seed.y)) --left;
    while (right < surface.Width() && open(right, seed.y)) ++right;
    area.AddSpan(seed.y, left, right);
    // One seed per open run on the rows above and below.
    for (const int row : {seed.y - 1, seed.y + 1}) {
      if (row < 0 || row >= surface.Height()) continue;
      for (int px = left; px < right; ++px) {
        if (!open(px, row)) continue;
        seeds.push_back(Seed{px, row});
        while (px + 1 < right && open(px + 1, row)) ++px;
      }
    }
  }
  const BrushPixels brush(Brush(target.dc->attributes.brush), target);
  const int rop2 = target.dc->attributes.rop2;
  area.ForEachSpan([&](int row, int left, int right) {
    BrushSpan(*target.surface, row, left, right, brush, rop2);
  });
  return TRUE;
}

}  // namespace glyphon::win::soft
