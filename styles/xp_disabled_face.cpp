#include "styles/xp_disabled_face.h"

#include "styles/canvas_steps.h"
#include "styles/xp_outline.h"
#include "surface/canvas.h"

namespace glyphon {

void PaintXPDisabledFace(Canvas& canvas, const ButtonView& button, BackgroundRect& area,
                         const XPDisabledColors& colors) {
  const int w = area.width;
  const int h = area.height;
  DrawXPRoundedOutline(canvas, button, w, h, colors.rect, colors.line);

  area.Shrink(1);
  canvas.FillRectangle(area.L(), area.T(), area.R(), area.B(), colors.fill);
  DrawPixelAt(canvas, 1, 1, colors.cornerOuter);
  DrawPixelAt(canvas, w - 2, 1, colors.cornerOuter);
  DrawPixelAt(canvas, 1, h - 2, colors.cornerOuter);
  DrawPixelAt(canvas, w - 2, h - 2, colors.cornerOuter);
  DrawPixelAt(canvas, 2, 1, colors.cornerInner);
  DrawPixelAt(canvas, 1, 2, colors.cornerInner);
  DrawPixelAt(canvas, w - 3, 1, colors.cornerInner);
  DrawPixelAt(canvas, w - 2, 2, colors.cornerInner);
  DrawPixelAt(canvas, 1, h - 3, colors.cornerInner);
  DrawPixelAt(canvas, 2, h - 2, colors.cornerInner);
  DrawPixelAt(canvas, w - 2, h - 3, colors.cornerInner);
  DrawPixelAt(canvas, w - 3, h - 2, colors.cornerInner);
}

}  // namespace glyphon
