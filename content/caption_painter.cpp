#include "content/caption_painter.h"

#include "control/glyphon_constants.h"
#include "surface/canvas.h"

namespace glyphon {

namespace {

constexpr win::COLORREF kXpDisabledText = win::RGB(161, 161, 146);
constexpr win::COLORREF kMacDisabledText = win::RGB(189, 189, 189);

bool IsXpStyle(std::int32_t style) {
  return style == zonStyleWinXPBlue || style == zonStyleWinXPOliveGreen ||
         style == zonStyleWinXPSilver;
}

}  // namespace

void SelectCaptionFont(Canvas& canvas, const StdFont& font) {
  const win::HDC holder = win::CreateCompatibleDC(canvas.hdc());
  const win::HFONT handle = font.CreateHandle();
  const win::HGDIOBJ previous = win::SelectObject(holder, handle);
  canvas.CreateFont(holder);
  win::SelectObject(holder, previous);
  win::DeleteObject(handle);
  win::DeleteDC(holder);
}

void ChooseCaptionColor(Canvas& canvas, const ButtonView& button, std::int32_t drawState) {
  if (button.DisplayCaption().empty()) return;
  if (button.PushLook() == 1) {
    canvas.ForeColor(button.ForeColor());
    return;
  }
  // The sunken look without the pressed shift: the caption takes the face colour when down.
  const std::int32_t style = button.Style();
  if (style != zonStyleWin9x && style != zonStyleWin3x) return;
  if (drawState == DrawStateDown) canvas.ForeColor(button.BackColor());
  if (drawState == DrawStateHot || drawState == DrawStateUp) canvas.ForeColor(button.ForeColor());
}

void DrawCaption(Canvas& canvas, const ButtonView& button, const CaptionRect& rect,
                 win::UINT flags) {
  const auto drawAt = [&](int offset) {
    canvas.DrawTextOut(button.Caption(), rect.left + offset, rect.top + offset,
                       rect.right + offset, rect.height, flags);
  };
  if (!button.Enabled()) {
    const std::int32_t style = button.Style();
    if (style == zonStyleWin9x || style == zonStyleWin3x || style == zonStyleMac8x) {
      canvas.ForeColor(button.HighlightColor());
      drawAt(1);
      canvas.ForeColor(button.ShadowColor());
    }
    if (IsXpStyle(style)) canvas.ForeColor(kXpDisabledText);
    if (style == zonStyleMac8x) canvas.ForeColor(kMacDisabledText);
  }
  drawAt(0);
}

win::RECT ContextCaptionMeasurer::Measure(win::RECT rect, win::UINT flags) const {
  win::DrawTextA(hdc_, caption_.c_str(), -1, &rect, flags);
  return rect;
}

}  // namespace glyphon
