// The drawing members Canvas and cDIBSection share: lines, pixels, rectangles, rounded
// rectangles and the two band-by-band gradients.
#include <algorithm>
#include <cstdint>

#include "surface/drawing_surface.h"
#include "surface/rounding.h"

namespace glyphon {

namespace {

win::COLORREF Translated(win::OLE_COLOR color) {
  win::COLORREF rgb = 0;
  win::OleTranslateColor(color, nullptr, &rgb);
  return rgb;
}

void FillSolid(win::HDC hdc, const win::RECT& area, win::COLORREF color) {
  const win::HBRUSH brush = win::CreateSolidBrush(color);
  win::FillRect(hdc, &area, brush);
  win::DeleteObject(brush);
}

void Line(win::HDC hdc, int fromX, int fromY, int toX, int toY) {
  win::MoveToEx(hdc, fromX, fromY, nullptr);
  win::LineTo(hdc, toX, toY);
}

// a / b, or 0 when b is exactly 0.
double SafeDivide(double a, double b) { return b == 0.0 ? 0.0 : a / b; }

struct Components {
  int red, green, blue;
};

// Colour of the band at pos of total: the ratio total / pos first, then delta / ratio, rounded
// only at the end. This two-step form gives the start colour on the first band and the end colour
// on the last one.
win::COLORREF GradientColor(const Components& start, const Components& end, double total,
                            double pos) {
  const double ratio = SafeDivide(total, pos);
  auto component = [ratio](int from, int to) {
    // Past 0-255 a component saturates instead of spilling into its neighbours.
    return std::clamp(RoundHalfEven(from + SafeDivide(to - from, ratio)), 0, 255);
  };
  return win::RGB(component(start.red, end.red), component(start.green, end.green),
                  component(start.blue, end.blue));
}

// One band per step from first to last inclusive; band(i) is the rectangle of step i. Each band
// gets its own brush, selected while it fills, as the exact per-band colours require.
template <class BandRect>
void PaintGradient(win::HDC hdc, int first, int last, const Components& start,
                   const Components& end, BandRect band) {
  if (first > last) return;
  const double total = static_cast<double>(last) - first;
  for (std::int64_t i = first; i <= last; ++i) {
    const win::COLORREF color = GradientColor(start, end, total, static_cast<double>(i - first));
    const win::HBRUSH brush = win::CreateSolidBrush(color);
    const win::HGDIOBJ previous = win::SelectObject(hdc, brush);
    const win::RECT area = band(static_cast<int>(i));
    win::FillRect(hdc, &area, brush);
    win::SelectObject(hdc, previous);
    win::DeleteObject(brush);
  }
}

}  // namespace

template <class Draw>
void DrawingSurface::WithForeColor(win::OLE_COLOR color, Draw draw) {
  const win::COLORREF previous = foreColor_;
  ForeColor(color);
  draw();
  ForeColor(previous);
}

void DrawingSurface::DrawFocusRect(int left, int top, int right, int bottom) {
  const win::RECT area{left, top, right, bottom};
  win::DrawFocusRect(hdc_, &area);
}

void DrawingSurface::DrawLine(int left, int top, int right, int bottom, win::OLE_COLOR penColor) {
  if (penColor == kNoColor) {
    Line(hdc_, left, top, right, bottom);
    return;
  }
  WithForeColor(penColor, [&] { Line(hdc_, left, top, right, bottom); });
}

void DrawingSurface::DrawPixel(float x, float y, win::OLE_COLOR color) {
  win::SetPixel(hdc_, RoundHalfEven(x), RoundHalfEven(y), Translated(color));
}

void DrawingSurface::DrawRect(int left, int top, int right, int bottom, win::OLE_COLOR penColor) {
  WithForeColor(penColor, [&] { win::Rectangle(hdc_, left, top, right, bottom); });
}

void DrawingSurface::FillRectangle(int left, int top, int right, int bottom,
                                   win::OLE_COLOR penColor) {
  FillSolid(hdc_, win::RECT{left, top, right, bottom}, Translated(penColor));
}

void DrawingSurface::DrawRect3D(int left, int top, int right, int bottom,
                                win::OLE_COLOR highlightColor, win::OLE_COLOR shadowColor) {
  const win::HPEN highlight = win::CreatePen(win::PS_SOLID, 1, Translated(highlightColor));
  const win::HPEN shadow = win::CreatePen(win::PS_SOLID, 1, Translated(shadowColor));
  const win::HGDIOBJ previous = win::SelectObject(hdc_, highlight);
  Line(hdc_, left, bottom - 1, left, top - 1);
  Line(hdc_, left, top, right, top);
  win::SelectObject(hdc_, shadow);
  Line(hdc_, right - 1, top + 1, right - 1, bottom);
  Line(hdc_, right - 1, bottom - 1, left, bottom - 1);
  win::SelectObject(hdc_, previous);
  win::DeleteObject(highlight);
  win::DeleteObject(shadow);
}

void DrawingSurface::DrawRoundRect(int left, int top, int right, int bottom,
                                   win::OLE_COLOR outlineColor, win::OLE_COLOR) {
  constexpr int kCorner = 15;
  auto draw = [&] { win::RoundRect(hdc_, left, top, right, bottom, kCorner, kCorner); };
  if (outlineColor == 0) {
    draw();
  } else {
    WithForeColor(outlineColor, draw);
  }
}

// l, t, r and b are all inclusive here.
void DrawingSurface::FillRoundRect(int l, int t, int r, int b, win::OLE_COLOR outlineColor,
                                   win::OLE_COLOR) {
  const win::COLORREF outline = Translated(outlineColor);
  const win::HPEN pen = win::CreatePen(win::PS_SOLID, 1, outline);
  const win::HGDIOBJ previous = win::SelectObject(hdc_, pen);
  Line(hdc_, l + 5, t, r - 4, t);
  for (const win::POINT corner : {win::POINT{l + 3, t + 1}, {l + 4, t + 1}, {r - 4, t + 1},
                                  {r - 3, t + 1}, {l + 2, t + 2}, {r - 2, t + 2}, {l + 1, t + 3},
                                  {r - 1, t + 3}, {l + 1, t + 4}, {r - 1, t + 4}}) {
    win::SetPixel(hdc_, corner.x, corner.y, outline);
  }
  Line(hdc_, l, t + 5, l, b - 4);
  Line(hdc_, r, t + 5, r, b - 4);
  for (const win::POINT corner : {win::POINT{l + 1, b - 4}, {r - 1, b - 4}, {l + 1, b - 3},
                                  {r - 1, b - 3}, {l + 2, b - 2}, {r - 2, b - 2}, {l + 3, b - 1},
                                  {l + 4, b - 1}, {r - 3, b - 1}, {r - 4, b - 1}}) {
    win::SetPixel(hdc_, corner.x, corner.y, outline);
  }
  Line(hdc_, l + 5, b, r - 4, b);
  // The fill stops at pure red, not at the outline colour: an outline of any other colour lets
  // the fill run out of the shape.
  win::ExtFloodFill(hdc_, l + 2, t + 6, win::RGB(255, 0, 0), win::FLOODFILLBORDER);
  win::SelectObject(hdc_, previous);
  win::DeleteObject(pen);
}

void DrawingSurface::FillGradientTopToBottom(int left, int top, int right, int bottom, int red1,
                                             int green1, int blue1, int red2, int green2,
                                             int blue2) {
  PaintGradient(hdc_, top, bottom, {red1, green1, blue1}, {red2, green2, blue2},
                [&](int y) { return win::RECT{left, y, right, y + 1}; });
}

void DrawingSurface::FillGradientLeftToRight(int left, int top, int right, int bottom, int red1,
                                             int green1, int blue1, int red2, int green2,
                                             int blue2) {
  PaintGradient(hdc_, left, right, {red1, green1, blue1}, {red2, green2, blue2},
                [&](int x) { return win::RECT{x, top, x + 1, bottom}; });
}

}  // namespace glyphon
