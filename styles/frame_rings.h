// One-pixel outlines around a frame's working rectangle, each followed by a step inside it.
#pragma once

#include "platform/win32_types.h"
#include "styles/margins.h"

namespace glyphon {

class Canvas;

// A solid outline in color (the default ring, a single border).
void DrawRing(Canvas& canvas, FrameRect& area, win::OLE_COLOR color);

// A dotted outline in color, which keeps a borderless button visible on a form being designed.
// The canvas is left with a solid pen.
void DrawDesignTimeRing(Canvas& canvas, FrameRect& area, win::OLE_COLOR color);

}  // namespace glyphon
