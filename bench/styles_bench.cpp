// A full repaint of an 81 x 25 button through the control, in the two looks most forms use:
// canvas, background, content (an 8-character caption), frame, blit, release.
#include <benchmark/benchmark.h>

#include "control/glyphon.h"
#include "control/host/memory_host.h"

namespace glyphon {
namespace {

void RedrawInStyle(benchmark::State& state, std::int32_t style) {
  MemoryHostOptions options;  // 81 x 25
  options.record = false;
  MemoryHost host(options);
  Glyphon button(host);
  host.Attach(&button);
  button.InitProperties();
  button.SetCaption("Continue");
  button.SetStyle(style);
  for (auto _ : state) button.Refresh();
  host.Attach(nullptr);
}

void BM_RedrawWin9x81x25(benchmark::State& state) { RedrawInStyle(state, zonStyleWin9x); }
BENCHMARK(BM_RedrawWin9x81x25)->Repetitions(9)->ReportAggregatesOnly(true);

void BM_RedrawXPBlue81x25(benchmark::State& state) { RedrawInStyle(state, zonStyleWinXPBlue); }
BENCHMARK(BM_RedrawXPBlue81x25)->Repetitions(9)->ReportAggregatesOnly(true);

}  // namespace
}  // namespace glyphon
