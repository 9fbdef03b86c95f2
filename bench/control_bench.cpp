// The button's two hot paths: a full repaint, and a mouse move that changes its state.
#include <benchmark/benchmark.h>

#include "control/glyphon.h"
#include "control/host/memory_host.h"

namespace glyphon {
namespace {

MemoryHostOptions Unrecorded() {
  MemoryHostOptions options;  // 81 x 25
  options.record = false;
  return options;
}

// Create canvas, size it, three (empty) painter passes, blit, release.
void BM_Redraw81x25(benchmark::State& state) {
  MemoryHost host(Unrecorded());
  Glyphon button(host);
  host.Attach(&button);
  button.InitProperties();
  for (auto _ : state) button.Refresh();
  host.Attach(nullptr);
}
BENCHMARK(BM_Redraw81x25)->Repetitions(9)->ReportAggregatesOnly(true);

// With the left button held, moves alternate between inside (pressed) and outside (popped up),
// so each one changes the state: message in through the subclassed window, repaint, out.
void BM_MouseMoveChangingState(benchmark::State& state) {
  MemoryHost host(Unrecorded());
  Glyphon button(host);
  host.Attach(&button);
  button.InitProperties();
  const win::HWND hwnd = host.hWnd();
  win::SendMessageA(hwnd, win::WM_LBUTTONDOWN, win::MK_LBUTTON, win::MAKELPARAM(5, 5));
  const win::LPARAM points[] = {win::MAKELPARAM(200, 5), win::MAKELPARAM(5, 5)};
  int next = 0;
  for (auto _ : state) {
    win::SendMessageA(hwnd, win::WM_MOUSEMOVE, win::MK_LBUTTON, points[next]);
    next ^= 1;
  }
  if (button.DrawState() != DrawStateHot && button.DrawState() != DrawStateDown) {
    state.SkipWithError("the state did not follow the pointer");
  }
  host.Attach(nullptr);
}
BENCHMARK(BM_MouseMoveChangingState)->Repetitions(9)->ReportAggregatesOnly(true);

}  // namespace
}  // namespace glyphon
