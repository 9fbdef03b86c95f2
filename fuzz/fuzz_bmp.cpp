#include "fuzz/fuzz_support.h"
#include "platform/codec/bmp_codec.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  glyphon::fuzz::CheckReader(data, size, [](std::span<const std::uint8_t> bytes) {
    glyphon::fuzz::CheckBitmapRoundTrip(glyphon::DecodeBmp(bytes));
  });
  return 0;
}
