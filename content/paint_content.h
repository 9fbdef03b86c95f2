// The content pass of a repaint: caption and picture, between background and frame.
#pragma once

#include <cstdint>

#include "content/button_view.h"

namespace glyphon {

class Canvas;

void PaintContent(Canvas& canvas, const ButtonView& button, std::int32_t drawState);

}  // namespace glyphon
