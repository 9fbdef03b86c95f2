// The rounded outline every XP look draws round its face: a soft rectangle, the edge lines cut
// short at the corners, and corner pixels in the container's colour.
#pragma once

#include "content/button_view.h"
#include "platform/win32_types.h"

namespace glyphon {

class Canvas;

void DrawXPRoundedOutline(Canvas& canvas, const ButtonView& button, int w, int h,
                          win::COLORREF soft, win::COLORREF edge);

}  // namespace glyphon
