#include <gtest/gtest.h>

#include "tests/platform/memory_surface.h"
#include "tests/support/gdi_scope.h"
#include "tests/support/leak_check.h"

namespace glyphon::win {
namespace {

using testing::MemorySurface;
using testing::Owned;
using testing::Selected;
using Values = std::vector<std::uint32_t>;

constexpr std::uint32_t kRed = 0xFF0000, kGreen = 0x00FF00, kBlue = 0x0000FF;
constexpr std::uint32_t kWhite = 0xFFFFFF, kMagenta = 0xFF00FF;

constexpr RGBQUAD Quad(std::uint32_t rgb) {
  return RGBQUAD{static_cast<BYTE>(rgb), static_cast<BYTE>(rgb >> 8), static_cast<BYTE>(rgb >> 16),
                 0};
}

// A monochrome pattern brush whose rows are all `bits` (most significant bit leftmost).
HBRUSH MonoPatternBrush(std::uint8_t bits) {
  std::uint8_t rows[16] = {};
  for (int y = 0; y < 8; ++y) rows[y * 2] = bits;
  Owned pattern{CreateBitmap(8, 8, 1, 1, rows)};
  return CreatePatternBrush(pattern);
}

Values Bits(std::uint8_t byte) {
  Values values;
  for (int i = 7; i >= 0; --i) values.push_back((byte >> i) & 1u);
  return values;
}

TEST(Blit, EveryRop3CodeFollowsItsTruthTableOnMonochromeBitmaps) {
  testing::LeakCheck leaks;
  // Pattern, source and destination bits chosen so that pixel x sees the inputs of table entry
  // 7 - x: the result row then spells out the code's index byte.
  MemorySurface source(8, 1, 1);
  source.Set(Bits(0xCC));
  MemorySurface destination(8, 1, 1);
  Owned pattern{MonoPatternBrush(0xF0)};
  Selected selected(destination.dc(), pattern);
  for (unsigned index = 0; index < 256; ++index) {
    destination.Set(Bits(0xAA));
    ASSERT_TRUE(BitBlt(destination.dc(), 0, 0, 8, 1, source.dc(), 0, 0, index << 16));
    ASSERT_EQ(destination.Get(), Bits(static_cast<std::uint8_t>(index))) << "index " << index;
  }
  // A solid brush is a pattern too: source ? destination : pattern, with black.
  Selected black(destination.dc(), GetStockObject(BLACK_BRUSH));
  destination.Set(Bits(0xAA));
  ASSERT_TRUE(BitBlt(destination.dc(), 0, 0, 8, 1, source.dc(), 0, 0, 0x00B8074A));
  EXPECT_EQ(destination.Get(), Bits(0x88));
}

TEST(Blit, ColorToMonochromeMatchesTheSourceBackground) {
  testing::LeakCheck leaks;
  MemorySurface color(4, 1, 32);
  color.Set({kMagenta, kRed, kMagenta, 0xFF000000 | kMagenta});
  SetBkColor(color.dc(), RGB(255, 0, 255));
  MemorySurface mono(4, 1, 1);
  SetBkColor(mono.dc(), RGB(255, 0, 0));  // the destination's colours play no part
  ASSERT_TRUE(BitBlt(mono.dc(), 0, 0, 4, 1, color.dc(), 0, 0, SRCCOPY));
  // The comparison is on the whole pixel value, so a set top byte never matches.
  EXPECT_EQ(mono.Get(), (Values{1, 0, 1, 0}));

  MemorySurface dib24(3, 1, 24, {});
  dib24.Set({kRed, kGreen, kRed});
  SetBkColor(dib24.dc(), RGB(0, 255, 0));
  ASSERT_TRUE(BitBlt(mono.dc(), 0, 0, 3, 1, dib24.dc(), 0, 0, SRCCOPY));
  EXPECT_EQ(mono.Get(), (Values{0, 1, 0, 0}));
}

TEST(Blit, MonochromeToColorTakesTheDestinationTextAndBackground) {
  testing::LeakCheck leaks;
  MemorySurface mono(2, 1, 1);
  mono.Set({0, 1});
  SetTextColor(mono.dc(), RGB(1, 2, 3));  // the source's colours play no part
  MemorySurface color(2, 1, 32);
  SetTextColor(color.dc(), RGB(255, 0, 0));
  SetBkColor(color.dc(), RGB(0, 0, 255));
  ASSERT_TRUE(BitBlt(color.dc(), 0, 0, 2, 1, mono.dc(), 0, 0, SRCCOPY));
  EXPECT_EQ(color.Get(), (Values{kRed, kBlue}));

  // A palette index colour reads through the DC's palette (entry 13 of the default one is red).
  SetTextColor(color.dc(), 0x0100000D);
  SetBkColor(color.dc(), 0x02FFFFFF);  // palette-relative white
  ASSERT_TRUE(BitBlt(color.dc(), 0, 0, 2, 1, mono.dc(), 0, 0, SRCCOPY));
  EXPECT_EQ(color.Get(), (Values{kRed, kWhite}));
}

TEST(Blit, OneBitSectionsUseTheirColorTables) {
  testing::LeakCheck leaks;
  MemorySurface dib(2, 1, 1, {Quad(kGreen), Quad(kMagenta)});
  dib.Set({0, 1});
  MemorySurface color(2, 1, 32);
  ASSERT_TRUE(BitBlt(color.dc(), 0, 0, 2, 1, dib.dc(), 0, 0, SRCCOPY));
  EXPECT_EQ(color.Get(), (Values{kGreen, kMagenta}));

  // Into a section, colours take the nearest table entry instead of the background rule.
  MemorySurface target(2, 1, 1, {Quad(0), Quad(kWhite)});
  color.Set({0x303030, 0xC0C0C0});
  SetBkColor(color.dc(), RGB(0x30, 0x30, 0x30));
  ASSERT_TRUE(BitBlt(target.dc(), 0, 0, 2, 1, color.dc(), 0, 0, SRCCOPY));
  EXPECT_EQ(target.Get(), (Values{0, 1}));

  // Between sections with different tables, indices are remapped by colour.
  MemorySurface swapped(2, 1, 1, {Quad(kWhite), Quad(0)});
  ASSERT_TRUE(BitBlt(swapped.dc(), 0, 0, 2, 1, target.dc(), 0, 0, SRCCOPY));
  EXPECT_EQ(swapped.Get(), (Values{1, 0}));
}

TEST(Blit, TransparentCopyThroughAMonochromeMask) {
  testing::LeakCheck leaks;
  MemorySurface image(4, 1, 32);
  image.Set({kRed, kMagenta, kGreen, kMagenta});
  MemorySurface background(4, 1, 32);
  background.Set({kBlue, kBlue, kWhite, kWhite});
  MemorySurface mask(4, 1, 1);

  SetBkColor(image.dc(), RGB(255, 0, 255));
  SetTextColor(image.dc(), RGB(255, 255, 255));
  BitBlt(mask.dc(), 0, 0, 4, 1, image.dc(), 0, 0, SRCCOPY);  // key pixels become 1
  EXPECT_EQ(mask.Get(), (Values{0, 1, 0, 1}));
  SetTextColor(image.dc(), RGB(0, 0, 0));
  SetBkColor(image.dc(), RGB(255, 255, 255));
  BitBlt(image.dc(), 0, 0, 4, 1, mask.dc(), 0, 0, 0x00220326);   // key pixels turn black
  BitBlt(background.dc(), 0, 0, 4, 1, mask.dc(), 0, 0, SRCAND);  // holes where the image is
  BitBlt(background.dc(), 0, 0, 4, 1, image.dc(), 0, 0, SRCPAINT);
  EXPECT_EQ(background.Get(), (Values{kRed, kBlue, kGreen, kWhite}));
}

TEST(Blit, TwentyFourAndThirtyTwoBitSurfacesConvertBothWays) {
  testing::LeakCheck leaks;
  MemorySurface dib24(2, 2, 24, {});
  dib24.Set({kRed, kGreen, kBlue, 0x123456});
  MemorySurface ddb(2, 2, 32);
  ddb.Set({0xFF000000, 0xFF000000, 0xFF000000, 0xFF000000});
  ASSERT_TRUE(BitBlt(ddb.dc(), 0, 0, 2, 2, dib24.dc(), 0, 0, SRCCOPY));
  EXPECT_EQ(ddb.Get(), (Values{kRed, kGreen, kBlue, 0x123456}));

  ddb.Set({0xAA000001, 2, 3, 4});
  ASSERT_TRUE(BitBlt(dib24.dc(), 0, 0, 2, 2, ddb.dc(), 0, 0, SRCCOPY));
  EXPECT_EQ(dib24.Get(), (Values{1, 2, 3, 4}));
  // Same format: the whole value, top byte included, is copied.
  MemorySurface other(2, 2, 32);
  ASSERT_TRUE(BitBlt(other.dc(), 0, 0, 2, 2, ddb.dc(), 0, 0, SRCCOPY));
  EXPECT_EQ(other.Get()[0], 0xAA000001u);
}

TEST(Blit, BothSidesAreClippedAndOverlappingCopiesWithinOneSurfaceWork) {
  testing::LeakCheck leaks;
  MemorySurface source(4, 1, 32);
  source.Set({1, 2, 3, 4});
  MemorySurface destination(5, 1, 32);
  destination.Set({9, 9, 9, 9, 9});
  EXPECT_TRUE(BitBlt(destination.dc(), -1, 0, 4, 1, source.dc(), 0, 0, SRCCOPY));
  EXPECT_EQ(destination.Get(), (Values{2, 3, 4, 9, 9}));
  destination.Set({9, 9, 9, 9, 9});
  EXPECT_TRUE(BitBlt(destination.dc(), 2, 0, 4, 1, source.dc(), -1, 0, SRCCOPY));
  EXPECT_EQ(destination.Get(), (Values{9, 9, 9, 1, 2}));
  // Nothing visible is success without effect.
  EXPECT_TRUE(BitBlt(destination.dc(), 7, 0, 4, 1, source.dc(), 0, 0, SRCCOPY));
  EXPECT_TRUE(BitBlt(destination.dc(), 0, 0, 4, 1, source.dc(), 0, 5, SRCCOPY));
  EXPECT_EQ(destination.Get(), (Values{9, 9, 9, 1, 2}));

  MemorySurface s(4, 3, 32);
  s.Set({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
  ASSERT_TRUE(BitBlt(s.dc(), 1, 0, 3, 3, s.dc(), 0, 0, SRCCOPY));
  EXPECT_EQ(s.Get(), (Values{1, 1, 2, 3, 5, 5, 6, 7, 9, 9, 10, 11}));
  ASSERT_TRUE(BitBlt(s.dc(), 0, 1, 4, 2, s.dc(), 0, 0, SRCCOPY));
  EXPECT_EQ(s.Get(), (Values{1, 1, 2, 3, 1, 1, 2, 3, 5, 5, 6, 7}));
  ASSERT_TRUE(BitBlt(s.dc(), 0, 0, 4, 2, s.dc(), 0, 1, SRCINVERT));
  EXPECT_EQ(s.Get(), (Values{0, 0, 0, 0, 1 ^ 5, 1 ^ 5, 2 ^ 6, 3 ^ 7, 5, 5, 6, 7}));
}

TEST(Blit, StretchGrowsShrinksByTheModeAndMirrors) {
  testing::LeakCheck leaks;
  MemorySurface source(4, 2, 32);
  source.Set({0x0F, 0xF0, 0x3C, 0xC3, 0x11, 0x22, 0x44, 0x88});
  // Shrinking merges pixels by the stretch mode: AND by default (mode 0 here), OR, or one of
  // them kept (the last across a row, the first down a column).
  const struct {
    int mode, width, height, sourceWidth, sourceHeight;
    Values expected;
  } cases[] = {
      {0, 8, 1, 4, 1, {0x0F, 0x0F, 0xF0, 0xF0, 0x3C, 0x3C, 0xC3, 0xC3}},
      {0, 2, 1, 4, 1, {0x00, 0x00}},
      {WHITEONBLACK, 2, 1, 4, 1, {0xFF, 0xFF}},
      {COLORONCOLOR, 2, 1, 4, 1, {0xF0, 0xC3}},
      {COLORONCOLOR, 1, 1, 1, 2, {0x0F}},
  };
  for (const auto& c : cases) {
    MemorySurface destination(c.width, c.height, 32);
    if (c.mode != 0) SetStretchBltMode(destination.dc(), c.mode);
    ASSERT_TRUE(StretchBlt(destination.dc(), 0, 0, c.width, c.height, source.dc(), 0, 0,
                           c.sourceWidth, c.sourceHeight, SRCCOPY));
    EXPECT_EQ(destination.Get(), c.expected) << "mode " << c.mode << ", " << c.width;
  }

  // HALFTONE interpolates.
  MemorySurface ramp(2, 1, 32);
  ramp.Set({0x000000, 0xFFFFFF});
  MemorySurface halftone(4, 1, 32);
  SetStretchBltMode(halftone.dc(), HALFTONE);
  ASSERT_TRUE(StretchBlt(halftone.dc(), 0, 0, 4, 1, ramp.dc(), 0, 0, 2, 1, SRCCOPY));
  EXPECT_EQ(halftone.Get(), (Values{0x000000, 0x808080, 0xFFFFFF, 0xFFFFFF}));

  // A negative extent on either side mirrors.
  MemorySurface mirrored(4, 1, 32);
  ASSERT_TRUE(StretchBlt(mirrored.dc(), 3, 0, -4, 1, source.dc(), 0, 0, 4, 1, SRCCOPY));
  EXPECT_EQ(mirrored.Get(), (Values{0xC3, 0x3C, 0xF0, 0x0F}));
  mirrored.Set({0, 0, 0, 0});
  ASSERT_TRUE(StretchBlt(mirrored.dc(), 0, 0, 4, 1, source.dc(), 3, 0, -4, 1, SRCCOPY));
  EXPECT_EQ(mirrored.Get(), (Values{0xC3, 0x3C, 0xF0, 0x0F}));
  MemorySurface flipped(4, 2, 32);
  ASSERT_TRUE(StretchBlt(flipped.dc(), 0, 1, 4, -2, source.dc(), 0, 0, 4, 2, SRCCOPY));
  EXPECT_EQ(flipped.Get(), (Values{0x11, 0x22, 0x44, 0x88, 0x0F, 0xF0, 0x3C, 0xC3}));
}

TEST(Blit, PatBltFillsWithTheBrushAndNeedsNoSource) {
  testing::LeakCheck leaks;
  MemorySurface s(4, 1, 32);
  Owned red{CreateSolidBrush(RGB(255, 0, 0))};
  Selected selected(s.dc(), red);
  EXPECT_TRUE(PatBlt(s.dc(), 1, 0, 2, 1, PATCOPY));
  EXPECT_EQ(s.Get(), (Values{0, kRed, kRed, 0}));
  EXPECT_TRUE(PatBlt(s.dc(), 3, 0, -2, 1, PATINVERT));  // covers pixels 2 and 3
  EXPECT_EQ(s.Get(), (Values{0, kRed, 0, kRed}));
  EXPECT_FALSE(PatBlt(s.dc(), 0, 0, 4, 1, SRCCOPY));
  Selected none(s.dc(), GetStockObject(NULL_BRUSH));
  EXPECT_TRUE(PatBlt(s.dc(), 0, 0, 4, 1, PATCOPY));    // a null brush paints nothing
  EXPECT_TRUE(PatBlt(s.dc(), 0, 0, 1, 1, DSTINVERT));  // but codes without pattern still apply
  EXPECT_EQ(s.Get(), (Values{0xFFFFFFFF, kRed, 0, kRed}));
}

TEST(Blit, DeletedAndInvalidHandlesAreRefused) {
  testing::LeakCheck leaks;
  MemorySurface destination(2, 1, 32);
  destination.Set({5, 6});
  HDC gone = CreateCompatibleDC(nullptr);
  DeleteDC(gone);
  EXPECT_FALSE(BitBlt(destination.dc(), 0, 0, 2, 1, gone, 0, 0, SRCCOPY));
  EXPECT_FALSE(StretchBlt(gone, 0, 0, 2, 1, destination.dc(), 0, 0, 1, 1, SRCCOPY));
  EXPECT_FALSE(BitBlt(nullptr, 0, 0, 2, 1, destination.dc(), 0, 0, SRCCOPY));
  EXPECT_FALSE(PatBlt(gone, 0, 0, 1, 1, BLACKNESS));
  // A source-free code never looks at the source handle.
  EXPECT_TRUE(BitBlt(destination.dc(), 0, 0, 1, 1, gone, 0, 0, BLACKNESS));
  EXPECT_EQ(destination.Get(), (Values{0, 6}));
}

}  // namespace
}  // namespace glyphon::win
