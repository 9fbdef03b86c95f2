// The arithmetic of the greyed and faded pictures, and the resize, on DIB sections' own bytes.
#include <gtest/gtest.h>

#include "content/pixel_arithmetic.h"
#include "content/pixel_effects.h"
#include "content/pixel_view.h"
#include "surface/dib_section.h"
#include "tests/content/content_sheet.h"
#include "tests/support/leak_check.h"

namespace glyphon {
namespace {

using testing::LeakCheck;

constexpr win::COLORREF kCyan = win::RGB(0, 255, 255);

// Writes (blue, green, red) at a pixel of memory row `row`.
void Put(const cDIBSection& dib, int row, int column, int blue, int green, int red) {
  std::uint8_t* pixel = PixelView(dib).Pixel(row, column);
  pixel[0] = static_cast<std::uint8_t>(blue);
  pixel[1] = static_cast<std::uint8_t>(green);
  pixel[2] = static_cast<std::uint8_t>(red);
}

std::array<int, 3> Get(const cDIBSection& dib, int row, int column) {
  const std::uint8_t* pixel = PixelView(dib).Pixel(row, column);
  return {pixel[0], pixel[1], pixel[2]};
}

TEST(PixelArithmetic, GreyWeightsRoundHalvesToEven) {
  EXPECT_EQ(GreyLevel(255, 255, 255), 255);
  EXPECT_EQ(GreyLevel(0, 0, 0), 0);
  EXPECT_EQ(GreyLevel(255, 0, 0), 57);  // 56.61
  EXPECT_EQ(GreyLevel(0, 255, 0), 180);  // 180.285
  EXPECT_EQ(GreyLevel(0, 0, 255), 18);  // 18.105
  EXPECT_EQ(GreyLevel(10, 20, 30), 18);  // 18.49
  EXPECT_EQ(GreyLevel(1, 0, 18), 2);  // 1.5
  EXPECT_EQ(GreyLevel(2, 1, 19), 2);  // 2.5
  EXPECT_EQ(GreyLevel(0, 28, 24), 22);  // 21.5
}

TEST(PixelArithmetic, MixByStrength) {
  EXPECT_EQ(MixLevel(40, 200, 0), 40);
  EXPECT_EQ(MixLevel(40, 200, 100), 200);
  EXPECT_EQ(MixLevel(40, 200, 50), 120);
  EXPECT_EQ(MixLevel(10, 11, 50), 10);  // 10.5
  EXPECT_EQ(MixLevel(11, 12, 50), 12);  // 11.5
  EXPECT_EQ(MixLevel(0, 255, 33), 84);  // 84.15
}

TEST(PixelSteps, GreyTintsKeepOneChannelAndLeaveTheMaskColour) {
  LeakCheck leaks;
  cDIBSection image;
  image.Create(3, 1);
  Put(image, 0, 0, 30, 20, 10);
  Put(image, 0, 1, 255, 255, 0);  // cyan: the mask colour
  Put(image, 0, 2, 0, 0, 255);
  TurnGrey(image, win::RGB(0, 0, 255), kCyan);
  EXPECT_EQ(Get(image, 0, 0), (std::array<int, 3>{18, 0, 0}));
  EXPECT_EQ(Get(image, 0, 1), (std::array<int, 3>{255, 255, 0}));
  EXPECT_EQ(Get(image, 0, 2), (std::array<int, 3>{57, 0, 0}));

  TurnGrey(image, win::RGB(255, 0, 0), kNoColor);
  EXPECT_EQ(Get(image, 0, 0), (std::array<int, 3>{0, 0, 1}));  // grey of (0, 0, 18)
  TurnGrey(image, kPlainGrey, kNoColor);
  EXPECT_EQ(Get(image, 0, 2), (std::array<int, 3>{1, 1, 1}));  // red 4 (of blue 57) is 0.888
}

TEST(PixelSteps, MixCopiesMaskPixelsAndWeighsTheRest) {
  LeakCheck leaks;
  cDIBSection background;
  cDIBSection effect;
  background.Create(2, 2);
  effect.Create(2, 2);
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 2; ++column) {
      Put(background, row, column, 100, 100, 100);
      Put(effect, row, column, 200, 50, 0);
    }
  }
  Put(effect, 1, 1, 255, 255, 0);
  MixInto(background, effect, 50, kCyan);
  EXPECT_EQ(Get(background, 0, 0), (std::array<int, 3>{150, 75, 50}));
  EXPECT_EQ(Get(background, 1, 1), (std::array<int, 3>{255, 255, 0}));
}

