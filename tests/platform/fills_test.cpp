// Rectangle fills, brushes, flood fills, the focus rectangle and single pixels.
#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "platform/win32.h"
#include "tests/platform/memory_surface.h"
#include "tests/support/gdi_scope.h"
#include "tests/support/leak_check.h"

namespace glyphon::win {
namespace {

using testing::LeakCheck;
using testing::Owned;
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
  Owned red{CreateSolidBrush(kRed)};
  SetROP2(s.dc(), R2_XORPEN);
  EXPECT_EQ(Fill(s.dc(), 1, 1, 4, 3, red), 1);
  // A reversed rectangle is mirrored around its start pixel, as a block transfer is.
  Fill(s.dc(), 6, 3, 4, 4, red);
  EXPECT_EQ(s.Picture({{kRed, 'r'}}), (Picture{"......", ".rrr..", ".rrr..", ".....r"}));
  // Huge rectangles cover the surface.
  SetROP2(s.dc(), R2_COPYPEN);
  EXPECT_EQ(Fill(s.dc(), INT_MIN, INT_MIN, INT_MAX, INT_MAX, GetSysColorBrush(COLOR_WINDOWTEXT)),
            1);
  EXPECT_EQ(s.Picture(), Picture(4, "######"));
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
  Owned red{CreateSolidBrush(kRed)};
  const RECT frame{1, 1, 5, 5};
  EXPECT_EQ(FrameRect(s.dc(), &frame, red), 1);
  const RECT empty{3, 1, 3, 5};
  EXPECT_EQ(FrameRect(s.dc(), &empty, red), 0);
  EXPECT_EQ(s.Picture({{kRed, 'r'}}),
            (Picture{"......", ".rrrr.", ".r..r.", ".r..r.", ".rrrr."}));
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
    Owned brush{CreateHatchBrush(hatch, RGB(0, 0, 0))};
    Fill(s.dc(), 0, 0, 8, 8, brush);
    EXPECT_EQ(s.Picture(), patterns[hatch]) << "hatch " << hatch;
  }
}

TEST(HatchBrushes, AlignToTheSurfaceAndFollowTheBackgroundMode) {
  LeakCheck leaks;
  RasterSurface s(11, 6);
  s.Clear(kBlue);
  Owned brush{CreateHatchBrush(HS_CROSS, RGB(0, 0, 0))};
  SetBkColor(s.dc(), kRed);
  Fill(s.dc(), 3, 2, 11, 4, brush);
  SetBkMode(s.dc(), TRANSPARENT);
  Fill(s.dc(), 3, 4, 11, 6, brush);
  EXPECT_EQ(s.Picture({{kRed, 'r'}, {kBlue, 'b'}}),
            (Picture{"bbbbbbbbbbb", "bbbbbbbbbbb", "bbbr#rrrrrr", "bbb########", "bbbb#bbbbbb",
                     "bbbb#bbbbbb"}));
}

TEST(PatternBrushes, MonochromePatternsTakeTheTextAndBackgroundColours) {
  LeakCheck leaks;
  RasterSurface s(5, 2);
  const std::uint8_t bits[4] = {0x40, 0x00, 0x80, 0x00};  // rows ".#" and "#."
  Owned pattern{CreateBitmap(2, 2, 1, 1, bits)};
  Owned brush{CreatePatternBrush(pattern)};
  SetTextColor(s.dc(), kRed);
  SetBkColor(s.dc(), kBlue);
  Fill(s.dc(), 0, 0, 5, 2, brush);
  EXPECT_EQ(s.Picture({{kRed, 'r'}, {kBlue, 'b'}}), (Picture{"rbrbr", "brbrb"}));
}

TEST(SolidBrushes, AreDitheredOnMonochromeBitmapsUnlessBlackOrWhite) {
  LeakCheck leaks;
  RasterSurface s(8, 3, 1);
  Owned grey{CreateSolidBrush(RGB(128, 128, 128))}, black{CreateSolidBrush(RGB(0, 0, 0))};
  Fill(s.dc(), 0, 0, 8, 2, grey);
  Fill(s.dc(), 0, 2, 8, 3, black);
  EXPECT_EQ(s.Picture(), (Picture{"#.#.#.#.", ".#.#.#.#", "########"}));
}

TEST(SetPixel, ReturnsTheColourTheSurfaceCanShowAndMixesWithTheRop2) {
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
  SetROP2(colour.dc(), R2_XORPEN);
  SetPixel(colour.dc(), 0, 0, RGB(255, 0, 0));
  EXPECT_EQ(GetPixel(colour.dc(), 0, 0), RGB(0xF6, 9, 9));
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
  EXPECT_EQ(s.Picture({{kRed, 'r'}, {kBlue, 'b'}}),
            (Picture{"rrrrrr..", "r.rbbr..", "rrbbbr..", "rbbbbr..", "rrrrrr..", "........"}));
  // Starting on the border colour, or off the surface, fills nothing.
  EXPECT_FALSE(ExtFloodFill(s.dc(), 0, 0, kRed, FLOODFILLBORDER));
  EXPECT_FALSE(ExtFloodFill(s.dc(), 8, 0, kRed, FLOODFILLBORDER));
  EXPECT_FALSE(FloodFill(s.dc(), 0, -1, kRed));
}

TEST(ExtFloodFill, SurfaceFillReplacesTheConnectedColourWithTheBrushAndMix) {
  LeakCheck leaks;
  RasterSurface s(6, 3);
  for (int y = 0; y < 3; ++y) SetPixel(s.dc(), 2, y, kRed);
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

TEST(DrawFocusRect, InvertsEveryOtherOutlinePixelCountedFromTheTopRight) {
  LeakCheck leaks;
  RasterSurface s(12, 8);
  const RECT odd{1, 1, 11, 7};
  EXPECT_TRUE(DrawFocusRect(s.dc(), &odd));
  EXPECT_EQ(s.Picture(), (Picture{"............", "..#.#.#.#.#.", ".#..........", "..........#.",
                                   ".#..........", "..........#.", ".#.#.#.#.#..", "............"}));
  // One column narrower moves the starting dot, so the corner pixel is inverted.
  s.Clear(RGB(255, 255, 255));
  const RECT even{1, 1, 10, 7};
  DrawFocusRect(s.dc(), &even);
  EXPECT_EQ(s.Picture()[1], ".#.#.#.#.#..");
}

TEST(DrawFocusRect, DrawingItTwiceRestoresThePixelsWhateverTheDcState) {
  LeakCheck leaks;
  RasterSurface s(10, 10);
  Owned hatch{CreateHatchBrush(HS_DIAGCROSS, RGB(10, 200, 30))};
  Fill(s.dc(), 0, 0, 10, 10, hatch);
  const Picture before = s.Picture({{RGB(10, 200, 30), 'g'}});
  SetROP2(s.dc(), R2_BLACK);  // the focus rectangle brings its own pen, mix and fill
  s.UseBrush(CreateSolidBrush(RGB(255, 0, 0)));
  const RECT focus{2, 1, 9, 8};
  DrawFocusRect(s.dc(), &focus);
  EXPECT_NE(s.Picture({{RGB(10, 200, 30), 'g'}}), before);
  DrawFocusRect(s.dc(), &focus);
  EXPECT_EQ(s.Picture({{RGB(10, 200, 30), 'g'}}), before);
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
