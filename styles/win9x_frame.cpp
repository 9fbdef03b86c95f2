// The Win9x frame: a two-pixel raised bevel, a black ring around a default button, a flat sunken
// frame when pressed, and the focus rectangle inside whatever was drawn.
#include "content/glyphon_constants.h"
#include "styles/frame_rings.h"
#include "styles/look_painters.h"
#include "surface/canvas.h"

namespace glyphon {

namespace {

void DrawRaisedBevel(Canvas& canvas, const ButtonView& button, FrameRect& area) {
  const int l = area.L();
  const int t = area.T();
  const int r = area.R();
  const int b = area.B();
  canvas.DrawLine(l, t, r, t, button.HighlightColor());
  canvas.DrawLine(l, t, l, b, button.HighlightColor());
  canvas.DrawLine(r - 2, t + 1, r - 2, b, button.ShadowColor());
  canvas.DrawLine(r - 1, t, r - 1, b, button.BorderColor());
  canvas.DrawLine(l + 1, b - 2, r - 1, b - 2, button.ShadowColor());
  canvas.DrawLine(l, b - 1, r, b - 1, button.BorderColor());
  // The focus rectangle sits inside the bevel, one pixel clear of its dark edges.
  area.Shrink(2);
  ++area.right;
  ++area.bottom;
}

void DrawSunkenFrame(Canvas& canvas, const ButtonView& button, FrameRect& area) {
  canvas.DrawRect(area.L(), area.T(), area.R(), area.B(), button.ShadowColor());
  // The focus rectangle follows the pressed content one pixel right and down.
  area.Shrink(3);
  --area.right;
  --area.bottom;
}

}  // namespace

void PaintWin9xFrame(Canvas& canvas, const ButtonView& button, std::int32_t drawState) {
  if (button.SuppressRedraw()) return;
  FrameRect area(canvas.Width(), canvas.Height());
  const bool flat = button.PushLook() == 0;
  if (button.BorderStyle() != zonBorderSingle) {
    if (flat && !button.UserMode()) DrawDesignTimeRing(canvas, area, button.BorderColor());
  } else if (flat) {
    DrawRing(canvas, area, button.BorderColor());
  }

  const bool defaultLook = HasDefaultLook(button);
  if (flat) {
    if (defaultLook) DrawRing(canvas, area, button.BorderColor());
    area.Shrink(1);
  } else if (drawState == DrawStateUp || drawState == DrawStateHot) {
    if (defaultLook) DrawRing(canvas, area, button.BorderColor());
    DrawRaisedBevel(canvas, button, area);
  } else if (drawState == DrawStateDown) {
    if (defaultLook) DrawRing(canvas, area, button.BorderColor());
    DrawSunkenFrame(canvas, button, area);
  }

  if (button.Enabled() && button.ShowFocus() && button.HasFocus()) {
    canvas.ForeColor(button.ForeColor());
    canvas.DrawFocusRect(area.L(), area.T(), area.R(), area.B());
  }
}

}  // namespace glyphon
