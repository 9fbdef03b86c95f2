// DrawTextA layout against widths worked out by hand from the pinned face at 11 pixels per em,
// one-bit glyphs: a 7, b 7, c 6, d 7, m 11, & 10, A 7, B 8, space 4; line height 13, ascent 10.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstring>
#include <utility>
#include <vector>

#include "tests/platform/text_canvas.h"
#include "tests/support/leak_check.h"
#include "tests/support/pinned_font.h"

namespace glyphon::win {
namespace {

using testing::ScopedFont;
using testing::TextCanvas;

// A rectangle as left, top, right, bottom, so that gtest compares and prints it.
using Box = std::array<LONG, 4>;
Box BoxOf(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

class DrawTextLayout : public ::testing::Test {
 protected:
  testing::LeakCheck leaks_;
  testing::PinnedFont pinned_;
  TextCanvas canvas_{100, 60};
  ScopedFont font_{canvas_.Dc(), -11};
};

TEST_F(DrawTextLayout, MeasuringWrapsBreaksAndSkipsAccessKeyMarks) {
  constexpr UINT kWrap = DT_WORDBREAK, kEdit = DT_WORDBREAK | DT_EDITCONTROL;
  // A rectangle at (10, 20) of the given width, measured with DT_CALCRECT; a zero height or box
  // is not checked.
  const struct {
    const char* text;
    int width;
    UINT format;
    Box box;
    int height;
  } cases[] = {
      // "ab " is 18 wide and fits in 20, "ab c" (24) does not; centred lines drop the space.
      {"ab cd", 20, kWrap, {10, 20, 28, 46}, 26},
      {"ab cd", 20, kWrap | DT_CENTER, {10, 20, 24, 46}, 26},
      // An edit control breaks a word wider than the line, after a whole word that fits;
      // otherwise the word stays whole and the rectangle grows to hold it.
      {"mmmm", 25, kEdit, {10, 20, 32, 46}, 26},
      {"mmmm", 25, kWrap, {10, 20, 54, 33}, 13},
      {"ab mmmm", 25, kEdit, {10, 20, 32, 59}, 39},
      // A caption that fits exactly stays on one line; without word breaks the rectangle shrinks
      // or grows to the text, its top-left kept.
      {"ab cd", 31, kWrap, {10, 20, 41, 33}, 13},
      {"ab cd", 30, kWrap, {10, 20, 28, 46}, 26},
      {"ab cd", 300, 0, {10, 20, 41, 33}, 13},
      {"ab cd", 0, 0, {10, 20, 41, 33}, 13},
      // An empty caption measures nothing yet returns a line height.
      {"", 50, kWrap, {10, 20, 10, 20}, 13},
      {"", 50, DT_SINGLELINE, {10, 20, 10, 33}, 13},
      // A final '&' is drawn, "&&" is one '&', a single mark is dropped unless DT_NOPREFIX.
      {"&", 50, 0, {10, 20, 20, 33}, 13},
      {"A&&B", 50, 0, {10, 20, 35, 33}, 13},
      {"&ab", 50, 0, {10, 20, 24, 33}, 13},
      {"&ab", 50, DT_NOPREFIX, {10, 20, 34, 33}, 13},
      // CR, LF, CR LF and LF CR each break once; a final break opens no line.
      {"ab\r\ncd\n\nx", 50, 0, {}, 52},
      {"ab\n", 50, 0, {}, 13},
      {"ab\n\rcd", 50, 0, {}, 26},
      {"ab\r\rcd", 50, 0, {}, 39},
      {"ab\ncd", 50, DT_SINGLELINE, {}, 13},
  };
  for (const auto& c : cases) {
    RECT rect{10, 20, 10 + c.width, 21};
    EXPECT_EQ(DrawTextA(canvas_.Dc(), c.text, -1, &rect, c.format | DT_CALCRECT), c.height)
        << c.text << " in " << c.width;
    if (c.box != Box{}) {
      EXPECT_EQ(BoxOf(rect), c.box) << c.text << " in " << c.width;
    }
  }
  RECT untouched{1, 2, 3, 4};
  EXPECT_EQ(DrawTextA(canvas_.Dc(), "ab", 0, &untouched, DT_CALCRECT), 0);
  EXPECT_EQ(BoxOf(untouched), (Box{1, 2, 3, 4}));
}

TEST_F(DrawTextLayout, LinesArePlacedAsTextOutWouldPlaceThem) {
  using Lines = std::vector<std::pair<POINT, const char*>>;
  const struct {
    const char* text;
    RECT rect;
    UINT format;
    Lines lines;
  } cases[] = {
      {"ab cd", {0, 0, 20, 40}, DT_WORDBREAK, {{{0, 0}, "ab"}, {{0, 13}, "cd"}}},
      // Each line is centred on its own: (21 - 14) / 2 = 3 for "ab", (21 - 13) / 2 = 4 for "cd".
      {"ab cd", {0, 0, 21, 40}, DT_WORDBREAK | DT_CENTER, {{{3, 0}, "ab"}, {{4, 13}, "cd"}}},
      {"ab\ncd", {0, 0, 100, 40}, DT_CENTER, {{{43, 0}, "ab"}, {{43, 13}, "cd"}}},
      {"ab", {0, 0, 100, 40}, DT_RIGHT, {{{86, 0}, "ab"}}},
      {"A&&B", {0, 0, 100, 40}, 0, {{{0, 0}, "A&B"}}},
      {"&", {0, 0, 100, 40}, 0, {{{0, 0}, "&"}}},
      // Single lines centre or sit at the bottom: 40 / 2 - 13 / 2 = 14, and 40 - 13 = 27;
      // vertical placement applies to single lines only.
      {"ab", {0, 0, 100, 40}, DT_SINGLELINE | DT_VCENTER, {{{0, 14}, "ab"}}},
      {"ab", {0, 0, 100, 40}, DT_SINGLELINE | DT_BOTTOM, {{{0, 27}, "ab"}}},
      {"ab", {0, 0, 100, 40}, DT_VCENTER, {{{0, 0}, "ab"}}},
  };
  for (const auto& c : cases) {
    TextCanvas drawn(100, 60), expected(100, 60);
    ScopedFont a(drawn.Dc(), -11), b(expected.Dc(), -11);
    for (HDC dc : {drawn.Dc(), expected.Dc()}) SetBkMode(dc, TRANSPARENT);
    RECT rect = c.rect;
    DrawTextA(drawn.Dc(), c.text, -1, &rect, c.format);
    for (const auto& [at, line] : c.lines) {
      TextOutA(expected.Dc(), at.x, at.y, line, static_cast<int>(std::strlen(line)));
    }
    EXPECT_TRUE(drawn.SameAs(expected) && drawn.InkTotal() > 0) << c.text << " " << c.format;
  }
  // A single line's result is then the distance from the top to the bottom of the text.
  RECT rect{0, 0, 100, 40};
  EXPECT_EQ(DrawTextA(canvas_.Dc(), "ab", -1, &rect, DT_SINGLELINE | DT_VCENTER), 27);
  EXPECT_EQ(DrawTextA(canvas_.Dc(), "ab", -1, &rect, DT_SINGLELINE | DT_BOTTOM), 40);
}

TEST_F(DrawTextLayout, AccessKeyIsUnderlinedBelowTheAscent) {
  TextCanvas plain(100, 60);
  ScopedFont font(plain.Dc(), -11);
  TextOutA(plain.Dc(), 0, 0, "ab", 2);
  TextOutA(plain.Dc(), 0, 13, "cd", 2);
  RECT rect{0, 0, 100, 60};
  // Only the first marked character of a line is underlined, on every line.
  DrawTextA(canvas_.Dc(), "&a&b\n&cd", -1, &rect, 0);
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 100; ++x) {
      // Row top + ascent + 1, from the character's left edge to one short of its advance.
      const bool underline = (y == 11 && x < 6) || (y == 24 && x < 5);
      EXPECT_EQ(canvas_.At(x, y), underline ? RGB(0, 0, 0) : plain.At(x, y)) << x << "," << y;
    }
  }
}

TEST_F(DrawTextLayout, EditControlLeavesOutAPartlyVisibleLastLine) {
  RECT rect{0, 0, 20, 20};  // room for one and a half lines
  EXPECT_EQ(DrawTextA(canvas_.Dc(), "ab cd", -1, &rect, DT_WORDBREAK | DT_EDITCONTROL), 13);
  EXPECT_EQ(canvas_.InkIn(0, 13, 100, 60), 0);
  TextCanvas plain(100, 60);
  ScopedFont font(plain.Dc(), -11);
  EXPECT_EQ(DrawTextA(plain.Dc(), "ab cd", -1, &rect, DT_WORDBREAK), 26);
  EXPECT_GT(plain.InkIn(0, 13, 100, 20), 0);  // the second line, cut at the bottom
  EXPECT_EQ(plain.InkIn(0, 20, 100, 60), 0);
}

TEST_F(DrawTextLayout, TextIsClippedToTheRectangleUnlessNoClip) {
  RECT rect{0, 0, 20, 13};
  DrawTextA(canvas_.Dc(), "mmmm", -1, &rect, 0);
  EXPECT_GT(canvas_.InkIn(0, 0, 20, 13), 0);
  EXPECT_EQ(canvas_.InkIn(20, 0, 100, 60), 0);
  DrawTextA(canvas_.Dc(), "mmmm", -1, &rect, DT_NOCLIP);
  EXPECT_GT(canvas_.InkIn(20, 0, 100, 13), 0);
}

TEST_F(DrawTextLayout, ExtremeCoordinatesNeitherOverflowNorCrash) {
  RECT everything{INT_MIN, INT_MIN, INT_MAX, INT_MAX};
  EXPECT_EQ(DrawTextA(canvas_.Dc(), "ab cd\nef", -1, &everything, DT_WORDBREAK | DT_RIGHT), 26);
  EXPECT_EQ(DrawTextA(canvas_.Dc(), "ab", -1, &everything, DT_SINGLELINE | DT_VCENTER), INT_MAX);
  RECT bottomRight{INT_MAX - 5, INT_MAX - 5, INT_MAX, INT_MAX};
  EXPECT_EQ(DrawTextA(canvas_.Dc(), "ab\ncd", -1, &bottomRight, DT_CALCRECT), 26);
  EXPECT_EQ(bottomRight.right, INT_MAX);
  SetTextAlign(canvas_.Dc(), TA_UPDATECP);
  MoveToEx(canvas_.Dc(), INT_MAX - 3, INT_MIN, nullptr);
  EXPECT_TRUE(TextOutA(canvas_.Dc(), 0, 0, "ab", 2));
  POINT position{};
  GetCurrentPositionEx(canvas_.Dc(), &position);
  EXPECT_EQ(position.x, INT_MAX);
  EXPECT_EQ(canvas_.InkTotal(), 0);
}

}  // namespace
}  // namespace glyphon::win
