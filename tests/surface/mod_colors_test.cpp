#include "surface/mod_colors.h"

#include <array>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "platform/soft/soft_engine.h"

namespace glyphon::modColors {
namespace {

using win::RGB;

TEST(ModColors, SystemColoursAndComponents) {
  EXPECT_TRUE(IsSystemColor(0x8000000F));
  EXPECT_FALSE(IsSystemColor(0x00FFFFFF));
  EXPECT_FALSE(IsSystemColor(0x81000000));  // only the top byte counts
  std::int32_t red = 0, green = 0, blue = 0;
  SplitRGB(0x00C08040, red, green, blue);
  EXPECT_EQ((std::array{red, green, blue}), (std::array{0x40, 0x80, 0xC0}));
  // An untranslated system colour is negative; truncation keeps the components negative.
  SplitRGB(static_cast<std::int32_t>(0x8000000Fu), red, green, blue);
  EXPECT_EQ((std::array{red, green, blue}), (std::array{-241, -255, -255}));
}

TEST(ModColors, HlsConversionsOnTheTwoFortyScale) {
  float h = -1, s = -1, l = -1;
  RGBToHLS(RGB(255, 0, 255), h, s, l);  // the red branch's negative hue wraps
  EXPECT_EQ((std::array{h, s, l}), (std::array{200.0f, 240.0f, 120.0f}));
  RGBToHLS(RGB(128, 128, 128), h, s, l);
  EXPECT_EQ((std::array{h, s}), (std::array{0.0f, 0.0f}));
  EXPECT_FLOAT_EQ(l, 240.0f * 128 / 255);
  // Channels are truncated: 127.5 gives 127.
  for (const auto& [hue, saturation, luminance, rgb] :
       {std::tuple{0.0f, 0.0f, 120.0f, RGB(127, 127, 127)},
        {0.0f, 0.0f, 160.0f, RGB(170, 170, 170)},
        {80.0f, 240.0f, 120.0f, RGB(0, 255, 0)},
        {160.0f, 240.0f, 120.0f, RGB(0, 0, 255)}}) {
    EXPECT_EQ(HLSToRGB(hue, saturation, luminance), rgb) << hue << " " << saturation;
  }
}

TEST(ModColors, HueToRgbWrapsTheCallersTOnceEachWay) {
  float p = 0.25f, q = 0.75f;
  float t = -0.25f;
  EXPECT_EQ(HueToRGB(p, q, t), p);
  EXPECT_EQ(t, 0.75f);
  t = 1.5f;
  EXPECT_EQ(HueToRGB(p, q, t), q);
  EXPECT_EQ(t, 0.5f);
  t = -1.5f;
  HueToRGB(p, q, t);
  EXPECT_EQ(t, -0.5f);
}

// Shadow, border and highlight.
std::array<win::COLORREF, 3> Derive(win::OLE_COLOR color) {
  std::array<win::COLORREF, 3> d{1, 1, 1};
  DeriveButtonColors(color, d[0], d[1], d[2]);
  return d;
}

TEST(ModColors, DeriveButtonColorsRoundsLuminanceHalfToEven) {
  // For the face, L = 193.9: highlight at round(216.94) = 217, shadow at round(129.25) = 129.
  const std::pair<win::COLORREF, std::array<win::COLORREF, 3>> cases[] = {
      {RGB(212, 208, 200), {RGB(151, 142, 122), 0, RGB(233, 231, 227)}},
      {RGB(255, 255, 255), {RGB(170, 170, 170), 0, RGB(255, 255, 255)}},
      {RGB(0, 0, 0), {RGB(0, 0, 0), 0, RGB(127, 127, 127)}},
      {RGB(100, 100, 100), {RGB(66, 66, 66), 0, RGB(177, 177, 177)}},
  };
  for (const auto& [face, derived] : cases) EXPECT_EQ(Derive(face), derived) << std::hex << face;
}

TEST(ModColors, DeriveButtonColorsResolvesSystemColoursAtTheCall) {
  constexpr win::OLE_COLOR kButtonFace = 0x80000000u | win::COLOR_BTNFACE;
  EXPECT_EQ(Derive(kButtonFace)[0], RGB(151, 142, 122));
  auto& engine = win::soft::ThreadSoftEngine();
  auto scheme = win::soft::ClassicSystemColors();
  scheme[win::COLOR_BTNFACE] = RGB(255, 255, 255);
  engine.SetSystemColors(scheme);
  EXPECT_EQ(Derive(kButtonFace)[0], RGB(170, 170, 170));
  engine.SetSystemColors(win::soft::ClassicSystemColors());
}

}  // namespace
}  // namespace glyphon::modColors
