// The content pass in a full repaint, and the greyed picture with a resize.
#include <benchmark/benchmark.h>

#include "content/pixel_effects.h"
#include "bench/bench_button.h"
#include "samples/sample_pictures.h"
#include "surface/canvas.h"

namespace glyphon {
namespace {

using samples::MakeSamplePicture;
using samples::SamplePicture;

// An 81 x 25 XP Blue button with a caption and a 16 x 16 picture keyed on its mask colour.
void RedrawXpBlueWithPicture(benchmark::State& state, std::int32_t pictureStyle) {
  BenchButton b;
  Glyphon& button = b.button;
  button.SetStyle(zonStyleWinXPBlue);
  button.SetCaption("&Check");
  button.SetPicture(MakeSamplePicture(SamplePicture::Check16));
  button.SetPictureStyle(pictureStyle);
  for (auto _ : state) button.Refresh();
  // The tick's green must have reached the control, or the content pass did not run.
  bool green = false;
  for (int x = 0; x < 81 && !green; ++x) {
    for (int y = 0; y < 25 && !green; ++y) {
      const win::COLORREF c = win::GetPixel(b.host.hDC(), x, y);
      const int g = win::GetGValue(c);
      green = g > win::GetRValue(c) + 40 && g > win::GetBValue(c) + 20;
    }
  }
  if (!green) state.SkipWithError("no picture in the repaint");
}

void BM_RedrawXpBlueMaskedPicture(benchmark::State& state) {
  RedrawXpBlueWithPicture(state, zonPicStyleNormal);
}
BENCHMARK(BM_RedrawXpBlueMaskedPicture)->Repetitions(9)->ReportAggregatesOnly(true);

// The idle active picture is faded into the face through DIB sections.
void BM_RedrawXpBlueActiveIdle(benchmark::State& state) {
  RedrawXpBlueWithPicture(state, zonPicStyleActive);
}
BENCHMARK(BM_RedrawXpBlueActiveIdle)->Repetitions(9)->ReportAggregatesOnly(true);

void BM_GreyedPicture256To128(benchmark::State& state) {
  const StdPicture picture = MakeSamplePicture(SamplePicture::Landscape256);
  Canvas canvas;
  canvas.CreatehDC();
  canvas.InitProperties();
  const win::HDC screen = win::GetDC(nullptr);
  canvas.CreateBitmap(screen, 128, 128);
  win::ReleaseDC(nullptr, screen);
  for (auto _ : state) {
    benchmark::DoNotOptimize(PaintGreyedPicture(picture, canvas.hdc(), 0, 0, 128, 128, 50,
                                                kPlainGrey, samples::kSampleMaskColor));
  }
}
BENCHMARK(BM_GreyedPicture256To128)->Repetitions(9)->ReportAggregatesOnly(true);

}  // namespace
}  // namespace glyphon
