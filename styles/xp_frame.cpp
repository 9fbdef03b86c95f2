// The XP frames: a dark one-pixel outline rounded by its softer corner pixels and the container's
// colour at the extreme corners, pressed shading inside the corners, and the focus rectangle.
// A disabled button keeps what its background drew.
#include "content/glyphon_constants.h"
#include "styles/canvas_steps.h"
#include "styles/look_painters.h"
#include "styles/margins.h"
#include "styles/xp_outline.h"
#include "surface/canvas.h"
#include "surface/named_colors.h"

namespace glyphon {

namespace {

struct XPFrameColors {
  win::COLORREF edge;
  win::COLORREF edgeSoft;
  win::COLORREF innerCorner;
  // The pressed colour of three inner corners; the bottom-right one stays innerCorner.
  win::COLORREF pressedOuter;
  win::COLORREF pressedDark;
  win::COLORREF pressedLight;
};

constexpr XPFrameColors kBlueAndSilver{win::RGB(0, 60, 115),    win::RGB(123, 154, 173),
                                       win::RGB(82, 125, 165),  win::RGB(82, 125, 165),
                                       win::RGB(198, 207, 222), win::RGB(198, 207, 222)};

constexpr XPFrameColors kOliveGreen{win::RGB(49, 97, 0),      win::RGB(115, 138, 90),
                                    win::RGB(74, 109, 33),    win::RGB(214, 199, 181),
                                    win::RGB(214, 199, 181), win::RGB(231, 223, 181)};


void DrawSilverPressedHighlights(Canvas& canvas, int w, int h) {
  canvas.DrawLine(1, 1, 1, h - 3, kWhite);
  canvas.DrawLine(w - 2, 1, w - 2, h - 3, kWhite);
  canvas.DrawLine(3, 1, w - 3, 1, kWhite);
  DrawPixelAt(canvas, 2, 2, kWhite);
  DrawPixelAt(canvas, w - 3, 2, kWhite);
}

void DrawPressedCorners(Canvas& canvas, const XPFrameColors& colors, int w, int h) {
  DrawPixelAt(canvas, 1, 1, colors.pressedOuter);
  DrawPixelAt(canvas, w - 2, 1, colors.pressedOuter);
  DrawPixelAt(canvas, 1, h - 2, colors.pressedOuter);
  DrawPixelAt(canvas, w - 2, h - 2, colors.innerCorner);
  DrawPixelAt(canvas, 2, 1, colors.pressedDark);
  DrawPixelAt(canvas, 1, 2, colors.pressedDark);
  DrawPixelAt(canvas, w - 3, 1, colors.pressedLight);
  DrawPixelAt(canvas, w - 2, 2, colors.pressedLight);
  DrawPixelAt(canvas, 1, h - 3, colors.pressedLight);
  DrawPixelAt(canvas, 2, h - 2, colors.pressedLight);
  DrawPixelAt(canvas, w - 2, h - 3, colors.pressedLight);
  DrawPixelAt(canvas, w - 3, h - 2, colors.pressedLight);
}

void DrawInnerCorners(Canvas& canvas, const XPFrameColors& colors, int w, int h) {
  DrawPixelAt(canvas, 1, 1, colors.innerCorner);
  DrawPixelAt(canvas, w - 2, 1, colors.innerCorner);
  DrawPixelAt(canvas, 1, h - 2, colors.innerCorner);
  DrawPixelAt(canvas, w - 2, h - 2, colors.innerCorner);
}

}  // namespace

void PaintXPFrame(Canvas& canvas, const ButtonView& button, std::int32_t drawState,
                  XPScheme scheme) {
  if (button.SuppressRedraw()) return;
  FrameRect area(canvas.Width(), canvas.Height());
  if (!button.Enabled()) return;
  const XPFrameColors& colors = scheme == XPScheme::OliveGreen ? kOliveGreen : kBlueAndSilver;
  const int w = area.width;
  const int h = area.height;
  if (drawState == DrawStateHot || drawState == DrawStateDown || drawState == DrawStateUp) {
    DrawXPRoundedOutline(canvas, button, w, h, colors.edgeSoft, colors.edge);
    area.Shrink(1);
  }
  if (drawState == DrawStateHot || drawState == DrawStateUp) {
    DrawInnerCorners(canvas, colors, w, h);
  } else if (drawState == DrawStateDown) {
    if (scheme == XPScheme::Silver) DrawSilverPressedHighlights(canvas, w, h);
    DrawPressedCorners(canvas, colors, w, h);
  }
  if (button.ShowFocus() && button.HasFocus()) {
    canvas.ForeColor(kBlack);
    canvas.DrawFocusRect(area.L() + 1, area.T() + 1, area.R() - 1, area.B() - 1);
  }
}

}  // namespace glyphon
