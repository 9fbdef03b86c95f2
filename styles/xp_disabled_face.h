// The disabled face that the XP backgrounds share: a flat grey face with rounded corners through
// which the container shows.
#pragma once

#include "content/button_view.h"
#include "platform/win32_types.h"
#include "styles/margins.h"

namespace glyphon {

class Canvas;

struct XPDisabledColors {
  win::COLORREF rect;
  win::COLORREF line;
  win::COLORREF fill;
  win::COLORREF cornerOuter;
  win::COLORREF cornerInner;
};

inline constexpr XPDisabledColors kXPBlueDisabled{
    win::RGB(208, 207, 206), win::RGB(196, 195, 191), win::RGB(241, 241, 237),
    win::RGB(211, 210, 206), win::RGB(230, 230, 226)};

// Paints over the whole canvas with the margins of area still at 0, and leaves them at 1.
void PaintXPDisabledFace(Canvas& canvas, const ButtonView& button, BackgroundRect& area,
                         const XPDisabledColors& colors);

}  // namespace glyphon
