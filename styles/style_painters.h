// The two style passes of a repaint: the face before the content, the frame over it. A Style
// outside the six looks paints nothing. A container that cannot report its back colour ends the
// pass with AutomationError; the repaint guards each pass.
#pragma once

#include <cstdint>

#include "content/button_view.h"

namespace glyphon {

class Canvas;

void PaintBackground(Canvas& canvas, const ButtonView& button, std::int32_t drawState);
void PaintFrame(Canvas& canvas, const ButtonView& button, std::int32_t drawState);

}  // namespace glyphon
