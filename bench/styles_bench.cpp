// A full repaint of an 81 x 25 button through the control, in the two looks most forms use:
// canvas, background, content (an 8-character caption), frame, blit, release.
#include <benchmark/benchmark.h>

#include "bench/bench_button.h"

namespace glyphon {
namespace {

void RedrawInStyle(benchmark::State& state, std::int32_t style) {
  BenchButton b;
  b.button.SetCaption("Continue");
  b.button.SetStyle(style);
  for (auto _ : state) b.button.Refresh();
}

void BM_RedrawWin9x81x25(benchmark::State& state) { RedrawInStyle(state, zonStyleWin9x); }
BENCHMARK(BM_RedrawWin9x81x25)->Repetitions(9)->ReportAggregatesOnly(true);

void BM_RedrawXPBlue81x25(benchmark::State& state) { RedrawInStyle(state, zonStyleWinXPBlue); }
BENCHMARK(BM_RedrawXPBlue81x25)->Repetitions(9)->ReportAggregatesOnly(true);

}  // namespace
}  // namespace glyphon
