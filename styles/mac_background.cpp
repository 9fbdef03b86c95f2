// The Mac face: the container's colour around a light grey body, so that the frame's rounded
// corners show the form behind the button.
#include "content/glyphon_constants.h"
#include "styles/canvas_steps.h"
#include "styles/look_painters.h"
#include "surface/canvas.h"
#include "surface/named_colors.h"

namespace glyphon {

namespace {

constexpr win::COLORREF kFace = win::RGB(221, 221, 221);

// A flat body with a black outline whose corner pixels are stepped in.
void PaintDisabledBody(Canvas& canvas, int w, int h) {
  canvas.FillRectangle(1, 1, w - 1, h - 1, kFace);
  canvas.DrawLine(2, 0, w - 2, 0, kBlack);
  canvas.DrawLine(0, 2, 0, h - 2, kBlack);
  canvas.DrawLine(w - 1, 2, w - 1, h - 2, kBlack);
  canvas.DrawLine(2, h - 1, w - 2, h - 1, kBlack);
  DrawPixelAt(canvas, 1, 1, kBlack);
  DrawPixelAt(canvas, w - 2, 1, kBlack);
  DrawPixelAt(canvas, 1, h - 2, kBlack);
  DrawPixelAt(canvas, w - 2, h - 2, kBlack);
}

}  // namespace

void PaintMacBackground(Canvas& canvas, const ButtonView& button, std::int32_t drawState) {
  canvas.BackColor(button.ContainerBackColor());
  canvas.Cls();
  const int w = canvas.Width();
  const int h = canvas.Height();
  if (!button.Enabled()) {
    PaintDisabledBody(canvas, w, h);
    return;
  }
  switch (drawState) {
    case DrawStateHot:
    case DrawStateUp:
      // The frame's raised edges take the two rows and columns beyond this.
      canvas.FillRectangle(1, 1, w - 3, h - 3, kFace);
      break;
    case DrawStateDown:
      canvas.FillRectangle(1, 1, w - 1, h - 1, kFace);
      break;
    default:
      break;
  }
}

}  // namespace glyphon
