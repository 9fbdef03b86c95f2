// Raster drawing on the soft engine: one button-sized repaint, and the primitives it is made of.
#include <benchmark/benchmark.h>

#include "platform/win32.h"

namespace {

using namespace glyphon::win;

class Surface {
 public:
  Surface(int width, int height)
      : dc_(CreateCompatibleDC(nullptr)),
        bitmap_(CreateBitmap(width, height, 1, 32, nullptr)),
        old_(SelectObject(dc_, bitmap_)) {}
  ~Surface() {
    SelectObject(dc_, old_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
  }
  HDC dc() const { return dc_; }

 private:
  HDC dc_;
  HBITMAP bitmap_;
  HGDIOBJ old_;
};

void Line(HDC dc, HPEN pen, int x0, int y0, int x1, int y1) {
  HGDIOBJ old = SelectObject(dc, pen);
  MoveToEx(dc, x0, y0, nullptr);
  LineTo(dc, x1, y1);
  SelectObject(dc, old);
}

// What painting one 75 x 23 button costs: a face, a one-band-per-row gradient, a bevel, a
// rounded border, a dotted design-time frame, corner pixels and the focus rectangle.
void BM_ButtonRepaint(benchmark::State& state) {
  const int width = 75, height = 23;
  Surface surface(width, height);
  HDC dc = surface.dc();
  for (auto _ : state) {
    HBRUSH face = CreateSolidBrush(RGB(212, 208, 200));
    const RECT all{0, 0, width, height};
    FillRect(dc, &all, face);
    DeleteObject(face);
    for (int y = 0; y < height; ++y) {
      HBRUSH band = CreateSolidBrush(RGB(255 - y * 4, 255 - y * 2, 255));
      const RECT row{2, y, width - 2, y + 1};
      FillRect(dc, &row, band);
      DeleteObject(band);
    }
    HPEN light = CreatePen(PS_SOLID, 1, RGB(255, 255, 255));
    HPEN dark = CreatePen(PS_SOLID, 1, RGB(128, 128, 128));
    Line(dc, light, 0, height - 1, 0, -1);
    Line(dc, light, 0, 0, width, 0);
    Line(dc, dark, width - 1, 1, width - 1, height);
    Line(dc, dark, width - 1, height - 1, 0, height - 1);
    DeleteObject(light);
    DeleteObject(dark);
    HPEN dotted = CreatePen(PS_DOT, 1, RGB(0, 0, 0));
    HGDIOBJ oldPen = SelectObject(dc, dotted);
    HGDIOBJ oldBrush = SelectObject(dc, GetStockObject(NULL_BRUSH));
    Rectangle(dc, 1, 1, width - 1, height - 1);
    RoundRect(dc, 2, 2, width - 2, height - 2, 15, 15);
    SelectObject(dc, oldBrush);
    SelectObject(dc, oldPen);
    DeleteObject(dotted);
    for (int i = 0; i < 8; ++i) SetPixel(dc, i, i % 3, RGB(0, 0, 0));
    const RECT focus{4, 4, width - 4, height - 4};
    DrawFocusRect(dc, &focus);
    benchmark::DoNotOptimize(GetPixel(dc, 5, 5));
  }
}
BENCHMARK(BM_ButtonRepaint);

void BM_FillRect(benchmark::State& state) {
  const int side = static_cast<int>(state.range(0));
  Surface surface(side, side);
  HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
  const RECT all{0, 0, side, side};
  for (auto _ : state) FillRect(surface.dc(), &all, brush);
  DeleteObject(brush);
  state.SetItemsProcessed(state.iterations() * side * side);
}
BENCHMARK(BM_FillRect)->Arg(23)->Arg(256);

void BM_LineTo(benchmark::State& state) {
  Surface surface(256, 256);
  HPEN pen = CreatePen(static_cast<int>(state.range(0)), 1, RGB(0, 0, 0));
  HGDIOBJ old = SelectObject(surface.dc(), pen);
  for (auto _ : state) {
    MoveToEx(surface.dc(), 0, 3, nullptr);
    LineTo(surface.dc(), 255, 3);
    LineTo(surface.dc(), 3, 255);
    LineTo(surface.dc(), 3, 0);
  }
  SelectObject(surface.dc(), old);
  DeleteObject(pen);
}
BENCHMARK(BM_LineTo)->Arg(PS_SOLID)->Arg(PS_DOT);

}  // namespace

namespace {

void BM_DrawFocusRect(benchmark::State& state) {
  Surface surface(75, 23);
  const RECT focus{4, 4, 71, 19};
  for (auto _ : state) DrawFocusRect(surface.dc(), &focus);
}
BENCHMARK(BM_DrawFocusRect);

void BM_RoundRect(benchmark::State& state) {
  Surface surface(75, 23);
  HGDIOBJ old = SelectObject(surface.dc(), GetStockObject(NULL_BRUSH));
  for (auto _ : state) RoundRect(surface.dc(), 2, 2, 73, 21, 15, 15);
  SelectObject(surface.dc(), old);
}
BENCHMARK(BM_RoundRect);

}  // namespace
