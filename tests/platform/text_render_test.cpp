// Glyph rendering, and the golden image of a caption as the button draws it: wrapped, centred,
// underlined, smoothed. Regenerate that only on purpose, after checking the new picture by eye:
//   GLYPHON_UPDATE_GOLDEN=1 build/debug/tests/platform_tests --gtest_filter='TextGolden.*'
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <tuple>

#include "tests/platform/text_canvas.h"
#include "tests/support/image_compare.h"
#include "tests/support/leak_check.h"
#include "tests/support/pinned_font.h"

namespace glyphon::win {
namespace {

using testing::ScopedFont;
using testing::TextCanvas;

class TextRender : public ::testing::Test {
 protected:
  testing::LeakCheck leaks_;
  testing::PinnedFont pinned_;
};

int BlendChannel(int text, int under, int alpha) {
  return (text * alpha + under * (255 - alpha) + 127) / 255;
}

bool Near(int a, int b) { return std::abs(a - b) <= 1; }

TEST_F(TextRender, AntialiasedCoverageIsBlendedInTheTextColourOntoWhatIsThere) {
  constexpr COLORREF kText = RGB(20, 40, 160);
  TextCanvas gradient(90, 20, 32), gradient24(90, 20, 24), white(90, 20, 32);
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 90; ++x) {
      gradient.Set(x, y, RGB(x * 2, 255 - x * 2, 128 + y));
      gradient24.Set(x, y, RGB(x * 2, 255 - x * 2, 128 + y));
    }
  }
  for (TextCanvas* canvas : {&gradient, &gradient24, &white}) {
    ScopedFont font(canvas->Dc(), -11, 400, ANTIALIASED_QUALITY);
    SetBkMode(canvas->Dc(), TRANSPARENT);
    SetTextColor(canvas->Dc(), kText);
    TextOutA(canvas->Dc(), 3, 3, "Gradient Ok", 11);
  }
  EXPECT_TRUE(gradient.SameAs(gradient24));
  int partial = 0;
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 90; ++x) {
      const COLORREF under = RGB(x * 2, 255 - x * 2, 128 + y);
      const COLORREF onWhite = white.At(x, y), result = gradient.At(x, y);
      if (onWhite == RGB(255, 255, 255)) {
        EXPECT_EQ(result, under) << x << "," << y;
        continue;
      }
      // The coverage the white canvas shows, applied to the gradient's own pixel.
      bool consistent = false;
      for (int alpha = 1; alpha <= 255 && !consistent; ++alpha) {
        if (BlendChannel(GetRValue(kText), 255, alpha) != GetRValue(onWhite) ||
            BlendChannel(GetGValue(kText), 255, alpha) != GetGValue(onWhite)) {
          continue;
        }
        consistent =
            Near(GetRValue(result), BlendChannel(GetRValue(kText), GetRValue(under), alpha)) &&
            Near(GetGValue(result), BlendChannel(GetGValue(kText), GetGValue(under), alpha)) &&
            Near(GetBValue(result), BlendChannel(GetBValue(kText), GetBValue(under), alpha));
      }
      EXPECT_TRUE(consistent) << x << "," << y;
      partial += onWhite != kText ? 1 : 0;
    }
  }
  EXPECT_GT(partial, 20);  // smoothed edges, not one-bit glyphs
}

TEST_F(TextRender, OtherQualitiesDrawOneBitGlyphs) {
  for (const int quality : {0, 1, 2, 3}) {
    TextCanvas canvas(80, 20);
    ScopedFont font(canvas.Dc(), -11, 400, quality);
    TextOutA(canvas.Dc(), 2, 2, "Quality", 7);
    std::set<COLORREF> colours;
    for (int y = 0; y < 20; ++y) {
      for (int x = 0; x < 80; ++x) colours.insert(canvas.At(x, y));
    }
    EXPECT_EQ(colours, (std::set<COLORREF>{RGB(0, 0, 0), RGB(255, 255, 255)})) << quality;
  }
}

