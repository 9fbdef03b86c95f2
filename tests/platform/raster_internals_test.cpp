#include <gtest/gtest.h>

#include "platform/soft/gdi/raster.h"
#include "platform/soft/soft_engine.h"
#include "platform/win32.h"
#include "tests/support/leak_check.h"

namespace glyphon::win::soft {
namespace {

TEST(Rop2Masks, EveryMixMatchesItsBooleanFormula) {
  const PixelValue p = 0x00F0CC55u, d = 0x00AA33F0u;
  const PixelValue expected[17] = {0,          0,      ~(d | p), ~p & d, ~p,    p & ~d,
                                   ~d,         p ^ d,  ~(p & d), p & d,  ~(p ^ d),
                                   d,          ~p | d, p,        p | ~d, p | d, ~PixelValue{0}};
  for (int rop = R2_BLACK; rop <= R2_WHITE; ++rop) {
    EXPECT_EQ(MixRop2(rop, p, d), expected[rop]) << "rop2 " << rop;
  }
  // Out-of-range modes behave as the copy mix.
  EXPECT_EQ(MixRop2(0, p, d), p);
  EXPECT_TRUE(Rop2Masks(R2_NOP, p).IsNop());
}

// A DC holding a fresh bitmap, torn down with the fixture.
class SurfaceFixture : public ::testing::Test {
 protected:
  void Use(int width, int height, UINT bitCount) {
    dc_ = CreateCompatibleDC(nullptr);
    bitmap_ = CreateBitmap(width, height, 1, bitCount, nullptr);
    old_ = SelectObject(dc_, bitmap_);
  }
  void TearDown() override {
    SelectObject(dc_, old_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
  }
  RasterTarget Target() const { return ResolveTarget(ThreadSoftEngine(), dc_); }

  testing::LeakCheck leaks_;
  HDC dc_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ old_ = nullptr;
};

using PenPixelTest = SurfaceFixture;

TEST_F(PenPixelTest, MonochromeRuleUsesExactMatchesThenTheBackground) {
  Use(8, 8, 1);
  const Pixmap& mono = *Target().surface;
  EXPECT_EQ(PenPixel(mono, RGB(0, 0, 0), RGB(0, 0, 0)), 0u);
  EXPECT_EQ(PenPixel(mono, RGB(255, 255, 255), RGB(255, 255, 255)), 1u);
  // Inexact colours take the opposite of the background's nearest entry...
  EXPECT_EQ(PenPixel(mono, RGB(255, 0, 0), RGB(255, 255, 255)), 0u);
  EXPECT_EQ(PenPixel(mono, RGB(255, 0, 0), RGB(0, 0, 0)), 1u);
  EXPECT_EQ(PenPixel(mono, RGB(200, 200, 200), RGB(10, 10, 10)), 1u);
  // ...unless they are the background colour itself.
  EXPECT_EQ(PenPixel(mono, RGB(200, 200, 200), RGB(200, 200, 200)), 1u);
  EXPECT_EQ(DevicePixel(mono, RGB(200, 200, 200)), 1u);
}

TEST_F(PenPixelTest, ColourSurfacesUseTheDevicePixel) {
  Use(4, 4, 32);
  EXPECT_EQ(PenPixel(*Target().surface, RGB(1, 2, 3), RGB(1, 2, 4)), 0x00010203u);
}

using BrushPixelsTest = SurfaceFixture;

TEST_F(BrushPixelsTest, HatchRowsAlignToTheSurfaceOriginAndHonourTheBackgroundMode) {
  Use(16, 16, 32);
  HBRUSH hatch = CreateHatchBrush(HS_CROSS, RGB(255, 0, 0));
  SetBkColor(dc_, RGB(0, 0, 255));
  const BrushObject* record = ThreadSoftEngine().Brush(hatch);
  {
    const BrushPixels opaque(record, Target());
    EXPECT_FALSE(opaque.IsSolid());
    EXPECT_EQ(opaque.At(4, 0), 0x00FF0000u);   // vertical stroke at column 4
    EXPECT_EQ(opaque.At(5, 1), 0x000000FFu);   // background
    EXPECT_EQ(opaque.At(-3, 3), 0x00FF0000u);  // horizontal stroke at row 3, any column
    EXPECT_EQ(opaque.At(12, -5), 0x00FF0000u);
    EXPECT_TRUE(opaque.Paints(5, 1));
  }
  SetBkMode(dc_, TRANSPARENT);
  const BrushPixels transparent(record, Target());
  EXPECT_FALSE(transparent.Paints(5, 1));
  EXPECT_TRUE(transparent.Paints(4, 1));
  DeleteObject(hatch);
}

TEST_F(BrushPixelsTest, MonochromePatternTakesTextAndBackgroundColours) {
  Use(4, 4, 32);
  const std::uint8_t bits[4] = {0x80, 0x00, 0x40, 0x00};  // 2x2, rows padded to 16 bits
  HBITMAP pattern = CreateBitmap(2, 2, 1, 1, bits);
  HBRUSH brush = CreatePatternBrush(pattern);
  SetTextColor(dc_, RGB(0, 255, 0));
  SetBkColor(dc_, RGB(0, 0, 255));
  const BrushPixels pixels(ThreadSoftEngine().Brush(brush), Target());
  EXPECT_EQ(pixels.At(0, 0), 0x000000FFu);
  EXPECT_EQ(pixels.At(1, 0), 0x0000FF00u);
  EXPECT_EQ(pixels.At(3, 1), 0x000000FFu);
  EXPECT_EQ(pixels.At(2, 1), 0x0000FF00u);
  DeleteObject(brush);
  DeleteObject(pattern);
}

TEST_F(BrushPixelsTest, MissingAndNullBrushesPaintNothing) {
  Use(4, 4, 32);
  EXPECT_TRUE(BrushPixels(nullptr, Target()).PaintsNothing());
  const auto* hollow =
      ThreadSoftEngine().Brush(static_cast<HBRUSH>(GetStockObject(NULL_BRUSH)));
  EXPECT_TRUE(BrushPixels(hollow, Target()).PaintsNothing());
  EXPECT_FALSE(ResolveTarget(ThreadSoftEngine(), nullptr));
}

TEST(ClipToSurface, ClampsHugeAndInvertedRectangles) {
  auto surface = Pixmap::Create(10, 5, 32, true, Pixmap::RowAlignment::DoubleWord);
  const RECT huge = ClipToSurface(*surface, RECT{-2147483647 - 1, -5, 2147483647, 2147483647});
  EXPECT_EQ(huge.left, 0);
  EXPECT_EQ(huge.right, 10);
  EXPECT_EQ(huge.bottom, 5);
  EXPECT_TRUE(IsEmptyRect(ClipToSurface(*surface, RECT{6, 0, 3, 5})));
  EXPECT_TRUE(IsEmptyRect(ClipToSurface(*surface, RECT{10, 0, 20, 5})));
}

}  // namespace
}  // namespace glyphon::win::soft
