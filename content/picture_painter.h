// The state picture: the plain or keyed copy, the PictureStyle look, the drop shadow and the
// disabled looks of each style. Failing steps are skipped; painting never throws.
#pragma once

#include <cstdint>

#include "content/button_view.h"

namespace glyphon {

class Canvas;

// Where the picture goes and its size in pixels.
struct PictureBox {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

void PaintButtonPicture(Canvas& canvas, const ButtonView& button, const PictureBox& box,
                        const StdPicture& picture, std::int32_t drawState);

// The colour of the drop shadow and of the main pass of the embossed disabled picture.
win::OLE_COLOR PictureShadowColor(const ButtonView& button);

}  // namespace glyphon
