// Measuring and drawing button captions with warm caches, as every repaint does: DrawTextA with
// DT_CALCRECT, then DrawTextA into the measured rectangle, antialiased, at 8 points.
#include <benchmark/benchmark.h>

#include "platform/soft/soft_engine.h"
#include "platform/soft/text/text_system.h"
#include "platform/win32.h"

namespace glyphon::win {
namespace {

class CaptionTarget {
 public:
  CaptionTarget() {
    soft::ThreadSoftEngine().Text()->UseFontFiles(
        {"/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"});
    dc_ = CreateCompatibleDC(nullptr);
    bitmap_ = CreateBitmap(120, 40, 1, 32, nullptr);
    oldBitmap_ = SelectObject(dc_, bitmap_);
    // 8 points at 96 pixels per inch.
    font_ = CreateFontA(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, ANTIALIASED_QUALITY, 0,
                        "MS Sans Serif");
    oldFont_ = SelectObject(dc_, font_);
    SetBkMode(dc_, TRANSPARENT);
  }
  ~CaptionTarget() {
    SelectObject(dc_, oldFont_);
    SelectObject(dc_, oldBitmap_);
    DeleteObject(font_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
    soft::ThreadSoftEngine().Text()->UseFontFiles({});
  }

  void MeasureAndDraw(const char* caption, int width) {
    constexpr UINT kFlags = DT_WORDBREAK | DT_EDITCONTROL | DT_CENTER;
    RECT rect{4, 4, 4 + width, 5};
    DrawTextA(dc_, caption, -1, &rect, kFlags | DT_CALCRECT);
    DrawTextA(dc_, caption, -1, &rect, kFlags);
    benchmark::DoNotOptimize(rect);
  }

 private:
  HDC dc_;
  HBITMAP bitmap_;
  HFONT font_;
  HGDIOBJ oldBitmap_;
  HGDIOBJ oldFont_;
};

void BM_OneLineCaption(benchmark::State& state) {
  CaptionTarget target;
  target.MeasureAndDraw("Properties", 100);  // warm the glyph cache
  for (auto _ : state) target.MeasureAndDraw("Properties", 100);
}
BENCHMARK(BM_OneLineCaption);

void BM_TwoLineWrappedCaption(benchmark::State& state) {
  CaptionTarget target;
  target.MeasureAndDraw("Save all &changes", 60);
  for (auto _ : state) target.MeasureAndDraw("Save all &changes", 60);
}
BENCHMARK(BM_TwoLineWrappedCaption);

}  // namespace
}  // namespace glyphon::win
