#include "styles/xp_outline.h"

#include "styles/canvas_steps.h"
#include "surface/canvas.h"

namespace glyphon {

void DrawXPRoundedOutline(Canvas& canvas, const ButtonView& button, int w, int h,
                          win::COLORREF soft, win::COLORREF edge) {
  canvas.DrawRect(0, 0, w, h, soft);
  canvas.DrawLine(2, 0, w - 2, 0, edge);
  canvas.DrawLine(0, 2, 0, h - 2, edge);
  canvas.DrawLine(w - 1, 2, w - 1, h - 2, edge);
  canvas.DrawLine(2, h - 1, w - 2, h - 1, edge);
  // The container's colour is asked for each corner, so each shows what the container is now.
  DrawPixelAt(canvas, 0, 0, button.ContainerBackColor());
  DrawPixelAt(canvas, w - 1, 0, button.ContainerBackColor());
  DrawPixelAt(canvas, 0, h - 1, button.ContainerBackColor());
  DrawPixelAt(canvas, w - 1, h - 1, button.ContainerBackColor());
}

}  // namespace glyphon
