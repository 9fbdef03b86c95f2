// The Silver XP face: two gradients meeting at half height, a state ring around them, and one
// darkening gradient when pressed.
#include "content/glyphon_constants.h"
#include "styles/canvas_steps.h"
#include "styles/look_painters.h"
#include "styles/xp_disabled_face.h"
#include "surface/canvas.h"
#include "surface/named_colors.h"

namespace glyphon {

namespace {

constexpr win::COLORREF kFaceTop = kWhite;
constexpr win::COLORREF kFaceMiddle = win::RGB(231, 231, 247);
constexpr win::COLORREF kFaceBottom = win::RGB(173, 170, 189);
constexpr win::COLORREF kRingDefaultTop = win::RGB(206, 231, 255);
constexpr win::COLORREF kRingDefaultBottom = win::RGB(107, 130, 239);
constexpr win::COLORREF kRingHotTop = win::RGB(255, 219, 140);
constexpr win::COLORREF kRingHotBottom = win::RGB(231, 150, 0);

// The two halves of the face, from left to right and from top to bottom; they meet at middle.
void PaintFace(Canvas& canvas, int left, int top, int right, int middle, int bottom) {
  GradientTopToBottom(canvas, left, top, right, middle, kFaceTop, kFaceMiddle);
  GradientTopToBottom(canvas, left, middle, right, bottom, kFaceMiddle, kFaceBottom);
}

}  // namespace

void PaintXPSilverBackground(Canvas& canvas, const ButtonView& button, std::int32_t drawState) {
  BackgroundRect area(canvas.Width(), canvas.Height());
  if (!button.Enabled()) {
    PaintXPDisabledFace(canvas, button, area, kXPBlueDisabled);
    return;
  }
  area.Shrink(1);
  const int l = area.L();
  const int t = area.T();
  const int r = area.R();
  const int b = area.B();
  const int middle = area.height / 2;
  const bool defaultLook = HasDefaultLook(button);
  switch (drawState) {
    case DrawStateHot:
      if (defaultLook) {
        GradientTopToBottom(canvas, l, t, r, b - 1, kRingDefaultTop, kRingDefaultBottom);
        // The face below covers these lines again.
        canvas.DrawLine(l + 2, t + 2, l + 2, b - 2, kWhite);
        canvas.DrawLine(r - 3, t + 2, r - 3, b - 2, kWhite);
      } else {
        GradientTopToBottom(canvas, l, t, r, b - 1, kRingHotTop, kRingHotBottom);
      }
      PaintFace(canvas, l + 2, t + 2, r - 2, middle, b - 3);
      break;
    case DrawStateDown:
      GradientTopToBottom(canvas, l, t, r, b - 1, kFaceBottom, kFaceMiddle);
      break;
    case DrawStateUp:
      if (defaultLook) {
        GradientTopToBottom(canvas, l, t, r, b - 1, kRingDefaultTop, kRingDefaultBottom);
        PaintFace(canvas, l + 2, t + 2, r - 2, middle, b - 3);
      } else {
        PaintFace(canvas, l, t, r, middle, b - 1);
        canvas.DrawLine(l, t, l, b - 2, kWhite);
        canvas.DrawLine(r - 1, t, r - 1, b - 2, kWhite);
      }
      break;
    default:
      break;
  }
}

}  // namespace glyphon
