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

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

TEST(ExtFloodFill, BorderFillStopsAtTheColourAndNotAtDiagonalGaps) {
  LeakCheck leaks;
  RasterSurface s(8, 6);
  s.UsePen(PS_SOLID, 1, kRed);
  SelectObject(s.dc(), GetStockObject(NULL_BRUSH));
  Rectangle(s.dc(), 0, 0, 6, 5);
  SetPixel(s.dc(), 3, 3, RGB(0, 0, 0));  // other colours are filled over
  MoveToEx(s.dc(), 1, 2, nullptr);
  LineTo(s.dc(), 3, 0);  // a diagonal wall still shuts the corner off from a four-way fill
  s.UseBrush(CreateSolidBrush(kBlue));
  EXPECT_TRUE(ExtFloodFill(s.dc(), 4, 3, kRed, FLOODFILLBORDER));
  const Picture expected = {
      "rrrrrr..", "r.rbbr..", "rrbbbr..", "rbbbbr..", "rrrrrr..", "........",
  };
  EXPECT_EQ(s.Picture({{kRed, 'r'}, {kBlue, 'b'}}), expected);
  // Starting on the border colour, or off the surface, fills nothing.
  EXPECT_FALSE(ExtFloodFill(s.dc(), 0, 0, kRed, FLOODFILLBORDER));
  EXPECT_FALSE(ExtFloodFill(s.dc(), 8, 0, kRed, FLOODFILLBORDER));
  EXPECT_FALSE(FloodFill(s.dc(), 0, -1, kRed));
}

TEST(ExtFloodFill, SurfaceFillReplacesTheConnectedColourWithTheBrushAndMix) {
  LeakCheck leaks;
  RasterSurface s(6, 3);
  SetPixel(s.dc(), 2, 0, kRed);
  SetPixel(s.dc(), 2, 1, kRed);
  SetPixel(s.dc(), 2, 2, kRed);
  s.UseBrush(CreateSolidBrush(kRed));
  SetROP2(s.dc(), R2_XORPEN);  // white xor red is cyan
  EXPECT_FALSE(ExtFloodFill(s.dc(), 2, 1, RGB(255, 255, 255), FLOODFILLSURFACE));
  EXPECT_TRUE(ExtFloodFill(s.dc(), 4, 1, RGB(255, 255, 255), FLOODFILLSURFACE));
  EXPECT_EQ(s.Picture({{kRed, 'r'}, {RGB(0, 255, 255), 'c'}})[1], "..rccc");
}

TEST(ExtFloodFill, LongWindingAreasNeedNoRecursion) {
  LeakCheck leaks;
  // Walls with alternating gaps make one path that snakes through the whole surface.
  const int size = 301;
  RasterSurface s(size, size);
  for (int x = 1; x < size; x += 2) {
    MoveToEx(s.dc(), x, x % 4 == 1 ? 0 : 1, nullptr);
    LineTo(s.dc(), x, x % 4 == 1 ? size - 1 : size);
  }
  s.UseBrush(CreateSolidBrush(kBlue));
  EXPECT_TRUE(ExtFloodFill(s.dc(), 0, 0, RGB(0, 0, 0), FLOODFILLBORDER));
  EXPECT_EQ(GetPixel(s.dc(), size - 1, size - 1), kBlue);
  EXPECT_EQ(GetPixel(s.dc(), 1, 5), RGB(0, 0, 0));
}

}  // namespace
}  // namespace glyphon::win
