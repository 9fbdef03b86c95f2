// Thin forms of the canvas members the painters call most: whole-pixel points and gradients
// between two colours, which the canvas takes as separate components.
#pragma once

#include "platform/win32_types.h"
#include "surface/canvas.h"

namespace glyphon {

inline void DrawPixelAt(Canvas& canvas, int x, int y, win::OLE_COLOR color) {
  canvas.DrawPixel(static_cast<float>(x), static_cast<float>(y), color);
}

inline void GradientTopToBottom(Canvas& canvas, int left, int top, int right, int bottom,
                                win::COLORREF topColor, win::COLORREF bottomColor) {
  canvas.FillGradientTopToBottom(left, top, right, bottom, win::GetRValue(topColor),
                                 win::GetGValue(topColor), win::GetBValue(topColor),
                                 win::GetRValue(bottomColor), win::GetGValue(bottomColor),
                                 win::GetBValue(bottomColor));
}

inline void GradientLeftToRight(Canvas& canvas, int left, int top, int right, int bottom,
                                win::COLORREF leftColor, win::COLORREF rightColor) {
  canvas.FillGradientLeftToRight(left, top, right, bottom, win::GetRValue(leftColor),
                                 win::GetGValue(leftColor), win::GetBValue(leftColor),
                                 win::GetRValue(rightColor), win::GetGValue(rightColor),
                                 win::GetBValue(rightColor));
}

}  // namespace glyphon
