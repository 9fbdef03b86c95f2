// Closed shapes outlined with a pen and filled with a brush, shared by the GDI shape calls and by
// USER's focus rectangle.
#pragma once

#include "platform/soft/gdi/raster.h"
#include "platform/soft/gdi/stroke.h"

namespace glyphon::win::soft {

// Rectangle: outline through the corners' pixels, right and bottom exclusive; the interior
// between the pen's inner edges. With a null pen the filled area loses its last row and column.
void DrawRectangle(const RasterTarget& target, const ResolvedPen& pen, const BrushPixels& brush,
                   int rop2, int left, int top, int right, int bottom);

// Rounded rectangle with an ellipseWidth x ellipseHeight corner ellipse; corners of 2 pixels or
// less give DrawRectangle. False when the corners are too large to compute.
bool DrawRoundRect(const RasterTarget& target, const ResolvedPen& pen, const BrushPixels& brush,
                   int rop2, int left, int top, int right, int bottom, long long ellipseWidth,
                   long long ellipseHeight);

}  // namespace glyphon::win::soft
