#include "platform/soft/gdi/default_color_tables.h"

#include <array>

namespace glyphon::win::soft {

namespace {

constexpr RGBQUAD Rgb(int r, int g, int b) {
  return RGBQUAD{static_cast<BYTE>(b), static_cast<BYTE>(g), static_cast<BYTE>(r), 0};
}

// The twenty static colours: ten dark ones first, ten bright ones last.
constexpr std::array<RGBQUAD, 10> kFirstStatic = {
    Rgb(0, 0, 0),     Rgb(128, 0, 0),   Rgb(0, 128, 0),     Rgb(128, 128, 0),   Rgb(0, 0, 128),
    Rgb(128, 0, 128), Rgb(0, 128, 128), Rgb(192, 192, 192), Rgb(192, 220, 192), Rgb(166, 202, 240)};
constexpr std::array<RGBQUAD, 10> kLastStatic = {
    Rgb(255, 251, 240), Rgb(160, 160, 164), Rgb(128, 128, 128), Rgb(255, 0, 0),
    Rgb(0, 255, 0),     Rgb(255, 255, 0),   Rgb(0, 0, 255),     Rgb(255, 0, 255),
    Rgb(0, 255, 255),   Rgb(255, 255, 255)};

constexpr std::array<RGBQUAD, 2> kTable1 = {Rgb(0, 0, 0), Rgb(255, 255, 255)};

constexpr std::array<RGBQUAD, 16> kTable4 = {
    Rgb(0, 0, 0),       Rgb(128, 0, 0),   Rgb(0, 128, 0),   Rgb(128, 128, 0),
    Rgb(0, 0, 128),     Rgb(128, 0, 128), Rgb(0, 128, 128), Rgb(128, 128, 128),
    Rgb(192, 192, 192), Rgb(255, 0, 0),   Rgb(0, 255, 0),   Rgb(255, 255, 0),
    Rgb(0, 0, 255),     Rgb(255, 0, 255), Rgb(0, 255, 255), Rgb(255, 255, 255)};

// Between the static colours: 8 levels of red and green and 4 of blue, from the index bits.
constexpr std::array<RGBQUAD, 256> MakeTable8() {
  std::array<RGBQUAD, 256> table{};
  for (int i = 0; i < 256; ++i) {
    table[i] = Rgb((i & 7) * 0x20, ((i >> 3) & 7) * 0x20, (i >> 6) * 0x40);
  }
  for (int i = 0; i < 10; ++i) {
    table[i] = kFirstStatic[i];
    table[246 + i] = kLastStatic[i];
  }
  return table;
}

constexpr std::array<RGBQUAD, 256> kTable8 = MakeTable8();

}  // namespace

std::span<const RGBQUAD> DefaultColorTable(int bitsPerPixel) {
  switch (bitsPerPixel) {
    case 1: return kTable1;
    case 4: return kTable4;
    case 8: return kTable8;
    default: return {};
  }
}

}  // namespace glyphon::win::soft
