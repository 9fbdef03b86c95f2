#include "surface/mod_colors.h"

#include <array>

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
  EXPECT_EQ(HLSToRGB(0, 0, 120), RGB(127, 127, 127));
  EXPECT_EQ(HLSToRGB(0, 0, 160), RGB(170, 170, 170));
  EXPECT_EQ(HLSToRGB(80, 240, 120), RGB(0, 255, 0));
  EXPECT_EQ(HLSToRGB(160, 240, 120), RGB(0, 0, 255));
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

struct Derived {
  win::COLORREF shadow = 1, border = 1, highlight = 1;
};

Derived Derive(win::OLE_COLOR color) {
  Derived d;
  DeriveButtonColors(color, d.shadow, d.border, d.highlight);
  return d;
}

TEST(ModColors, DeriveButtonColorsRoundsLuminanceHalfToEven) {
  // L = 193.9: highlight at round(216.94) = 217, shadow at round(129.25) = 129.
  const Derived face = Derive(RGB(212, 208, 200));
  EXPECT_EQ(face.highlight, RGB(233, 231, 227));
  EXPECT_EQ(face.shadow, RGB(151, 142, 122));
  EXPECT_EQ(face.border, 0u);
  EXPECT_EQ(Derive(RGB(255, 255, 255)).highlight, RGB(255, 255, 255));
  EXPECT_EQ(Derive(RGB(255, 255, 255)).shadow, RGB(170, 170, 170));
  EXPECT_EQ(Derive(RGB(0, 0, 0)).highlight, RGB(127, 127, 127));
  EXPECT_EQ(Derive(RGB(0, 0, 0)).shadow, RGB(0, 0, 0));
  EXPECT_EQ(Derive(RGB(100, 100, 100)).highlight, RGB(177, 177, 177));
  EXPECT_EQ(Derive(RGB(100, 100, 100)).shadow, RGB(66, 66, 66));
}

TEST(ModColors, DeriveButtonColorsResolvesSystemColoursAtTheCall) {
  constexpr win::OLE_COLOR kButtonFace = 0x80000000u | win::COLOR_BTNFACE;
  EXPECT_EQ(Derive(kButtonFace).shadow, RGB(151, 142, 122));
  auto& engine = win::soft::ThreadSoftEngine();
  auto scheme = win::soft::ClassicSystemColors();
  scheme[win::COLOR_BTNFACE] = RGB(255, 255, 255);
  engine.SetSystemColors(scheme);
  EXPECT_EQ(Derive(kButtonFace).shadow, RGB(170, 170, 170));
  engine.SetSystemColors(win::soft::ClassicSystemColors());
}

}  // namespace
}  // namespace glyphon::modColors
