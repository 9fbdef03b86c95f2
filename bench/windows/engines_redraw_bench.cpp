// The same full repaint of an 81 x 25 XP Blue button without a caption, through the native
// engine (the real GDI) and through the soft engine, in one run, so their ratio can be read off.
#include <benchmark/benchmark.h>

#include "bench/bench_button.h"
#include "platform/native/native_engine.h"
#include "platform/soft/soft_engine.h"

namespace glyphon {
namespace {

void RedrawThrough(win::Engine& engine, benchmark::State& state) {
  win::EngineScope scope(engine);
  BenchButton b;
  b.button.SetCaption("");
  b.button.SetStyle(zonStyleWinXPBlue);
  for (auto _ : state) b.button.Refresh();
}

void BM_RedrawXPBlue81x25Native(benchmark::State& state) {
  RedrawThrough(win::native::TheNativeEngine(), state);
}
BENCHMARK(BM_RedrawXPBlue81x25Native)->Repetitions(9)->ReportAggregatesOnly(true);

void BM_RedrawXPBlue81x25Soft(benchmark::State& state) {
  RedrawThrough(win::soft::ThreadSoftEngine(), state);
}
BENCHMARK(BM_RedrawXPBlue81x25Soft)->Repetitions(9)->ReportAggregatesOnly(true);

}  // namespace
}  // namespace glyphon
