// The Win3x frame: a one-pixel outline with cut-off corners, a ring around a default button and a
// double-width raised bevel, or just a two-sided shadow when pressed. No focus rectangle.
#include "content/glyphon_constants.h"
#include "styles/frame_rings.h"
#include "styles/look_painters.h"
#include "surface/canvas.h"

namespace glyphon {

namespace {

// Straight runs in the border colour; the corner pixels keep the container's colour.
void DrawCutCornerOutline(Canvas& canvas, const ButtonView& button, FrameRect& area) {
  const int w = area.width;
  const int h = area.height;
  canvas.DrawRect(0, 0, w, h, button.ContainerBackColor());
  const win::OLE_COLOR border = button.BorderColor();
  canvas.DrawLine(1, 0, w - 1, 0, border);
  canvas.DrawLine(0, 1, 0, h - 1, border);
  canvas.DrawLine(w - 1, 1, w - 1, h - 1, border);
  canvas.DrawLine(1, h - 1, w - 1, h - 1, border);
  area.Shrink(1);
}

// Light edges two pixels wide on the top and left, dark ones over the right and bottom.
void DrawDoubleBevel(Canvas& canvas, const ButtonView& button, const FrameRect& area) {
  const int l = area.L();
  const int t = area.T();
  const int r = area.R();
  const int b = area.B();
  const win::OLE_COLOR light = button.HighlightColor();
  canvas.DrawRect(l, t, r, b, light);
  canvas.DrawLine(l + 1, t, l + 1, b, light);
  canvas.DrawLine(l, t + 1, r, t + 1, light);
  const win::OLE_COLOR dark = button.ShadowColor();
  canvas.DrawLine(l, b - 1, r, b - 1, dark);
  canvas.DrawLine(l + 1, b - 2, r, b - 2, dark);
  canvas.DrawLine(r - 1, t, r - 1, b, dark);
  canvas.DrawLine(r - 2, t + 1, r - 2, b, dark);
}

void DrawPressedShadow(Canvas& canvas, const ButtonView& button, const FrameRect& area) {
  const win::OLE_COLOR dark = button.ShadowColor();
  canvas.DrawLine(area.L(), area.T(), area.R(), area.T(), dark);
  canvas.DrawLine(area.L(), area.T(), area.L(), area.B(), dark);
}

}  // namespace

void PaintWin3xFrame(Canvas& canvas, const ButtonView& button, std::int32_t drawState) {
  if (button.SuppressRedraw()) return;
  FrameRect area(canvas.Width(), canvas.Height());
  const bool defaultLook = HasDefaultLook(button);
  if (button.BorderStyle() == zonBorderSingle) {
    DrawCutCornerOutline(canvas, button, area);
    if (defaultLook) DrawRing(canvas, area, button.BorderColor());
  } else if (button.BorderStyle() == zonBorderNone) {
    if (!button.UserMode()) DrawDesignTimeRing(canvas, area, button.BorderColor());
    if (defaultLook) DrawRing(canvas, area, button.BorderColor());
  }

  if (drawState == DrawStateUp || drawState == DrawStateHot) {
    DrawDoubleBevel(canvas, button, area);
  } else if (drawState == DrawStateDown && button.PushLook() == 1) {
    DrawPressedShadow(canvas, button, area);
  }
}

}  // namespace glyphon
