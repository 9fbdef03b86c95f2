#include "platform/soft/text/utf8.h"

#include <cstdint>

namespace glyphon::win::soft {

namespace {

// Windows-1252 assigns printable characters to most of 0x80..0x9F; the rest equal Latin-1.
constexpr char16_t kCp1252High[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t FromCp1252(std::uint8_t byte) {
  if (byte >= 0x80 && byte < 0xA0) return kCp1252High[byte - 0x80];
  return byte;
}

bool IsContinuation(std::uint8_t byte) { return (byte & 0xC0) == 0x80; }

}  // namespace

char32_t DecodeNext(const char* text, std::size_t size, std::size_t& pos) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text);
  const std::uint8_t lead = bytes[pos];
  if (lead < 0x80) {
    ++pos;
    return lead;
  }
  int length = 0;
  char32_t minimum = 0;
  char32_t value = 0;
  if ((lead & 0xE0) == 0xC0) {
    length = 2, minimum = 0x80, value = lead & 0x1Fu;
  } else if ((lead & 0xF0) == 0xE0) {
    length = 3, minimum = 0x800, value = lead & 0x0Fu;
  } else if ((lead & 0xF8) == 0xF0) {
    length = 4, minimum = 0x10000, value = lead & 0x07u;
  }
  if (length == 0 || pos + static_cast<std::size_t>(length) > size) {
    ++pos;
    return FromCp1252(lead);
  }
  for (int i = 1; i < length; ++i) {
    const std::uint8_t next = bytes[pos + static_cast<std::size_t>(i)];
    if (!IsContinuation(next)) {
      ++pos;
      return FromCp1252(lead);
    }
    value = (value << 6) | (next & 0x3Fu);
  }
  // Overlong forms, surrogates and values past Unicode are not UTF-8 either.
  if (value < minimum || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) {
    ++pos;
    return FromCp1252(lead);
  }
  pos += static_cast<std::size_t>(length);
  return value;
}

}  // namespace glyphon::win::soft
