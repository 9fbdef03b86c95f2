#include "styles/frame_rings.h"

#include "surface/canvas.h"

namespace glyphon {

namespace {
constexpr int kSolidPen = 0;
constexpr int kDottedPen = 2;
}  // namespace

void DrawRing(Canvas& canvas, FrameRect& area, win::OLE_COLOR color) {
  canvas.DrawRect(area.L(), area.T(), area.R(), area.B(), color);
  area.Shrink(1);
}

void DrawDesignTimeRing(Canvas& canvas, FrameRect& area, win::OLE_COLOR color) {
  canvas.DrawStyle(kDottedPen);
  canvas.DrawRect(area.L(), area.T(), area.R(), area.B(), color);
  canvas.DrawStyle(kSolidPen);
  area.Shrink(1);
}

}  // namespace glyphon