TEST_F(TextRender, OpaqueModeFillsTheTextCellWithTheBackgroundColour) {
  constexpr COLORREF kBack = RGB(255, 255, 0);
  for (const int mode : {OPAQUE, TRANSPARENT}) {
    TextCanvas canvas(40, 30);
    ScopedFont font(canvas.Dc(), -11);
    SetBkMode(canvas.Dc(), mode);
    SetBkColor(canvas.Dc(), kBack);
    TextOutA(canvas.Dc(), 5, 5, "ab", 2);  // 14 x 13
    int back = 0;
    for (int y = 0; y < 30; ++y) {
      for (int x = 0; x < 40; ++x) {
        const bool cell = x >= 5 && x < 19 && y >= 5 && y < 18;
        back += canvas.At(x, y) == kBack ? 1 : 0;
        if (!cell) {
          EXPECT_FALSE(canvas.Ink(x, y)) << x << "," << y;
        } else if (mode == OPAQUE) {
          EXPECT_NE(canvas.At(x, y), RGB(255, 255, 255)) << x << "," << y;
        }
      }
    }
    EXPECT_EQ(back > 0, mode == OPAQUE);
  }
}

// Draws "ab" (14 x 13, ascent 10) with an alignment and compares with a top-left placement.
bool AlignsLike(UINT align, int x, int y, int left, int top) {
  TextCanvas aligned(60, 50), plain(60, 50);
  ScopedFont a(aligned.Dc(), -11), b(plain.Dc(), -11);
  SetTextAlign(aligned.Dc(), align);
  TextOutA(aligned.Dc(), x, y, "ab", 2);
  TextOutA(plain.Dc(), left, top, "ab", 2);
  return aligned.SameAs(plain) && plain.InkTotal() > 0;
}

TEST_F(TextRender, TextAlignmentPlacesTheReferencePoint) {
  EXPECT_TRUE(AlignsLike(TA_RIGHT | TA_BOTTOM, 40, 30, 26, 17));
  EXPECT_TRUE(AlignsLike(TA_CENTER | TA_BASELINE, 40, 30, 33, 20));
  EXPECT_TRUE(AlignsLike(TA_LEFT | TA_TOP, 40, 30, 40, 30));
}

TEST_F(TextRender, UpdateCurrentPositionDrawsThereAndMovesIt) {
  TextCanvas pieces(60, 30), whole(60, 30);
  ScopedFont a(pieces.Dc(), -11), b(whole.Dc(), -11);
  SetTextAlign(pieces.Dc(), TA_UPDATECP);
  MoveToEx(pieces.Dc(), 10, 5, nullptr);
  TextOutA(pieces.Dc(), 999, 999, "ab", 2);
  TextOutA(pieces.Dc(), 999, 999, "cd", 2);
  POINT position{};
  GetCurrentPositionEx(pieces.Dc(), &position);
  EXPECT_EQ(position.x, 10 + 14 + 13);
  EXPECT_EQ(position.y, 5);
  TextOutA(whole.Dc(), 10, 5, "abcd", 4);
  EXPECT_TRUE(pieces.SameAs(whole));
  SetTextAlign(pieces.Dc(), TA_UPDATECP | TA_RIGHT);
  TextOutA(pieces.Dc(), 0, 0, "ab", 2);
  GetCurrentPositionEx(pieces.Dc(), &position);
  EXPECT_EQ(position.x, 10 + 13);
}

