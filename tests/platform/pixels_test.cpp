#include <gtest/gtest.h>

#include "platform/win32.h"
#include "tests/platform/raster_surface.h"
#include "tests/support/leak_check.h"

namespace glyphon::win {
namespace {

using testing::LeakCheck;
using testing::RasterSurface;

TEST(SetPixel, ReturnsTheColourTheSurfaceCanShow) {
  LeakCheck leaks;
  RasterSurface colour(2, 1), mono(2, 1, 1);
  EXPECT_EQ(SetPixel(colour.dc(), 1, 0, RGB(1, 2, 3)), RGB(1, 2, 3));
  EXPECT_EQ(GetPixel(colour.dc(), 1, 0), RGB(1, 2, 3));
  // No monochrome pen rule here: the nearest of black and white.
  EXPECT_EQ(SetPixel(mono.dc(), 0, 0, RGB(50, 60, 40)), RGB(0, 0, 0));
  EXPECT_EQ(SetPixel(mono.dc(), 1, 0, RGB(200, 190, 210)), RGB(255, 255, 255));
  EXPECT_EQ(GetPixel(mono.dc(), 0, 0), RGB(0, 0, 0));
  EXPECT_TRUE(SetPixelV(colour.dc(), 0, 0, RGB(9, 9, 9)));
  EXPECT_EQ(GetPixel(colour.dc(), 0, 0), RGB(9, 9, 9));
}

TEST(SetPixel, MixesWithTheDcRop2) {
  LeakCheck leaks;
  RasterSurface s(1, 1);
  SetROP2(s.dc(), R2_XORPEN);
  SetPixel(s.dc(), 0, 0, RGB(255, 0, 0));
  EXPECT_EQ(GetPixel(s.dc(), 0, 0), RGB(0, 255, 255));
}

TEST(SetPixel, OffSurfaceAndBadDcsGiveClrInvalid) {
  LeakCheck leaks;
  RasterSurface s(3, 3);
  for (const POINT p : {POINT{-1, 0}, POINT{0, -1}, POINT{3, 0}, POINT{0, 3}}) {
    EXPECT_EQ(SetPixel(s.dc(), p.x, p.y, RGB(0, 0, 0)), CLR_INVALID);
    EXPECT_FALSE(SetPixelV(s.dc(), p.x, p.y, RGB(0, 0, 0)));
    EXPECT_EQ(GetPixel(s.dc(), p.x, p.y), CLR_INVALID);
  }
  HDC gone = CreateCompatibleDC(nullptr);
  DeleteDC(gone);
  EXPECT_EQ(SetPixel(gone, 0, 0, 0), CLR_INVALID);
  EXPECT_EQ(GetPixel(gone, 0, 0), CLR_INVALID);
}

}  // namespace
}  // namespace glyphon::win
