// A sheet that shows what the drawing surfaces paint: gradients, 3-D rectangles, the pen dash
// styles, hatch fills, rounded rectangles, a focus rectangle and a masked DIB copy.
#pragma once

#include "surface/canvas.h"

namespace glyphon::apps {

inline constexpr int kSampleSheetWidth = 320;
inline constexpr int kSampleSheetHeight = 176;

// Paints the sheet onto a canvas of at least kSampleSheetWidth x kSampleSheetHeight.
void PaintSampleSheet(Canvas& canvas);

}  // namespace glyphon::apps
