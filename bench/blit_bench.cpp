// BitBlt SRCCOPY of a button-sized area between 32-bit bitmaps, the copy every repaint ends with,
// against a plain memcpy of the same bytes.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "platform/win32.h"

namespace {

using namespace glyphon::win;

constexpr int kWidth = 81;
constexpr int kHeight = 25;
constexpr std::size_t kBytes = std::size_t{kWidth} * kHeight * 4;

struct BitmapDc {
  BitmapDc() {
    dc = CreateCompatibleDC(nullptr);
    bitmap = CreateBitmap(kWidth, kHeight, 1, 32, nullptr);
    old = SelectObject(dc, bitmap);
  }
  ~BitmapDc() {
    SelectObject(dc, old);
    DeleteObject(bitmap);
    DeleteDC(dc);
  }
  HDC dc;
  HBITMAP bitmap;
  HGDIOBJ old;
};

void BM_BitBltSrcCopy(benchmark::State& state) {
  BitmapDc source;
  BitmapDc destination;
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        BitBlt(destination.dc, 0, 0, kWidth, kHeight, source.dc, 0, 0, SRCCOPY));
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * kBytes));
}
BENCHMARK(BM_BitBltSrcCopy);

void BM_MemcpySameBytes(benchmark::State& state) {
  std::vector<std::uint8_t> source(kBytes, 1);
  std::vector<std::uint8_t> destination(kBytes);
  for (auto _ : state) {
    benchmark::DoNotOptimize(destination.data());
    std::memcpy(destination.data(), source.data(), kBytes);
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * kBytes));
}
BENCHMARK(BM_MemcpySameBytes);

}  // namespace
