#include "apps/glyphon/sample_sheet.h"

#include "surface/dib_section.h"

namespace glyphon::apps {

namespace {

using win::RGB;

constexpr win::OLE_COLOR kButtonFace = 0x80000000u | win::COLOR_BTNFACE;
constexpr win::OLE_COLOR kHighlight = 0x80000000u | win::COLOR_BTNHIGHLIGHT;
constexpr win::OLE_COLOR kShadow = 0x80000000u | win::COLOR_BTNSHADOW;
constexpr win::OLE_COLOR kDarkShadow = 0x80000000u | win::COLOR_3DDKSHADOW;
constexpr win::COLORREF kMagenta = RGB(255, 0, 255);

void PaintGradients(Canvas& canvas) {
  canvas.FillGradientTopToBottom(8, 8, 88, 55, 0, 0, 128, 166, 202, 240);
  canvas.FillGradientLeftToRight(96, 8, 175, 56, 255, 255, 255, 140, 140, 140);
}

// A raised button edge and a sunken well.
void PaintBevels(Canvas& canvas) {
  canvas.DrawRect3D(184, 8, 232, 56, kHighlight, kDarkShadow);
  canvas.DrawRect3D(185, 9, 231, 55, kButtonFace, kShadow);
  canvas.DrawRect3D(240, 8, 312, 56, kShadow, kHighlight);
  canvas.DrawRect3D(241, 9, 311, 55, kDarkShadow, kButtonFace);
  canvas.DrawFocusRect(245, 13, 307, 51);
}

void PaintDashStyles(Canvas& canvas) {
  for (int style = win::PS_SOLID; style <= win::PS_DASHDOTDOT; ++style) {
    canvas.DrawStyle(style);
    const int y = 70 + 8 * style;
    canvas.DrawLine(8, y, 152, y, RGB(0, 0, 0));
  }
  canvas.DrawStyle(win::PS_SOLID);
}

// FillStyle then FillColor: solid for 0, the hatch of that index for the others.
void PaintHatches(Canvas& canvas) {
  for (int fillStyle = 0; fillStyle <= win::HS_DIAGCROSS; ++fillStyle) {
    canvas.FillStyle(fillStyle);
    canvas.FillColor(RGB(0, 0, 128));
    const int left = 160 + 26 * fillStyle;
    canvas.DrawRect(left, 66, left + 22, 106, RGB(0, 0, 0));
  }
  canvas.FillStyle(1);
}

void PaintRoundRects(Canvas& canvas) {
  canvas.DrawRoundRect(8, 118, 72, 166, RGB(0, 0, 128));
  canvas.FillStyle(0);
  canvas.FillColor(RGB(255, 255, 192));
  canvas.FillRoundRect(80, 118, 143, 165, RGB(255, 0, 0));
  canvas.FillStyle(1);
}

// A DIB with a magenta background copied onto a gradient, transparently and then plainly.
void PaintMaskedPicture(Canvas& canvas) {
  constexpr int kSize = 40;
  cDIBSection dib;
  if (!dib.Create(kSize, kSize)) return;
  dib.BackColor(kMagenta);
  dib.Cls();
  dib.FillRectangle(4, 4, 20, 20, RGB(255, 0, 0));
  dib.FillRectangle(20, 20, 36, 36, RGB(0, 128, 0));
  dib.FillStyle(0);
  dib.FillColor(RGB(255, 255, 0));
  dib.FillRoundRect(8, 14, 31, 25, RGB(255, 0, 0));
  dib.DrawLine(0, 39, 40, -1, RGB(0, 0, 0));
  canvas.FillGradientLeftToRight(160, 118, 312, 166, 0, 64, 0, 192, 255, 192);
  dib.PaintPicture(canvas.hdc(), kMagenta, 176, 122);
  dib.PaintPicture(canvas.hdc(), kNoColor, 256, 122);
}

}  // namespace

void PaintSampleSheet(Canvas& canvas) {
  canvas.BackColor(kButtonFace);
  canvas.Cls();
  PaintGradients(canvas);
  PaintBevels(canvas);
  PaintDashStyles(canvas);
  PaintHatches(canvas);
  PaintRoundRects(canvas);
  PaintMaskedPicture(canvas);
}

}  // namespace glyphon::apps
