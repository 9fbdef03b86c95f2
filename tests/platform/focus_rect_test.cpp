#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/win32.h"
#include "tests/platform/raster_surface.h"
#include "tests/support/leak_check.h"

namespace glyphon::win {
namespace {

using testing::LeakCheck;
using testing::RasterSurface;
using Picture = std::vector<std::string>;

TEST(DrawFocusRect, InvertsEveryOtherOutlinePixelCountedFromTheTopRight) {
  LeakCheck leaks;
  RasterSurface s(12, 8);
  const RECT odd{1, 1, 11, 7};
  EXPECT_TRUE(DrawFocusRect(s.dc(), &odd));
  const Picture expected = {
      "............", "..#.#.#.#.#.", ".#..........", "..........#.",
      ".#..........", "..........#.", ".#.#.#.#.#..", "............",
  };
  EXPECT_EQ(s.Picture(), expected);
  // One column narrower moves the starting dot, so the corner pixel is inverted.
  s.Clear(RGB(255, 255, 255));
  const RECT even{1, 1, 10, 7};
  DrawFocusRect(s.dc(), &even);
  EXPECT_EQ(s.Picture()[1], ".#.#.#.#.#..");
}

TEST(DrawFocusRect, DrawingItTwiceRestoresThePixelsWhateverTheDcState) {
  LeakCheck leaks;
  RasterSurface s(10, 10);
  HBRUSH hatch = CreateHatchBrush(HS_DIAGCROSS, RGB(10, 200, 30));
  const RECT all{0, 0, 10, 10};
  FillRect(s.dc(), &all, hatch);
  const Picture before = s.Picture({{RGB(10, 200, 30), 'g'}});
  SetROP2(s.dc(), R2_BLACK);  // the focus rectangle brings its own pen, mix and fill
  s.UseBrush(CreateSolidBrush(RGB(255, 0, 0)));
  const RECT focus{2, 1, 9, 8};
  DrawFocusRect(s.dc(), &focus);
  EXPECT_NE(s.Picture({{RGB(10, 200, 30), 'g'}}), before);
  DrawFocusRect(s.dc(), &focus);
  EXPECT_EQ(s.Picture({{RGB(10, 200, 30), 'g'}}), before);
  DeleteObject(hatch);
}

TEST(DrawFocusRect, EmptyRectanglesAndBadArgumentsDrawNothing) {
  LeakCheck leaks;
  RasterSurface s(4, 4);
  const RECT empty{2, 0, 2, 4};
  EXPECT_TRUE(DrawFocusRect(s.dc(), &empty));
  EXPECT_EQ(s.Picture(), Picture(4, "...."));
  EXPECT_FALSE(DrawFocusRect(s.dc(), nullptr));
  EXPECT_FALSE(DrawFocusRect(nullptr, &empty));
}

}  // namespace
}  // namespace glyphon::win
