#include "fuzz/fuzz_support.h"
#include "platform/codec/png_picture.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  glyphon::fuzz::CheckReader(data, size, [](std::span<const std::uint8_t> bytes) {
    glyphon::fuzz::CheckBitmapRoundTrip(glyphon::DecodePngPicture(bytes));
  });
  return 0;
}
