// DrawTextA layout against widths worked out by hand from the pinned face at 11 pixels per em,
// one-bit glyphs: a 7, b 7, c 6, d 7, m 11, & 10, A 7, B 8, space 4; line height 13, ascent 10.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <initializer_list>
#include <utility>

#include "tests/platform/text_canvas.h"
#include "tests/support/leak_check.h"
#include "tests/support/pinned_font.h"

namespace glyphon::win {
namespace {

using testing::ScopedFont;
using testing::TextCanvas;

constexpr COLORREF kText = RGB(0, 0, 0);

// A rectangle as left, top, right, bottom, so that gtest compares and prints it.
using Box = std::array<LONG, 4>;
Box BoxOf(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

class DrawTextLayout : public ::testing::Test {
 protected:
  // A rectangle at (10, 20) of the given width measured with DT_CALCRECT; height gets the result.
  Box Measure(const char* text, int width, UINT format, int* height = nullptr) {
    RECT rect{10, 20, 10 + width, 21};
    const int result = DrawTextA(canvas_.Dc(), text, -1, &rect, format | DT_CALCRECT);
    if (height != nullptr) *height = result;
    return BoxOf(rect);
  }

  testing::LeakCheck leaks_;
  testing::PinnedFont pinned_;
  TextCanvas canvas_{100, 60};
  ScopedFont font_{canvas_.Dc(), -11};
};
// Draws with DrawTextA into one canvas and each expected line with TextOutA into another.
bool DrawsLines(const char* text, RECT rect, UINT format,
                std::initializer_list<std::pair<POINT, const char*>> lines) {
  TextCanvas drawn(100, 60), expected(100, 60);
  ScopedFont a(drawn.Dc(), -11), b(expected.Dc(), -11);
  SetBkMode(drawn.Dc(), TRANSPARENT);
  SetBkMode(expected.Dc(), TRANSPARENT);
  DrawTextA(drawn.Dc(), text, -1, &rect, format);
  for (const auto& [at, line] : lines) {
    int count = 0;
    while (line[count] != '\0') ++count;
    TextOutA(expected.Dc(), at.x, at.y, line, count);
  }
  return drawn.SameAs(expected) && drawn.InkTotal() > 0;
}

TEST_F(DrawTextLayout, WordBreakKeepsFittingSpacesOnLeftAlignedLinesOnly) {
  int height = 0;
  // "ab " is 18 wide and fits in 20; "ab c" (24) does not.
  EXPECT_EQ(Measure("ab cd", 20, DT_WORDBREAK, &height), (Box{10, 20, 28, 46}));
  EXPECT_EQ(height, 26);
  // Centred lines drop the space at the break: "ab" is 14.
  EXPECT_EQ(Measure("ab cd", 20, DT_WORDBREAK | DT_CENTER), (Box{10, 20, 24, 46}));
  EXPECT_TRUE(
      DrawsLines("ab cd", RECT{0, 0, 20, 40}, DT_WORDBREAK, {{{0, 0}, "ab"}, {{0, 13}, "cd"}}));
}

TEST_F(DrawTextLayout, EachLineIsCentredOnItsOwn) {
  // (0 + 21 - 14) / 2 = 3 for "ab", (21 - 13) / 2 = 4 for "cd".
  EXPECT_TRUE(DrawsLines("ab cd", RECT{0, 0, 21, 40}, DT_WORDBREAK | DT_CENTER,
                         {{{3, 0}, "ab"}, {{4, 13}, "cd"}}));
  EXPECT_TRUE(DrawsLines("ab", RECT{0, 0, 100, 40}, DT_RIGHT, {{{86, 0}, "ab"}}));
}

TEST_F(DrawTextLayout, EditControlBreaksAWordWiderThanTheLine) {
  int height = 0;
  EXPECT_EQ(Measure("mmmm", 25, DT_WORDBREAK | DT_EDITCONTROL, &height), (Box{10, 20, 32, 46}));
  EXPECT_EQ(height, 26);
  // Without it the word stays whole and the rectangle grows to hold it.
  EXPECT_EQ(Measure("mmmm", 25, DT_WORDBREAK), (Box{10, 20, 54, 33}));
  // A whole word that fits goes first; the long one is then cut at what fits.
  EXPECT_EQ(Measure("ab mmmm", 25, DT_WORDBREAK | DT_EDITCONTROL, &height), (Box{10, 20, 32, 59}));
  EXPECT_EQ(height, 39);
}

TEST_F(DrawTextLayout, CaptionThatFitsExactlyStaysOnOneLine) {
  EXPECT_EQ(Measure("ab cd", 31, DT_WORDBREAK), (Box{10, 20, 41, 33}));
  EXPECT_EQ(Measure("ab cd", 30, DT_WORDBREAK)[3], 46);
  // Without word breaks the rectangle shrinks or grows to the text, its top-left kept.
  EXPECT_EQ(Measure("ab cd", 300, 0), (Box{10, 20, 41, 33}));
  EXPECT_EQ(Measure("ab cd", 0, 0), (Box{10, 20, 41, 33}));
}

TEST_F(DrawTextLayout, EmptyCaptionMeasuresNothingYetReturnsALineHeight) {
  int height = 0;
  EXPECT_EQ(Measure("", 50, DT_WORDBREAK, &height), (Box{10, 20, 10, 20}));
  EXPECT_EQ(height, 13);
  EXPECT_EQ(Measure("", 50, DT_SINGLELINE), (Box{10, 20, 10, 33}));
  RECT untouched{1, 2, 3, 4};
  EXPECT_EQ(DrawTextA(canvas_.Dc(), "ab", 0, &untouched, DT_CALCRECT), 0);
  EXPECT_EQ(BoxOf(untouched), (Box{1, 2, 3, 4}));
}

TEST_F(DrawTextLayout, AmpersandsFollowTheAccessKeyRules) {
  EXPECT_EQ(Measure("&", 50, 0)[2], 10 + 10);     // a final '&' is drawn
  EXPECT_EQ(Measure("A&&B", 50, 0)[2], 10 + 25);  // "A&B"
  EXPECT_EQ(Measure("&ab", 50, 0)[2], 10 + 14);   // "ab"
  EXPECT_EQ(Measure("&ab", 50, DT_NOPREFIX)[2], 10 + 24);
  EXPECT_TRUE(DrawsLines("A&&B", RECT{0, 0, 100, 40}, 0, {{{0, 0}, "A&B"}}));
  EXPECT_TRUE(DrawsLines("&", RECT{0, 0, 100, 40}, 0, {{{0, 0}, "&"}}));
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
      EXPECT_EQ(canvas_.At(x, y), underline ? kText : plain.At(x, y)) << x << "," << y;
    }
  }
}

TEST_F(DrawTextLayout, CrAndLfBreakLines) {
  int height = 0;
  Measure("ab\r\ncd\n\nx", 50, 0, &height);
  EXPECT_EQ(height, 52);
  Measure("ab\n", 50, 0, &height);
  EXPECT_EQ(height, 13);  // a final break opens no line
  Measure("ab\n\rcd", 50, 0, &height);
  EXPECT_EQ(height, 26);  // LF CR is one break
  Measure("ab\r\rcd", 50, 0, &height);
  EXPECT_EQ(height, 39);
  Measure("ab\ncd", 50, DT_SINGLELINE, &height);
  EXPECT_EQ(height, 13);
  EXPECT_TRUE(
      DrawsLines("ab\ncd", RECT{0, 0, 100, 40}, DT_CENTER, {{{43, 0}, "ab"}, {{43, 13}, "cd"}}));
}

TEST_F(DrawTextLayout, SingleLineCanBeCentredOrBottomAlignedVertically) {
  // 0 + 40 / 2 - 13 / 2 = 14, and 40 - 13 = 27.
  EXPECT_TRUE(DrawsLines("ab", RECT{0, 0, 100, 40}, DT_SINGLELINE | DT_VCENTER, {{{0, 14}, "ab"}}));
  EXPECT_TRUE(DrawsLines("ab", RECT{0, 0, 100, 40}, DT_SINGLELINE | DT_BOTTOM, {{{0, 27}, "ab"}}));
  // The result is then the distance from the top to the bottom of the text.
  RECT rect{0, 0, 100, 40};
  EXPECT_EQ(DrawTextA(canvas_.Dc(), "ab", -1, &rect, DT_SINGLELINE | DT_VCENTER), 27);
  EXPECT_EQ(DrawTextA(canvas_.Dc(), "ab", -1, &rect, DT_SINGLELINE | DT_BOTTOM), 40);
  // Vertical placement applies to single lines only.
  EXPECT_TRUE(DrawsLines("ab", RECT{0, 0, 100, 40}, DT_VCENTER, {{{0, 0}, "ab"}}));
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
