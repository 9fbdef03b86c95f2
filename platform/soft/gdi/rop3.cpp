#include "platform/soft/gdi/rop3.h"

namespace glyphon::win::soft {

int Rop3PatternMix(DWORD rop) {
  // Keep the table entries with S = 0: bits 0, 1 (P = 0) and 4, 5 (P = 1).
  const unsigned index = Rop3Index(rop);
  return static_cast<int>((index & 0x3u) | ((index >> 2) & 0xCu)) + 1;
}

namespace {

// Any code, as the sum of its minterms.
PixelValue Evaluate(std::uint8_t index, PixelValue p, PixelValue s, PixelValue d) {
  PixelValue result = 0;
  for (unsigned term = 0; term < 8; ++term) {
    if (((index >> term) & 1u) == 0) continue;
    result |= ((term & 4u) ? p : ~p) & ((term & 2u) ? s : ~s) & ((term & 1u) ? d : ~d);
  }
  return result;
}

template <class F>
void ForEach(const PixelValue* pattern, const PixelValue* source, PixelValue* destination,
             int count, F f) {
  for (int i = 0; i < count; ++i) {
    destination[i] =
        f(pattern != nullptr ? pattern[i] : 0, source != nullptr ? source[i] : 0, destination[i]);
  }
}

}  // namespace

void ApplyRop3Row(std::uint8_t index, const PixelValue* p, const PixelValue* s, PixelValue* d,
                  int count) {
  using V = PixelValue;
  // The codes painting relies on get a direct loop; the rest go through the truth table.
  switch (index) {
    case 0xCC: ForEach(p, s, d, count, [](V, V src, V) { return src; }); return;
    case 0x88: ForEach(p, s, d, count, [](V, V src, V dst) { return src & dst; }); return;
    case 0xEE: ForEach(p, s, d, count, [](V, V src, V dst) { return src | dst; }); return;
    case 0x22: ForEach(p, s, d, count, [](V, V src, V dst) { return ~src & dst; }); return;
    case 0x66: ForEach(p, s, d, count, [](V, V src, V dst) { return src ^ dst; }); return;
    case 0x33: ForEach(p, s, d, count, [](V, V src, V) { return ~src; }); return;
    case 0xF0: ForEach(p, s, d, count, [](V pat, V, V) { return pat; }); return;
    case 0x5A: ForEach(p, s, d, count, [](V pat, V, V dst) { return pat ^ dst; }); return;
    case 0x55: ForEach(p, s, d, count, [](V, V, V dst) { return ~dst; }); return;
    case 0x00: ForEach(p, s, d, count, [](V, V, V) { return V{0}; }); return;
    case 0xFF: ForEach(p, s, d, count, [](V, V, V) { return ~V{0}; }); return;
    case 0xB8:
      ForEach(p, s, d, count, [](V pat, V src, V dst) { return ((dst ^ pat) & src) ^ pat; });
      return;
    case 0xE2:
      ForEach(p, s, d, count, [](V pat, V src, V dst) { return ((pat ^ dst) & src) ^ dst; });
      return;
    default:
      ForEach(p, s, d, count,
              [index](V pat, V src, V dst) { return Evaluate(index, pat, src, dst); });
  }
}

}  // namespace glyphon::win::soft