TEST(PixelSteps, ResizeStopsShortOfTheLastRowAndColumn) {
  LeakCheck leaks;
  cDIBSection source;
  source.Create(4, 3);
  // Blue = 10 x column + 100 x row in memory order; the last column and row are loud.
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 4; ++column) {
      const bool last = row == 2 || column == 3;
      Put(source, row, column, last ? 255 : 10 * column + 100 * row, 7, 0);
    }
  }
  cDIBSection target;
  target.Create(2, 2);
  ResizeBilinear(source, target);
  // Steps 3 / 2 = 1.5 across and 2 / 2 = 1 down.
  EXPECT_EQ(Get(target, 0, 0)[0], 0);
  EXPECT_EQ(Get(target, 0, 1)[0], 15);   // between columns 1 and 2 of row 0
  EXPECT_EQ(Get(target, 1, 0)[0], 100);  // row 1, not row 2
  EXPECT_EQ(Get(target, 1, 1)[0], 115);  // never reads the loud last row or column
  EXPECT_EQ(Get(target, 1, 1)[1], 7);

  // Halves go to even in each blend: 10 and 15 half-way give 12.
  cDIBSection pair;
  pair.Create(3, 1);
  Put(pair, 0, 0, 0, 10, 0);
  Put(pair, 0, 1, 0, 15, 0);
  cDIBSection half;
  half.Create(4, 1);
  ResizeBilinear(pair, half);  // step 2 / 4 = 0.5
  EXPECT_EQ(Get(half, 0, 1)[1], 12);
}

TEST(PixelEffects, FadedPictureHalvesOverTheFaceAndKeepsTheMaskOut) {
  LeakCheck leaks;
  auto canvas = testing::MakeFilledCanvas(4, 2, win::RGB(100, 100, 100));
  cDIBSection picture;
  picture.Create(2, 1);
  Put(picture, 0, 0, 0, 50, 200);
  Put(picture, 0, 1, 255, 255, 0);
  ASSERT_TRUE(PaintFadedDC(picture.hdc(), 0, 0, 2, 1, canvas->hdc(), 1, 1, -1, -1, 50, kCyan));
  EXPECT_EQ(win::GetPixel(canvas->hdc(), 1, 1), win::RGB(150, 75, 50));
  EXPECT_EQ(win::GetPixel(canvas->hdc(), 2, 1), win::RGB(100, 100, 100));
  EXPECT_EQ(win::GetPixel(canvas->hdc(), 0, 1), win::RGB(100, 100, 100));

  // Strength 100 shows the grey picture alone; without a mask colour cyan is greyed too.
  ASSERT_TRUE(PaintGreyedDC(picture.hdc(), 0, 0, 2, 1, canvas->hdc(), 1, 0, 2, 1, 100,
                            kPlainGrey));
  EXPECT_EQ(win::GetPixel(canvas->hdc(), 1, 0), win::RGB(80, 80, 80));  // 79.75
  EXPECT_EQ(win::GetPixel(canvas->hdc(), 2, 0), win::RGB(198, 198, 198));  // 198.39
}

TEST(PixelEffects, ResizedFadeBlendsAFringeNextToTheMask) {
  LeakCheck leaks;
  auto canvas = testing::MakeFilledCanvas(8, 1, win::RGB(0, 0, 0));
  cDIBSection picture;
  picture.Create(3, 1);
  Put(picture, 0, 0, 0, 0, 200);
  Put(picture, 0, 1, 255, 255, 0);
  Put(picture, 0, 2, 255, 255, 0);
  ASSERT_TRUE(PaintFadedDC(picture.hdc(), 0, 0, 3, 1, canvas->hdc(), 0, 0, 8, 1, 100, kCyan));
  // Column 1 samples at 0.25 between red and cyan: no longer the mask colour, so it is drawn.
  EXPECT_EQ(win::GetPixel(canvas->hdc(), 0, 0), win::RGB(200, 0, 0));
  EXPECT_EQ(win::GetPixel(canvas->hdc(), 1, 0), win::RGB(150, 64, 64));
  EXPECT_EQ(win::GetPixel(canvas->hdc(), 7, 0), win::RGB(0, 0, 0));
}

}  // namespace
}  // namespace glyphon
