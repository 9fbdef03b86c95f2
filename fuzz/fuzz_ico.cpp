#include "fuzz/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  glyphon::fuzz::CheckReader(data, size, [](std::span<const std::uint8_t> bytes) {
    // The first few entries, not only the one a 32x32 request picks, so that a bad entry does
    // not hide the others; a few, because a directory may name one large image thousands of times.
    constexpr std::size_t kEntries = 4;
    const std::vector<glyphon::IconDirectoryEntry> entries = glyphon::ReadIconDirectory(bytes);
    for (std::size_t i = 0; i < entries.size() && i < kEntries; ++i) {
      try {
        glyphon::fuzz::CheckIconRoundTrip(glyphon::DecodeIconEntry(bytes, entries[i]));
      } catch (const glyphon::DecodeError&) {
      }
    }
  });
  return 0;
}
