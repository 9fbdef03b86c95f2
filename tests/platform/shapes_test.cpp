// Shape properties and edge cases. The outlines and fills of rectangles (pen and brush styles,
// inside frames, corners either way round), ellipses and round rectangles are compared with the
// system's GDI by the Windows parity tests.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "platform/win32.h"
#include "tests/platform/memory_surface.h"
#include "tests/support/leak_check.h"

namespace glyphon::win {
namespace {

using testing::LeakCheck;
using testing::RasterSurface;
using Picture = std::vector<std::string>;

constexpr COLORREF kRed = RGB(255, 0, 0);

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

}  // namespace
}  // namespace glyphon::win
