#include "styles/style_painters.h"

#include "content/glyphon_constants.h"
#include "styles/look_painters.h"
#include "surface/canvas.h"

namespace glyphon {

namespace {

// The two classic looks draw everything but the flat face in their frames.
void PaintFlatBackground(Canvas& canvas, const ButtonView& button) {
  canvas.BackColor(button.BackColor());
  canvas.Cls();
}

}  // namespace

void PaintBackground(Canvas& canvas, const ButtonView& button, std::int32_t drawState) {
  switch (button.Style()) {
    case zonStyleWin9x:
    case zonStyleWin3x:
      PaintFlatBackground(canvas, button);
      break;
    case zonStyleWinXPBlue:
      PaintXPBackground(canvas, button, drawState, XPScheme::Blue);
      break;
    case zonStyleWinXPOliveGreen:
      PaintXPBackground(canvas, button, drawState, XPScheme::OliveGreen);
      break;
    case zonStyleWinXPSilver:
      PaintXPSilverBackground(canvas, button, drawState);
      break;
    case zonStyleMac8x:
      PaintMacBackground(canvas, button, drawState);
      break;
    default:
      break;
  }
}

void PaintFrame(Canvas& canvas, const ButtonView& button, std::int32_t drawState) {
  switch (button.Style()) {
    case zonStyleWin9x:
      PaintWin9xFrame(canvas, button, drawState);
      break;
    case zonStyleWin3x:
      PaintWin3xFrame(canvas, button, drawState);
      break;
    case zonStyleWinXPBlue:
      PaintXPFrame(canvas, button, drawState, XPScheme::Blue);
      break;
    case zonStyleWinXPOliveGreen:
      PaintXPFrame(canvas, button, drawState, XPScheme::OliveGreen);
      break;
    case zonStyleWinXPSilver:
      PaintXPFrame(canvas, button, drawState, XPScheme::Silver);
      break;
    case zonStyleMac8x:
      PaintMacFrame(canvas, button, drawState);
      break;
    default:
      break;
  }
}

}  // namespace glyphon
