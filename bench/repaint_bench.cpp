// One repaint of a small button through Canvas, as the redraw pipeline does it: create the
// surface, set its defaults, clear, paint a gradient face, a few lines and pixels, copy it out
// and release everything.
#include <benchmark/benchmark.h>

#include "platform/win32.h"
#include "surface/canvas.h"

namespace {

using namespace glyphon;

constexpr int kWidth = 81;
constexpr int kHeight = 25;

void RepaintSkeleton(benchmark::State& state) {
  const win::HDC screen = win::GetDC(nullptr);
  const win::HDC target = win::CreateCompatibleDC(screen);
  const win::HBITMAP targetBitmap = win::CreateCompatibleBitmap(screen, kWidth, kHeight);
  const win::HGDIOBJ previous = win::SelectObject(target, targetBitmap);
  for (auto _ : state) {
    Canvas canvas;
    canvas.CreatehDC();
    canvas.InitProperties();
    canvas.CreateBitmap(screen, kWidth, kHeight);
    canvas.BackColor(0x80000000u | win::COLOR_BTNFACE);
    canvas.Cls();
    canvas.FillGradientTopToBottom(0, 0, kWidth, kHeight - 1, 255, 255, 255, 212, 208, 200);
    for (int i = 0; i < 10; ++i) {
      canvas.DrawLine(i, 0, i, kHeight - 1, win::RGB(0, 0, 128));
      canvas.DrawPixel(static_cast<float>(kWidth - 1 - i), static_cast<float>(i),
                       win::RGB(255, 0, 0));
    }
    win::BitBlt(target, 0, 0, kWidth, kHeight, canvas.hdc(), 0, 0, win::SRCCOPY);
    benchmark::DoNotOptimize(canvas.hdc());
  }
  win::SelectObject(target, previous);
  win::DeleteObject(targetBitmap);
  win::DeleteDC(target);
  win::ReleaseDC(nullptr, screen);
}
BENCHMARK(RepaintSkeleton)->Repetitions(9)->ReportAggregatesOnly(true);

}  // namespace
