#include "tests/windows/gdi_scenarios.h"

namespace glyphon::testing {

using namespace win;

SourceDc::SourceDc(int width, int height, bool monochrome) {
  HDC screen = GetDC(nullptr);
  dc_ = CreateCompatibleDC(screen);
  bitmap_ = monochrome ? CreateBitmap(width, height, 1, 1, nullptr)
                       : CreateCompatibleBitmap(screen, width, height);
  ReleaseDC(nullptr, screen);
  original_ = SelectObject(dc_, bitmap_);
  const RECT all{0, 0, width, height};
  FillRect(dc_, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
}

SourceDc::~SourceDc() {
  SelectObject(dc_, original_);
  DeleteObject(bitmap_);
  DeleteDC(dc_);
}

void FillSolid(HDC dc, int left, int top, int right, int bottom, COLORREF color) {
  HBRUSH brush = CreateSolidBrush(color);
  const RECT rect{left, top, right, bottom};
  FillRect(dc, &rect, brush);
  DeleteObject(brush);
}

void PaintBands(HDC dc, int width, int height) {
  static constexpr COLORREF kColors[] = {RGB(255, 0, 0), RGB(0, 128, 255), RGB(255, 255, 0),
                                         RGB(40, 40, 40)};
  for (int x = 0, band = 0; x < width; x += 5, ++band) {
    FillSolid(dc, x, 0, x + 5, height, kColors[band % 4]);
  }
}

void PaintChecks(HDC dc, int width, int height) {
  for (int y = 0; y < height; y += 3) {
    for (int x = 0; x < width; x += 3) {
      const int n = x / 3 + y / 3;
      FillSolid(dc, x, y, x + 3, y + 3,
                RGB((n * 70) & 0xFF, (n * 130 + 60) & 0xFF, n % 2 != 0 ? 255 : 0));
    }
  }
}

}  // namespace glyphon::testing
