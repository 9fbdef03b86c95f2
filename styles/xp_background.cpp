// The Blue and Olive Green XP faces: a coloured ring that tells the state around a white-to-cream
// face and foot, or a sunken shaded face when pressed.
#include "content/glyphon_constants.h"
#include "styles/canvas_steps.h"
#include "styles/look_painters.h"
#include "styles/xp_disabled_face.h"
#include "surface/canvas.h"

namespace glyphon {

namespace {

struct XPFaceColors {
  win::COLORREF ringDefaultTop;
  win::COLORREF ringDefaultBottom;
  win::COLORREF ringHotTop;
  win::COLORREF ringHotBottom;
  win::COLORREF faceTop;
  win::COLORREF faceBottom;
  win::COLORREF footBottom;
  win::COLORREF pressedDark;
  win::COLORREF pressedLight;
  win::COLORREF pressedFill;
  XPDisabledColors disabled;
};

constexpr XPFaceColors kBlue{
    win::RGB(206, 231, 255), win::RGB(107, 130, 239), win::RGB(255, 219, 140),
    win::RGB(231, 150, 0),   win::RGB(255, 255, 255), win::RGB(247, 243, 239),
    win::RGB(214, 211, 198), win::RGB(214, 207, 198), win::RGB(231, 231, 222),
    win::RGB(231, 231, 222), kXPBlueDisabled};

constexpr XPFaceColors kOliveGreen{
    win::RGB(198, 211, 140), win::RGB(104, 143, 50),  win::RGB(255, 219, 140),
    win::RGB(231, 150, 0),   win::RGB(255, 255, 247), win::RGB(247, 239, 222),
    win::RGB(231, 211, 189), win::RGB(222, 207, 181), win::RGB(231, 219, 198),
    win::RGB(239, 227, 206),
    {win::RGB(202, 196, 184), win::RGB(202, 196, 184), win::RGB(246, 242, 233),
     win::RGB(217, 211, 201), win::RGB(235, 231, 221)}};

// Face and foot inside a two-pixel ring.
void PaintRingedFace(Canvas& canvas, const BackgroundRect& area, const XPFaceColors& colors) {
  const int l = area.L();
  const int t = area.T();
  const int r = area.R();
  const int b = area.B();
  GradientTopToBottom(canvas, l + 2, t + 2, r - 2, b - 4, colors.faceTop, colors.faceBottom);
  GradientTopToBottom(canvas, l + 2, b - 4, r - 2, b - 3, colors.faceBottom, colors.footBottom);
}

void PaintRing(Canvas& canvas, const BackgroundRect& area, win::COLORREF top,
               win::COLORREF bottom) {
  GradientTopToBottom(canvas, area.L(), area.T(), area.R(), area.B() - 1, top, bottom);
}

}  // namespace

void PaintXPBackground(Canvas& canvas, const ButtonView& button, std::int32_t drawState,
                       XPScheme scheme) {
  const XPFaceColors& colors = scheme == XPScheme::OliveGreen ? kOliveGreen : kBlue;
  BackgroundRect area(canvas.Width(), canvas.Height());
  if (!button.Enabled()) {
    PaintXPDisabledFace(canvas, button, area, colors.disabled);
    return;
  }
  area.Shrink(1);
  const int l = area.L();
  const int t = area.T();
  const int r = area.R();
  const int b = area.B();
  const bool defaultLook = HasDefaultLook(button);
  switch (drawState) {
    case DrawStateUp:
      if (defaultLook) {
        PaintRing(canvas, area, colors.ringDefaultTop, colors.ringDefaultBottom);
        PaintRingedFace(canvas, area, colors);
      } else {
        GradientTopToBottom(canvas, l, t, r, b - 4, colors.faceTop, colors.faceBottom);
        GradientTopToBottom(canvas, l, b - 4, r, b - 1, colors.faceBottom, colors.footBottom);
        GradientLeftToRight(canvas, r - 3, t + 2, r - 1, b - 2, colors.faceBottom,
                            colors.footBottom);
      }
      break;
    case DrawStateHot:
      // A hot default button keeps its default ring: the hover colour never replaces it.
      if (defaultLook) {
        PaintRing(canvas, area, colors.ringDefaultTop, colors.ringDefaultBottom);
      } else {
        PaintRing(canvas, area, colors.ringHotTop, colors.ringHotBottom);
      }
      PaintRingedFace(canvas, area, colors);
      break;
    case DrawStateDown:
      GradientTopToBottom(canvas, l, t, r, t + 2, colors.pressedDark, colors.pressedLight);
      GradientLeftToRight(canvas, l, t + 2, l + 2, b - 1, colors.pressedDark, colors.pressedLight);
      canvas.FillRectangle(l + 2, t + 2, r, b, colors.pressedFill);
      break;
    default:
      break;
  }
}

}  // namespace glyphon
