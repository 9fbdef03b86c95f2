#include "styles/xp_disabled_face.h"

#include "styles/canvas_steps.h"
#include "surface/canvas.h"

namespace glyphon {

void PaintXPDisabledFace(Canvas& canvas, const ButtonView& button, BackgroundRect& area,
                         const XPDisabledColors& colors) {
  const int w = area.width;
  const int h = area.height;
  canvas.DrawRect(area.L(), area.T(), area.R(), area.B(), colors.rect);
  canvas.DrawLine(2, 0, w - 2, 0, colors.line);
  canvas.DrawLine(0, 2, 0, h - 2, colors.line);
  canvas.DrawLine(w - 1, 2, w - 1, h - 2, colors.line);
  canvas.DrawLine(2, h - 1, w - 2, h - 1, colors.line);
  // The container's colour is asked for each corner, so each shows what the container is now.
  DrawPixelAt(canvas, 0, 0, button.ContainerBackColor());
  DrawPixelAt(canvas, w - 1, 0, button.ContainerBackColor());
  DrawPixelAt(canvas, 0, h - 1, button.ContainerBackColor());
  DrawPixelAt(canvas, w - 1, h - 1, button.ContainerBackColor());

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