TEST_F(TextRender, EveryDepthGetsTheSameGlyphsClippedToTheSurface) {
  constexpr COLORREF kWhite = RGB(255, 255, 255);
  TextCanvas deep(30, 20, 32), rgb(30, 20, 24), mono(30, 20, 1);
  TextCanvas dib(30, 20, 24, kWhite, TextCanvas::Kind::DibSection);
  for (TextCanvas* canvas : {&deep, &rgb, &mono, &dib}) {
    ScopedFont font(canvas->Dc(), -11);
    TextOutA(canvas->Dc(), -3, -4, "Wm", 2);
    TextOutA(canvas->Dc(), 24, 12, "Wm", 2);
    TextOutA(canvas->Dc(), -500, 9000, "far away", 8);
  }
  EXPECT_GT(deep.InkIn(0, 0, 10, 10), 0);
  EXPECT_GT(deep.InkIn(24, 12, 30, 20), 0);
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 30; ++x) {
      EXPECT_EQ(rgb.At(x, y), deep.At(x, y));
      EXPECT_EQ(mono.At(x, y), deep.At(x, y));
      EXPECT_EQ(dib.At(x, y), deep.At(x, y));
    }
  }
}

TEST_F(TextRender, UnderlineAndStrikeOutAreLinesAcrossTheText) {
  TextCanvas plain(30, 25);
  ScopedFont plainFont(plain.Dc(), -11);
  TextOutA(plain.Dc(), 5, 5, "ab", 2);
  // Rows below the cell top: the underline on the baseline row (10), the strike-out at 7.
  for (const auto& [underline, strikeOut, row] : {std::tuple{1u, 0u, 15}, std::tuple{0u, 1u, 12}}) {
    TextCanvas lined(30, 25);
    ScopedFont font(lined.Dc(),
                    CreateFontA(-11, 0, 0, 0, 400, 0, underline, strikeOut, 0, 0, 0, 0, 0, ""));
    TextOutA(lined.Dc(), 5, 5, "ab", 2);
    for (int y = 0; y < 25; ++y) {
      for (int x = 0; x < 30; ++x) {
        const bool line = y == row && x >= 5 && x < 19;
        EXPECT_EQ(lined.Ink(x, y), line || plain.Ink(x, y)) << x << "," << y;
      }
    }
  }
}

TEST_F(TextRender, StringsAreUtf8WithWindows1252ForStrayBytes) {
  TextCanvas canvas(20, 20);
  ScopedFont font(canvas.Dc(), -11);
  auto image = [&canvas](const char* text, int count) {
    TextCanvas copy(20, 20);
    ScopedFont copyFont(copy.Dc(), -11);
    TextOutA(copy.Dc(), 2, 2, text, count);
    return copy.SameAs(canvas);
  };
  TextOutA(canvas.Dc(), 2, 2, "\xC3\xA9", 2);  // e acute in UTF-8
  EXPECT_TRUE(image("\xE9", 1));               // and as a Windows-1252 byte
  EXPECT_FALSE(image("\xC3", 1));              // a cut sequence is a character of its own
  SIZE euro{}, euroByte{};
  GetTextExtentPoint32A(canvas.Dc(), "\xE2\x82\xAC", 3, &euro);
  GetTextExtentPoint32A(canvas.Dc(), "\x80", 1, &euroByte);
  EXPECT_EQ(euro.cx, euroByte.cx);
  EXPECT_GT(euro.cx, 0);
}

TEST(TextGolden, WrappedCentredUnderlinedCaption) {
  testing::LeakCheck leaks;
  testing::PinnedFont pinned;
  testing::TextCanvas canvas(72, 50, 32, RGB(212, 208, 200));
  testing::ScopedFont font(canvas.Dc(), CreateFontA(-11, 0, 0, 0, FW_NORMAL, 0, 1, 0, 0, 0, 0,
                                                    ANTIALIASED_QUALITY, 0, "MS Sans Serif"));
  SetBkMode(canvas.Dc(), TRANSPARENT);
  SetTextColor(canvas.Dc(), RGB(0, 0, 128));
  RECT rect{4, 4, 68, 46};
  DrawTextA(canvas.Dc(), "&Wrapped and centred", -1, &rect,
            DT_WORDBREAK | DT_EDITCONTROL | DT_CENTER);
  EXPECT_TRUE(testing::DcMatchesPng(canvas.Dc(), GLYPHON_GOLDEN_DIR "/text/wrapped_caption.png"));
}

}  // namespace
}  // namespace glyphon::win
