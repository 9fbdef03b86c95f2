// Lines and shapes to the pixel: pen styles with their dash patterns and opaque gaps, the
// sixteen mixes, and the outlines and fills of rectangles, ellipses and round rectangles. The
// Windows parity tests compare the same drawings with the system's GDI.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32.h"
#include "tests/platform/memory_surface.h"
#include "tests/support/leak_check.h"

namespace glyphon::win {
namespace {

using testing::LeakCheck;
using testing::RasterSurface;
using Picture = std::vector<std::string>;
using Pixels = std::set<std::pair<int, int>>;

constexpr COLORREF kRed = RGB(255, 0, 0);

void Line(HDC dc, int x0, int y0, int x1, int y1) {
  MoveToEx(dc, x0, y0, nullptr);
  LineTo(dc, x1, y1);
}

Pixels Painted(const RasterSurface& surface) {
  Pixels pixels;
  const auto rows = surface.Picture();
  for (int y = 0; y < static_cast<int>(rows.size()); ++y) {
    for (int x = 0; x < static_cast<int>(rows[y].size()); ++x) {
      if (rows[y][x] == '#') pixels.insert({x, y});
    }
  }
  return pixels;
}

TEST(LineTo, LeavesTheLastPointUnpaintedAndMovesThePosition) {
  LeakCheck leaks;
  RasterSurface s(8, 3);
  Line(s.dc(), 1, 1, 6, 1);
  POINT at{};
  GetCurrentPositionEx(s.dc(), &at);
  EXPECT_EQ(at.x, 6);
  EXPECT_EQ(at.y, 1);
  Line(s.dc(), 6, 0, 1, 0);  // right to left covers the mirrored pixels
  Line(s.dc(), 3, 2, 3, 2);  // zero length paints nothing
  EXPECT_EQ(s.Picture(), (std::vector<std::string>{"..#####.", ".#####..", "........"}));
}

TEST(LineTo, ReversedLinesShareEveryPixelButTheirEnds) {
  // GDI breaks Bresenham ties by octant so a line and its reverse light the same pixels.
  LeakCheck leaks;
  std::mt19937 random(7);
  std::uniform_int_distribution<int> coordinate(0, 23);
  for (int i = 0; i < 150; ++i) {
    const int x0 = coordinate(random), y0 = coordinate(random);
    const int x1 = coordinate(random), y1 = coordinate(random);
    if (x0 == x1 && y0 == y1) continue;
    RasterSurface forward(24, 24), backward(24, 24);
    Line(forward.dc(), x0, y0, x1, y1);
    Line(backward.dc(), x1, y1, x0, y0);
    Pixels a = Painted(forward), b = Painted(backward);
    a.insert({x1, y1});
    b.insert({x0, y0});
    ASSERT_EQ(a, b) << x0 << "," << y0 << " - " << x1 << "," << y1;
  }
}

TEST(LineTo, ClippingKeepsTheUnclippedPixelsAndTheDashPhase) {
  LeakCheck leaks;
  std::mt19937 random(11);
  std::uniform_int_distribution<int> coordinate(-20, 60);
  for (int i = 0; i < 120; ++i) {
    const int x0 = coordinate(random), y0 = coordinate(random);
    const int x1 = coordinate(random), y1 = coordinate(random);
    RasterSurface whole(100, 100), window(20, 20);
    const int style = i % 2 == 0 ? PS_SOLID : PS_DASHDOTDOT;
    whole.UsePen(style, 1, RGB(0, 0, 0));
    window.UsePen(style, 1, RGB(0, 0, 0));
    Line(whole.dc(), x0 + 30, y0 + 30, x1 + 30, y1 + 30);
    Line(window.dc(), x0 - 10, y0 - 10, x1 - 10, y1 - 10);
    const auto big = whole.Picture(), small = window.Picture();
    for (int y = 0; y < 20; ++y) {
      ASSERT_EQ(small[y], big[y + 40].substr(40, 20))
          << "row " << y << " of " << x0 << "," << y0 << " - " << x1 << "," << y1;
    }
  }
}

TEST(LineTo, HugeCoordinatesAreClippedBeforeStepping) {
  LeakCheck leaks;
  RasterSurface s(6, 6);
  s.UsePen(PS_DOT, 1, RGB(0, 0, 0));
  Line(s.dc(), INT_MIN, 2, INT_MAX, 2);
  Line(s.dc(), -1000000000, -1000000000, 1000000000, 1000000000);
  Line(s.dc(), INT_MAX, INT_MIN, INT_MIN, INT_MAX);
  const auto picture = s.Picture();
  EXPECT_NE(picture[2], "......");
  EXPECT_NE(picture[4].find('#'), std::string::npos);
}

TEST(LineTo, CosmeticDashPatternsRestartWithEachCallAndFillGapsWhenOpaque) {
  LeakCheck leaks;
  const std::pair<int, const char*> cases[] = {
      {PS_SOLID, "##############################."},
      {PS_DASH, "##################......######."},
      {PS_DOT, "###...###...###...###...###...."},
      {PS_DASHDOT, "#########......###......######."},
      {PS_DASHDOTDOT, "#########...###...###...######."},
      {PS_NULL, "..............................."},
  };
  for (const auto& [style, expected] : cases) {
    RasterSurface s(31, 1);
    s.UsePen(style, 1, RGB(0, 0, 0));
    Line(s.dc(), 0, 0, 30, 0);
    EXPECT_EQ(s.Picture()[0], expected) << "style " << style;
  }
  RasterSurface s(24, 3);
  s.UsePen(PS_DASH, 1, RGB(0, 0, 0));
  MoveToEx(s.dc(), 0, 0, nullptr);
  LineTo(s.dc(), 10, 0);
  LineTo(s.dc(), 20, 0);
  s.UsePen(PS_DOT, 1, RGB(0, 0, 0));
  SetBkColor(s.dc(), RGB(255, 0, 0));
  Line(s.dc(), 0, 1, 12, 1);
  SetBkMode(s.dc(), TRANSPARENT);
  Line(s.dc(), 0, 2, 12, 2);
  const auto p = s.Picture({{RGB(255, 0, 0), 'r'}});
  EXPECT_EQ(p[0], "####################....");
  EXPECT_EQ(p[1], "###rrr###rrr............");
  EXPECT_EQ(p[2], "###...###...............");
}

TEST(LineTo, DashesRunFromTheStartPointInEveryDirection) {
  LeakCheck leaks;
  RasterSurface s(31, 31);
  s.UsePen(PS_DASHDOT, 1, RGB(0, 0, 0));
  Line(s.dc(), 30, 0, 0, 0);
  EXPECT_EQ(s.Picture()[0], ".######......###......#########");
  Line(s.dc(), 0, 1, 0, 30);
  Line(s.dc(), 2, 2, 30, 30);
  const auto p = s.Picture();
  std::string column, diagonal;
  for (int i = 1; i < 30; ++i) column += p[i][0];
  for (int i = 2; i < 30; ++i) diagonal += p[i][i];
  EXPECT_EQ(column, "#########......###......#####");
  EXPECT_EQ(diagonal, "#########......###......####");
}

TEST(LineTo, AllSixteenMixesWorkOnDevicePixels) {
  LeakCheck leaks;
  const COLORREF destination = RGB(0x55, 0xAA, 0x0F), pen = RGB(0xF0, 0xCC, 0x33);
  const unsigned d = 0x55AA0F, p = 0xF0CC33;
  const unsigned expected[17] = {0,       0,        ~(d | p), ~p & d,  ~p,     p & ~d,
                                 ~d,      p ^ d,    ~(p & d), p & d,   ~(p ^ d),
                                 d,       ~p | d,   p,        p | ~d,  p | d,  ~0u};
  for (int rop = R2_BLACK; rop <= R2_WHITE; ++rop) {
    RasterSurface s(3, 1);
    s.Clear(destination);
    s.UsePen(PS_SOLID, 1, pen);
    SetROP2(s.dc(), rop);
    Line(s.dc(), 0, 0, 2, 0);
    const unsigned want = expected[rop];
    EXPECT_EQ(GetPixel(s.dc(), 1, 0), RGB(want >> 16, want >> 8, want)) << "rop2 " << rop;
    EXPECT_EQ(GetPixel(s.dc(), 2, 0), destination);
  }
}

TEST(LineTo, WidePensHaveRoundEndsAndDrawDashedStylesSolid) {
  LeakCheck leaks;
  RasterSurface s(12, 7);
  s.UsePen(PS_DASH, 3, RGB(0, 0, 0));
  Line(s.dc(), 2, 3, 9, 3);
  const std::vector<std::string> expected = {
      "............",
      "............",
      "..########..",
      ".##########.",
      "..########..",
      "............",
      "............",
  };
  EXPECT_EQ(s.Picture(), expected);
  s.Clear(RGB(255, 255, 255));
  Line(s.dc(), 5, 5, 5, 5);  // a zero-length wide line leaves a dot
  EXPECT_EQ(s.Picture()[5], "....###.....");
}

TEST(LineTo, MonochromeBitmapsMapPenColoursAgainstTheBackground) {
  LeakCheck leaks;
  RasterSurface s(4, 2, 1);
  s.UsePen(PS_SOLID, 1, RGB(255, 0, 0));
  Line(s.dc(), 0, 0, 4, 0);  // white background: any other colour is black
  SetBkColor(s.dc(), RGB(0, 0, 0));
  s.Clear(RGB(0, 0, 0));
  Line(s.dc(), 0, 1, 4, 1);  // black background: the pen turns white
  const auto p = s.Picture();
  EXPECT_EQ(p[0], "####");
  EXPECT_EQ(p[1], "....");
}

TEST(LineTo, BadDcsAreRefused) {
  LeakCheck leaks;
  HDC dc = CreateCompatibleDC(nullptr);
  DeleteDC(dc);
  EXPECT_FALSE(LineTo(dc, 1, 1));
  EXPECT_FALSE(LineTo(nullptr, 1, 1));
}


TEST(Rectangle, WideOutlinePaintsEachPixelOnceAroundTheInterior) {
  LeakCheck leaks;
  RasterSurface s(12, 10);
  s.UsePen(PS_SOLID, 3, RGB(0, 0, 0));
  SelectObject(s.dc(), GetStockObject(NULL_BRUSH));
  SetROP2(s.dc(), R2_NOT);  // a pixel painted twice would turn white again
  Rectangle(s.dc(), 2, 2, 10, 8);
  EXPECT_EQ(s.Picture(), (Picture{"............", "..########..", ".##########.",
                                   ".##########.", ".###....###.", ".###....###.", ".##########.",
                                   ".##########.", "..########..", "............"}));

  s.Clear(RGB(255, 255, 255));
  SetROP2(s.dc(), R2_COPYPEN);
  s.UseBrush(CreateSolidBrush(kRed));
  Rectangle(s.dc(), 2, 2, 10, 8);
  EXPECT_EQ(s.Picture({{kRed, 'r'}})[4], ".###rrrr###.");
}

TEST(RoundRect, ShapesAreSymmetricAndClosed) {
  LeakCheck leaks;
  for (const auto& [w, h, ew, eh] : {std::array{15, 11, 15, 15}, std::array{16, 9, 6, 5},
                                     std::array{9, 14, 9, 14}, std::array{20, 20, 7, 13}}) {
    RasterSurface s(w, h);
    SelectObject(s.dc(), GetStockObject(NULL_BRUSH));
    RoundRect(s.dc(), 0, 0, w, h, ew, eh);
    const Picture p = s.Picture();
    for (int y = 0; y < h; ++y) {
      std::string mirrored = p[y];
      std::reverse(mirrored.begin(), mirrored.end());
      EXPECT_EQ(p[y], mirrored) << w << "x" << h << " row " << y;
      EXPECT_EQ(p[y], p[h - 1 - y]) << w << "x" << h << " row " << y;
      EXPECT_NE(p[y].find('#'), std::string::npos) << w << "x" << h << " row " << y;
    }
    // The outline reaches all four sides of the bounding box.
    EXPECT_NE(p[0].find('#'), std::string::npos);
    EXPECT_EQ(p[h / 2][0], '#');
    EXPECT_EQ(p[h / 2][w - 1], '#');
  }
}

TEST(Shapes, BadDcsAreRefused) {
  LeakCheck leaks;
  HDC dc = CreateCompatibleDC(nullptr);
  DeleteDC(dc);
  EXPECT_FALSE(Rectangle(dc, 0, 0, 4, 4));
  EXPECT_FALSE(Ellipse(dc, 0, 0, 4, 4));
  EXPECT_FALSE(RoundRect(nullptr, 0, 0, 4, 4, 2, 2));
}

TEST(Rectangle, OutlinesWithThePenAndFillsTheInsideExclusively) {
  LeakCheck leaks;
  RasterSurface s(7, 6);
  s.UseBrush(CreateSolidBrush(kRed));
  EXPECT_TRUE(Rectangle(s.dc(), 6, 5, 1, 1));  // corners in any order
  EXPECT_EQ(s.Picture({{kRed, 'r'}}),
            (Picture{".......", ".#####.", ".#rrr#.", ".#rrr#.", ".#####.", "......."}));

  // A null pen fills one row and column less; a null brush leaves the inside.
  s.Clear(RGB(255, 255, 255));
  SelectObject(s.dc(), GetStockObject(NULL_PEN));
  Rectangle(s.dc(), 1, 1, 6, 5);
  EXPECT_EQ(s.Picture({{kRed, 'r'}}),
            (Picture{".......", ".rrrr..", ".rrrr..", ".rrrr..", ".......", "......."}));

  s.Clear(RGB(255, 255, 255));
  s.UsePen(PS_SOLID, 1, RGB(0, 0, 0));
  SelectObject(s.dc(), GetStockObject(NULL_BRUSH));
  Rectangle(s.dc(), 1, 1, 6, 5);
  EXPECT_EQ(s.Picture()[2], ".#...#.");
  // No area, nothing drawn.
  s.Clear(RGB(255, 255, 255));
  Rectangle(s.dc(), 3, 1, 3, 5);
  Rectangle(s.dc(), 1, 2, 6, 2);
  EXPECT_EQ(s.Picture(), Picture(6, "......."));
}

TEST(Rectangle, DotsRunAnticlockwiseFromTheTopRightCorner) {
  LeakCheck leaks;
  RasterSurface s(8, 6);
  s.UsePen(PS_DOT, 1, RGB(0, 0, 0));
  SelectObject(s.dc(), GetStockObject(NULL_BRUSH));
  Rectangle(s.dc(), 0, 0, 8, 6);
  EXPECT_EQ(s.Picture(),
            (Picture{"##...###", "#.......", "........", "........", ".......#", "###...##"}));
}

TEST(Rectangle, InsideFramePensStayInsideTheRectangle) {
  LeakCheck leaks;
  RasterSurface s(14, 14);
  s.UsePen(PS_INSIDEFRAME, 4, RGB(0, 0, 0));
  SelectObject(s.dc(), GetStockObject(NULL_BRUSH));
  Rectangle(s.dc(), 2, 2, 12, 12);
  const Picture p = s.Picture();
  for (int y = 0; y < 14; ++y) {
    for (int x = 0; x < 14; ++x) {
      if (x < 2 || x >= 12 || y < 2 || y >= 12) {
        EXPECT_EQ(p[y][x], '.') << x << "," << y;
      }
    }
  }
  EXPECT_EQ(p[6].substr(2, 10), "####..####");
}

TEST(Ellipse, SmallCircleAndRoundedCornersOutlineOverTheirFill) {
  LeakCheck leaks;
  RasterSurface s(8, 6);
  s.UseBrush(CreateSolidBrush(kRed));
  Ellipse(s.dc(), 0, 0, 5, 5);
  EXPECT_EQ(s.Picture({{kRed, 'r'}}), (Picture{".###....", "#rrr#...", "#rrr#...", "#rrr#...",
                                               ".###....", "........"}));
  // Round corners follow the ellipse; corners too small for a pixel give a rectangle.
  RoundRect(s.dc(), 0, 0, 8, 6, 4, 4);
  EXPECT_EQ(s.Picture({{kRed, 'r'}}), (Picture{".######.", "#rrrrrr#", "#rrrrrr#", "#rrrrrr#",
                                               "#rrrrrr#", ".######."}));
  s.Clear(RGB(255, 255, 255));
  RoundRect(s.dc(), 0, 0, 8, 6, 2, 9);
  EXPECT_EQ(s.Picture({{kRed, 'r'}})[0], "########");
}

}  // namespace
}  // namespace glyphon::win
