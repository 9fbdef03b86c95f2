// The button's two hot paths: a full repaint, and a mouse move that changes its state.
#include <benchmark/benchmark.h>

#include "bench/bench_button.h"

namespace glyphon {
namespace {

// Create canvas, size it, the three painter passes of a new button, blit, release.
void BM_Redraw81x25(benchmark::State& state) {
  BenchButton b;
  for (auto _ : state) b.button.Refresh();
}
BENCHMARK(BM_Redraw81x25)->Repetitions(9)->ReportAggregatesOnly(true);

// With the left button held, moves alternate between inside (pressed) and outside (popped up),
// so each one changes the state: message in through the subclassed window, repaint, out.
void BM_MouseMoveChangingState(benchmark::State& state) {
  BenchButton b;
  const win::HWND hwnd = b.host.hWnd();
  win::SendMessageA(hwnd, win::WM_LBUTTONDOWN, win::MK_LBUTTON, win::MAKELPARAM(5, 5));
  const win::LPARAM points[] = {win::MAKELPARAM(200, 5), win::MAKELPARAM(5, 5)};
  int next = 0;
  for (auto _ : state) {
    win::SendMessageA(hwnd, win::WM_MOUSEMOVE, win::MK_LBUTTON, points[next]);
    next ^= 1;
  }
  if (b.button.DrawState() != DrawStateHot && b.button.DrawState() != DrawStateDown) {
    state.SkipWithError("the state did not follow the pointer");
  }
}
BENCHMARK(BM_MouseMoveChangingState)->Repetitions(9)->ReportAggregatesOnly(true);

}  // namespace
}  // namespace glyphon
