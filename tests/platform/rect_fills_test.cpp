#include <gtest/gtest.h>

#include <climits>
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

int Fill(HDC dc, int left, int top, int right, int bottom, HBRUSH brush) {
  const RECT rect{left, top, right, bottom};
  return FillRect(dc, &rect, brush);
}

TEST(FillRect, FillsRightAndBottomExclusiveWhateverTheMix) {
  LeakCheck leaks;
  RasterSurface s(6, 4);
  HBRUSH red = CreateSolidBrush(kRed);
  SetROP2(s.dc(), R2_XORPEN);
  EXPECT_EQ(Fill(s.dc(), 1, 1, 4, 3, red), 1);
  // A reversed rectangle is mirrored around its start pixel, as a block transfer is.
  Fill(s.dc(), 6, 3, 4, 4, red);
  const Picture expected = {"......", ".rrr..", ".rrr..", ".....r"};
  EXPECT_EQ(s.Picture({{kRed, 'r'}}), expected);
  DeleteObject(red);
}

TEST(FillRect, HugeRectanglesCoverTheSurface) {
  LeakCheck leaks;
  RasterSurface s(3, 2);
  EXPECT_EQ(Fill(s.dc(), INT_MIN, INT_MIN, INT_MAX, INT_MAX, GetSysColorBrush(COLOR_WINDOWTEXT)),
            1);
  EXPECT_EQ(s.Picture(), Picture(2, "###"));
}

TEST(FillRect, TakesSystemColourIndicesAndIgnoresBadBrushes) {
  LeakCheck leaks;
  RasterSurface s(4, 2);
  EXPECT_EQ(Fill(s.dc(), 0, 0, 4, 1, reinterpret_cast<HBRUSH>(COLOR_BTNSHADOW + 1)), 1);
  EXPECT_EQ(GetPixel(s.dc(), 3, 0), GetSysColor(COLOR_BTNSHADOW));
  HBRUSH gone = CreateSolidBrush(kRed);
  DeleteObject(gone);
  EXPECT_EQ(Fill(s.dc(), 0, 1, 4, 2, gone), 0);
  EXPECT_EQ(Fill(s.dc(), 0, 1, 4, 2, nullptr), 0);
  EXPECT_EQ(FillRect(s.dc(), nullptr, GetSysColorBrush(COLOR_WINDOW)), 0);
  EXPECT_EQ(s.Picture()[1], "....");
}

TEST(FrameRect, PaintsAOnePixelBorder) {
  LeakCheck leaks;
  RasterSurface s(6, 5);
  HBRUSH red = CreateSolidBrush(kRed);
  const RECT frame{1, 1, 5, 5};
  EXPECT_EQ(FrameRect(s.dc(), &frame, red), 1);
  const RECT empty{3, 1, 3, 5};
  EXPECT_EQ(FrameRect(s.dc(), &empty, red), 0);
  const Picture expected = {"......", ".rrrr.", ".r..r.", ".r..r.", ".rrrr."};
  EXPECT_EQ(s.Picture({{kRed, 'r'}}), expected);
  DeleteObject(red);
}

TEST(HatchBrushes, EachStyleIsItsEightByEightPattern) {
  LeakCheck leaks;
  const std::vector<Picture> patterns = {
      {"........", "........", "........", "########", "........", "........", "........",
       "........"},
      {"....#...", "....#...", "....#...", "....#...", "....#...", "....#...", "....#...",
       "....#..."},
      {"#.......", ".#......", "..#.....", "...#....", "....#...", ".....#..", "......#.",
       ".......#"},
      {".......#", "......#.", ".....#..", "....#...", "...#....", "..#.....", ".#......",
       "#......."},
      {"....#...", "....#...", "....#...", "########", "....#...", "....#...", "....#...",
       "....#..."},
      {"#......#", ".#....#.", "..#..#..", "...##...", "...##...", "..#..#..", ".#....#.",
       "#......#"},
  };
  for (int hatch = HS_HORIZONTAL; hatch <= HS_DIAGCROSS; ++hatch) {
    RasterSurface s(8, 8);
    HBRUSH brush = CreateHatchBrush(hatch, RGB(0, 0, 0));
    Fill(s.dc(), 0, 0, 8, 8, brush);
    EXPECT_EQ(s.Picture(), patterns[hatch]) << "hatch " << hatch;
    DeleteObject(brush);
  }
}

TEST(HatchBrushes, AlignToTheSurfaceAndFollowTheBackgroundMode) {
  LeakCheck leaks;
  RasterSurface s(11, 6);
  s.Clear(kBlue);
  HBRUSH brush = CreateHatchBrush(HS_CROSS, RGB(0, 0, 0));
  SetBkColor(s.dc(), kRed);
  Fill(s.dc(), 3, 2, 11, 4, brush);
  SetBkMode(s.dc(), TRANSPARENT);
  Fill(s.dc(), 3, 4, 11, 6, brush);
  const Picture expected = {
      "bbbbbbbbbbb", "bbbbbbbbbbb", "bbbr#rrrrrr", "bbb########",
      "bbbb#bbbbbb", "bbbb#bbbbbb",
  };
  EXPECT_EQ(s.Picture({{kRed, 'r'}, {kBlue, 'b'}}), expected);
  DeleteObject(brush);
}

TEST(PatternBrushes, MonochromePatternsTakeTheTextAndBackgroundColours) {
  LeakCheck leaks;
  RasterSurface s(5, 2);
  const std::uint8_t bits[4] = {0x40, 0x00, 0x80, 0x00};  // rows ".#" and "#."
  HBITMAP pattern = CreateBitmap(2, 2, 1, 1, bits);
  HBRUSH brush = CreatePatternBrush(pattern);
  SetTextColor(s.dc(), kRed);
  SetBkColor(s.dc(), kBlue);
  Fill(s.dc(), 0, 0, 5, 2, brush);
  const Picture expected = {"rbrbr", "brbrb"};
  EXPECT_EQ(s.Picture({{kRed, 'r'}, {kBlue, 'b'}}), expected);
  DeleteObject(brush);
  DeleteObject(pattern);
}

TEST(SolidBrushes, AreDitheredOnMonochromeBitmapsUnlessBlackOrWhite) {
  LeakCheck leaks;
  RasterSurface s(8, 3, 1);
  HBRUSH grey = CreateSolidBrush(RGB(128, 128, 128));
  HBRUSH black = CreateSolidBrush(RGB(0, 0, 0));
  Fill(s.dc(), 0, 0, 8, 2, grey);
  Fill(s.dc(), 0, 2, 8, 3, black);
  const Picture expected = {"#.#.#.#.", ".#.#.#.#", "########"};
  EXPECT_EQ(s.Picture(), expected);
  DeleteObject(grey);
  DeleteObject(black);
}

}  // namespace
}  // namespace glyphon::win
