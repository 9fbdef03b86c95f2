// The Mac frame, pixel by pixel in fixed greys: a heavy rounded ring around a default button, then
// the body's black rounded outline with a light top-left and dark bottom-right bevel, inverted
// when pressed. It takes no colour from the button and draws no focus rectangle.
#include "content/glyphon_constants.h"
#include "styles/canvas_steps.h"
#include "styles/look_painters.h"
#include "styles/margins.h"
#include "surface/canvas.h"
#include "surface/named_colors.h"

namespace glyphon {

namespace {

constexpr win::COLORREF kGrey119 = win::RGB(119, 119, 119);
constexpr win::COLORREF kGrey136 = win::RGB(136, 136, 136);
constexpr win::COLORREF kGrey170 = win::RGB(170, 170, 170);
constexpr win::COLORREF kGrey187 = win::RGB(187, 187, 187);
constexpr win::COLORREF kGrey204 = win::RGB(204, 204, 204);
constexpr win::COLORREF kGrey221 = win::RGB(221, 221, 221);

// The ring takes the three outermost pixels of the canvas.
void DrawDefaultRing(Canvas& canvas, int w, int h) {
  canvas.DrawLine(3, 0, w - 3, 0, kBlack);
  canvas.DrawLine(0, 3, 0, h - 3, kBlack);
  canvas.DrawLine(w - 1, 3, w - 1, h - 3, kBlack);
  canvas.DrawLine(3, h - 1, w - 3, h - 1, kBlack);
  DrawPixelAt(canvas, 2, 1, kBlack);
  DrawPixelAt(canvas, 1, 2, kBlack);
  DrawPixelAt(canvas, w - 3, 1, kBlack);
  DrawPixelAt(canvas, w - 2, 2, kBlack);
  DrawPixelAt(canvas, 1, h - 3, kBlack);
  DrawPixelAt(canvas, 2, h - 2, kBlack);
  DrawPixelAt(canvas, w - 3, h - 2, kBlack);
  DrawPixelAt(canvas, w - 2, h - 3, kBlack);

  DrawPixelAt(canvas, w - 3, 2, kGrey187);
  DrawPixelAt(canvas, w - 4, 1, kGrey204);
  DrawPixelAt(canvas, 1, h - 4, kGrey204);

  canvas.DrawLine(3, 1, w - 4, 1, kGrey221);
  canvas.DrawLine(1, 3, 1, h - 4, kGrey221);
  DrawPixelAt(canvas, 2, 2, kGrey221);
  DrawPixelAt(canvas, 3, 2, kGrey221);
  DrawPixelAt(canvas, 2, 3, kGrey221);

  DrawPixelAt(canvas, 2, h - 3, kGrey187);
  DrawPixelAt(canvas, 3, h - 2, kGrey136);
  DrawPixelAt(canvas, w - 2, 3, kGrey136);

  canvas.DrawLine(w - 2, 4, w - 2, h - 3, kGrey119);
  canvas.DrawLine(4, h - 2, w - 3, h - 2, kGrey119);
  DrawPixelAt(canvas, w - 3, h - 3, kGrey119);
  DrawPixelAt(canvas, w - 3, h - 4, kGrey136);
  DrawPixelAt(canvas, w - 4, h - 3, kGrey136);

  canvas.DrawLine(4, 2, w - 3, 2, kGrey170);
  canvas.DrawLine(2, 4, 2, h - 2, kGrey170);
  canvas.DrawLine(w - 3, 3, w - 3, h - 4, kGrey170);
  canvas.DrawLine(3, h - 3, w - 4, h - 3, kGrey170);

  DrawPixelAt(canvas, 3, 3, kGrey170);
  DrawPixelAt(canvas, 4, 3, kGrey119);
  DrawPixelAt(canvas, 3, 4, kGrey119);
  DrawPixelAt(canvas, w - 4, 3, kGrey170);
  DrawPixelAt(canvas, w - 5, 3, kGrey119);
  DrawPixelAt(canvas, w - 4, 4, kGrey119);
  DrawPixelAt(canvas, 3, h - 5, kGrey119);
  DrawPixelAt(canvas, 3, h - 4, kGrey170);
  DrawPixelAt(canvas, 4, h - 4, kGrey119);
  DrawPixelAt(canvas, w - 4, h - 5, kGrey119);
  DrawPixelAt(canvas, w - 5, h - 4, kGrey119);
  DrawPixelAt(canvas, w - 4, h - 4, kGrey170);
}

// Body edges: l, t from the working rectangle's top-left, r, b its far edges (exclusive).
struct Body {
  int l;
  int t;
  int r;
  int b;
};

void DrawBodyOutline(Canvas& canvas, const Body& body) {
  const auto [l, t, r, b] = body;
  canvas.DrawLine(l + 2, t, r - 2, t, kBlack);
  canvas.DrawLine(l, t + 2, l, b - 2, kBlack);
  canvas.DrawLine(r - 1, t + 2, r - 1, b - 2, kBlack);
  canvas.DrawLine(l + 2, b - 1, r - 2, b - 1, kBlack);
  DrawPixelAt(canvas, l + 1, t + 1, kBlack);
  DrawPixelAt(canvas, r - 2, t + 1, kBlack);
  DrawPixelAt(canvas, l + 1, b - 2, kBlack);
  DrawPixelAt(canvas, r - 2, b - 2, kBlack);
}

void DrawRaisedBody(Canvas& canvas, const Body& body) {
  const auto [l, t, r, b] = body;
  canvas.DrawLine(l + 2, t + 1, r - 3, t + 1, kGrey221);
  canvas.DrawLine(l + 2, t + 2, r - 3, t + 2, kWhite);
  canvas.DrawLine(l + 2, t + 2, l + 2, b - 3, kWhite);
  DrawPixelAt(canvas, l + 3, t + 3, kWhite);

  DrawPixelAt(canvas, l + 1, t + 2, kGrey187);
  DrawPixelAt(canvas, l + 2, t + 1, kGrey187);
  DrawPixelAt(canvas, r - 3, t + 1, kGrey187);
  DrawPixelAt(canvas, r - 3, t + 2, kGrey221);
  DrawPixelAt(canvas, r - 2, t + 2, kGrey187);
  DrawPixelAt(canvas, l + 1, b - 3, kGrey187);
  DrawPixelAt(canvas, l + 2, b - 3, kGrey221);
  DrawPixelAt(canvas, l + 2, b - 2, kGrey187);

  canvas.DrawLine(r - 3, t + 3, r - 3, b - 3, kGrey170);
  canvas.DrawLine(r - 2, t + 3, r - 2, b - 2, kGrey119);
  canvas.DrawLine(l + 3, b - 3, r - 3, b - 3, kGrey170);
  canvas.DrawLine(l + 3, b - 2, r - 2, b - 2, kGrey119);

  DrawPixelAt(canvas, r - 4, b - 4, kGrey170);
  DrawPixelAt(canvas, r - 3, b - 4, kGrey170);
  DrawPixelAt(canvas, r - 3, b - 3, kGrey119);
}

void DrawPressedBody(Canvas& canvas, const Body& body) {
  const auto [l, t, r, b] = body;
  canvas.DrawLine(l + 2, t + 1, r - 2, t + 1, kGrey119);
  canvas.DrawLine(l + 1, t + 2, l + 1, b - 2, kGrey119);
  canvas.DrawLine(l + 2, t + 2, r - 1, t + 2, kGrey170);
  canvas.DrawLine(l + 2, t + 2, l + 2, b - 1, kGrey170);
  DrawPixelAt(canvas, l + 3, t + 3, kGrey187);
}

}  // namespace

void PaintMacFrame(Canvas& canvas, const ButtonView& button, std::int32_t drawState) {
  if (button.SuppressRedraw()) return;
  FrameRect area(canvas.Width(), canvas.Height());
  if (HasDefaultLook(button)) {
    DrawDefaultRing(canvas, area.width, area.height);
    area.Shrink(3);
  }
  const Body body{area.L(), area.T(), area.R(), area.B()};
  switch (drawState) {
    case DrawStateHot:
    case DrawStateUp:
      DrawBodyOutline(canvas, body);
      DrawRaisedBody(canvas, body);
      break;
    case DrawStateDown:
      DrawBodyOutline(canvas, body);
      DrawPressedBody(canvas, body);
      break;
    default:
      break;
  }
}

}  // namespace glyphon
