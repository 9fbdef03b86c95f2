// Ternary raster operations. The index byte of a ROP3 code (bits 16-23) is the truth table of the
// result: bit P*4 + S*2 + D gives the result for pattern bit P, source bit S and destination bit
// D. It applies bitwise to device pixel values, so colour-table indices mix as numbers, as in GDI.
#pragma once

#include <cstdint>

#include "platform/soft/pixmap.h"
#include "platform/win32_types.h"

namespace glyphon::win::soft {

constexpr std::uint8_t Rop3Index(DWORD rop) {
  return static_cast<std::uint8_t>(rop >> 16);
}

// Whether the result depends on the source (or the pattern): the truth table differs somewhere
// between the two values of that input.
constexpr bool Rop3UsesSource(DWORD rop) {
  return ((rop >> 2) & 0x330000) != (rop & 0x330000);
}
constexpr bool Rop3UsesPattern(DWORD rop) {
  return ((rop >> 4) & 0x0F0000) != (rop & 0x0F0000);
}

// For a code without source: the ROP2 mix with the pattern as pen.
int Rop3PatternMix(DWORD rop);

// pattern or source may be null when the code does not use them.
void ApplyRop3Row(std::uint8_t index, const PixelValue* pattern, const PixelValue* source,
                  PixelValue* destination, int count);

}  // namespace glyphon::win::soft
