#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>

#include "tests/platform/text_canvas.h"
#include "tests/support/leak_check.h"
#include "tests/support/pinned_font.h"

namespace glyphon::win {
namespace {

using testing::MetricsOf;
using testing::ScopedFont;
using testing::TextCanvas;
using testing::WidthOf;

constexpr const char* kBoldFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf";
constexpr const char* kCjkFile = "/usr/share/fonts/truetype/wqy/wqy-microhei.ttc";

class TextFont : public ::testing::Test {
 protected:
  testing::LeakCheck leaks_;
  testing::PinnedFont pinned_;
  TextCanvas canvas_{120, 60};
};

std::string FaceOf(HDC dc) {
  char face[LF_FACESIZE] = {};
  GetTextFaceA(dc, LF_FACESIZE, face);
  return face;
}

// The pinned face has 2048 units per em, a Windows ascent of 1901 and descent of 483.
TEST_F(TextFont, NegativeHeightIsTheEmAndPositiveHeightTheCell) {
  // 13 is the cell of an 11-pixel em; 0 asks for GDI's default cell of 16.
  for (const auto& [requested, cell, em] :
       {std::array{-11, 13, 11}, std::array{13, 13, 11}, std::array{0, 16, 0}, {-16, 19, 16}}) {
    ScopedFont font(canvas_.Dc(), requested);
    const TEXTMETRICA tm = MetricsOf(canvas_.Dc());
    EXPECT_EQ(tm.tmHeight, cell) << requested;
    EXPECT_TRUE(em == 0 || tm.tmHeight - tm.tmInternalLeading == em) << requested;
  }
  ScopedFont font(canvas_.Dc(), -11);
  const TEXTMETRICA tm = MetricsOf(canvas_.Dc());
  EXPECT_EQ(tm.tmAscent, 10);  // 1901 * 11 / 2048 = 10.2
  EXPECT_EQ(tm.tmDescent, 3);  // 483 * 11 / 2048 = 2.6
  EXPECT_EQ(tm.tmExternalLeading, 0);
  EXPECT_EQ(tm.tmAveCharWidth, 6);  // xAvgCharWidth 1038 * 11 / 2048 = 5.6
}

// A surface copies a DC's font by feeding its metrics and face name back into CreateFontA; the
// copy must measure and draw exactly like the original.
TEST_F(TextFont, FontRebuiltFromItsOwnMetricsIsTheSame) {
  for (const int weight : {400, 700}) {
    for (const DWORD italic : {0u, 1u}) {
      TextCanvas original(120, 30), copy(120, 30);
      ScopedFont font(original.Dc(), CreateFontA(-11, 0, 0, 0, weight, italic, 1, 0, 0, 0, 0, 4, 0,
                                                 "MS Shell Dlg"));
      const TEXTMETRICA tm = MetricsOf(original.Dc());
      const std::string face = FaceOf(original.Dc());
      ScopedFont rebuilt(copy.Dc(),
                         CreateFontA(tm.tmHeight, tm.tmAveCharWidth, 0, 0, tm.tmWeight, tm.tmItalic,
                                     tm.tmUnderlined, tm.tmStruckOut, tm.tmCharSet, 0, 0, 4,
                                     tm.tmPitchAndFamily, face.c_str()));
      const TEXTMETRICA again = MetricsOf(copy.Dc());
      EXPECT_EQ(std::memcmp(&tm, &again, sizeof tm), 0) << weight << " " << italic;
      TextOutA(original.Dc(), 2, 2, "Rebuilt Wg", 10);
      TextOutA(copy.Dc(), 2, 2, "Rebuilt Wg", 10);
      EXPECT_TRUE(original.SameAs(copy)) << weight << " " << italic;
    }
  }
}

TEST_F(TextFont, AverageWidthScalesGlyphsHorizontally) {
  long natural = 0;
  {
    ScopedFont font(canvas_.Dc(), -11);
    natural = WidthOf(canvas_.Dc(), "Hello world");
  }
  ScopedFont wide(canvas_.Dc(), CreateFontA(-11, 12, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, ""));
  EXPECT_EQ(MetricsOf(canvas_.Dc()).tmAveCharWidth, 12);
  EXPECT_NEAR(static_cast<double>(WidthOf(canvas_.Dc(), "Hello world")),
              2.0 * static_cast<double>(natural), 6.0);
}

TEST_F(TextFont, BoldIsSynthesisedOnlyWhenTheFamilyHasNoBoldFace) {
  auto width = [this](int weight, int reported, const char* text = "Hello world") {
    ScopedFont font(canvas_.Dc(), -11, weight);
    EXPECT_EQ(MetricsOf(canvas_.Dc()).tmWeight, reported) << weight;
    return WidthOf(canvas_.Dc(), text);
  };
  // Up to 550 stays regular; synthesis makes each glyph one pixel wider.
  EXPECT_EQ(width(551, 700, "Hello"), width(550, 400, "Hello") + 5);
  const long synthesised = width(700, 700);
  long real = 0;
  {
    testing::PinnedFont boldOnly({kBoldFile});
    real = width(700, 700);
  }
  testing::PinnedFont both({testing::kPinnedFontFile, kBoldFile});
  EXPECT_EQ(width(700, 700), real);
  EXPECT_NE(real, synthesised);
}

// Column of the first ink pixel in a row, or -1.
int FirstInk(const TextCanvas& canvas, int y) {
  for (int x = 0; x < canvas.Width(); ++x) {
    if (canvas.Ink(x, y)) return x;
  }
  return -1;
}

TEST_F(TextFont, ItalicSlantsWhenTheFamilyHasNoItalicFace) {
  for (const DWORD italic : {0u, 1u}) {
    TextCanvas canvas(60, 60);
    ScopedFont font(canvas.Dc(), CreateFontA(-40, 0, 0, 0, 400, italic, 0, 0, 0, 0, 0, 0, 0, ""));
    EXPECT_EQ(MetricsOf(canvas.Dc()).tmItalic, italic != 0 ? 255 : 0);
    TextOutA(canvas.Dc(), 10, 5, "l", 1);  // a plain vertical stem
    const int ascent = MetricsOf(canvas.Dc()).tmAscent;
    const int top = FirstInk(canvas, 5 + 8), bottom = FirstInk(canvas, 5 + ascent - 2);
    ASSERT_GE(top, 0);
    ASSERT_GE(bottom, 0);
    if (italic != 0) {
      EXPECT_GE(top - bottom, 4);  // tan(12 degrees) over about 20 rows
    } else {
      EXPECT_EQ(top, bottom);
    }
  }
}

TEST_F(TextFont, CharsetAndPitchAndFamilyAreStoredAndReported) {
  HFONT symbol = CreateFontA(-11, 0, 0, 0, 400, 0, 0, 0, SYMBOL_CHARSET, 0, 0, 0,
                             VARIABLE_PITCH | FF_ROMAN, "MS Sans Serif");
  LOGFONTA stored{};
  ASSERT_EQ(GetObjectA(symbol, sizeof stored, &stored), static_cast<int>(sizeof stored));
  EXPECT_EQ(stored.lfCharSet, SYMBOL_CHARSET);
  EXPECT_EQ(stored.lfPitchAndFamily, VARIABLE_PITCH | FF_ROMAN);
  {
    ScopedFont font(canvas_.Dc(), symbol);
    const TEXTMETRICA tm = MetricsOf(canvas_.Dc());
    EXPECT_EQ(tm.tmCharSet, SYMBOL_CHARSET);
    EXPECT_EQ(tm.tmPitchAndFamily & 0xF0, FF_ROMAN);  // the family asked for
  }
  ScopedFont plain(canvas_.Dc(), CreateFontA(-11, 0, 0, 0, 400, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0,
                                             0, "MS Sans Serif"));
  const TEXTMETRICA tm = MetricsOf(canvas_.Dc());
  EXPECT_EQ(tm.tmCharSet, ANSI_CHARSET);
  // The face's own family, variable pitch (GDI's inverted bit), an outline font.
  EXPECT_EQ(tm.tmPitchAndFamily, FF_SWISS | TMPF_FIXED_PITCH | TMPF_VECTOR | TMPF_TRUETYPE);
}

TEST_F(TextFont, FaceNameIsTheFaceInUse) {
  ScopedFont font(canvas_.Dc(), -11, 400, 0, "");  // no name: the default face
  EXPECT_EQ(FaceOf(canvas_.Dc()), "DejaVu Sans");
  EXPECT_EQ(GetTextFaceA(canvas_.Dc(), 0, nullptr), 12);  // length with the terminator
  char shortBuffer[4] = {'x', 'x', 'x', 'x'};
  EXPECT_EQ(GetTextFaceA(canvas_.Dc(), 4, shortBuffer), 3);
  EXPECT_STREQ(shortBuffer, "Dej");
}

TEST(TextFontSystem, ClassicNamesAndUnknownNamesShareOneSansSerifFace) {
  testing::LeakCheck leaks;
  TextCanvas canvas(10, 10);
  std::string arial;
  {
    ScopedFont font(canvas.Dc(), -11, 400, 0, "Arial");
    arial = FaceOf(canvas.Dc());
    EXPECT_EQ(MetricsOf(canvas.Dc()).tmPitchAndFamily & 0xF0, FF_SWISS);
  }
  for (const char* name : {"MS Sans Serif", "Microsoft Sans Serif", "MS Shell Dlg", "Tahoma",
                           "Chicago", "Charcoal", "System", "No Such Face"}) {
    ScopedFont font(canvas.Dc(), -11, 400, 0, name);
    EXPECT_EQ(FaceOf(canvas.Dc()), arial) << name;
  }
  ScopedFont courier(canvas.Dc(), -11, 400, 0, "Courier New");
  EXPECT_NE(FaceOf(canvas.Dc()), arial);
  EXPECT_EQ(MetricsOf(canvas.Dc()).tmPitchAndFamily & TMPF_FIXED_PITCH, 0);  // fixed pitch
}

TEST_F(TextFont, StockFontsHaveTheirClassicSizes) {
  const TEXTMETRICA system = MetricsOf(canvas_.Dc());  // a new DC holds SYSTEM_FONT
  EXPECT_EQ(system.tmHeight, 16);
  EXPECT_EQ(system.tmWeight, 700);
  HGDIOBJ previous = SelectObject(canvas_.Dc(), GetStockObject(DEFAULT_GUI_FONT));
  const TEXTMETRICA gui = MetricsOf(canvas_.Dc());
  EXPECT_EQ(gui.tmHeight - gui.tmInternalLeading, 11);
  SelectObject(canvas_.Dc(), previous);
}

TEST_F(TextFont, CharactersMissingFromTheFaceComeFromAnotherFont) {
  long withoutCjk = 0;
  {
    ScopedFont font(canvas_.Dc(), -11);
    EXPECT_EQ(WidthOf(canvas_.Dc(), "\xCE\xA9"), 9);     // Greek capital omega is in the face
    withoutCjk = WidthOf(canvas_.Dc(), "\xE4\xB8\xAD");  // U+4E2D: the face's missing glyph
  }
  testing::PinnedFont withCjk({testing::kPinnedFontFile, kCjkFile});
  ScopedFont font(canvas_.Dc(), -11, 400, 4);
  EXPECT_EQ(FaceOf(canvas_.Dc()), "DejaVu Sans");
  EXPECT_EQ(WidthOf(canvas_.Dc(), "\xE4\xB8\xAD"), 11);  // a full em
  EXPECT_NE(withoutCjk, 11);
  TextOutA(canvas_.Dc(), 0, 0, "\xE4\xB8\xAD", 3);
  EXPECT_GT(canvas_.InkIn(0, 0, 11, 13), 20);
}

TEST_F(TextFont, BadInputFailsWithoutHarm) {
  EXPECT_EQ(CreateFontIndirectA(nullptr), nullptr);
  TEXTMETRICA tm{};
  EXPECT_FALSE(GetTextMetricsA(nullptr, &tm));
  EXPECT_FALSE(GetTextMetricsA(canvas_.Dc(), nullptr));
  SIZE size{};
  EXPECT_FALSE(GetTextExtentPoint32A(canvas_.Dc(), "abc", -1, &size));
  EXPECT_FALSE(GetTextExtentPoint32A(canvas_.Dc(), nullptr, 3, &size));
  EXPECT_TRUE(GetTextExtentPoint32A(canvas_.Dc(), nullptr, 0, &size));
  EXPECT_EQ(size.cx, 0);
  EXPECT_FALSE(TextOutA(canvas_.Dc(), 0, 0, nullptr, 2));
  EXPECT_FALSE(TextOutA(nullptr, 0, 0, "a", 1));
  RECT rect{0, 0, 10, 10};
  EXPECT_EQ(DrawTextA(nullptr, "a", 1, &rect, 0), 0);
  EXPECT_EQ(DrawTextA(canvas_.Dc(), "a", 1, nullptr, 0), 0);
  // Face names longer than a LOGFONT holds are cut, not overrun.
  HFONT font = CreateFontA(-11, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0,
                           "A face name far longer than thirty-one characters");
  LOGFONTA stored{};
  GetObjectA(font, sizeof stored, &stored);
  EXPECT_EQ(std::strlen(stored.lfFaceName), static_cast<std::size_t>(LF_FACESIZE - 1));
  DeleteObject(font);
  // Text survives its font being deleted while selected, and measures with it until deselected.
  HFONT selected = CreateFontA(-30, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "");
  HGDIOBJ previous = SelectObject(canvas_.Dc(), selected);
  DeleteObject(selected);
  EXPECT_EQ(MetricsOf(canvas_.Dc()).tmHeight - MetricsOf(canvas_.Dc()).tmInternalLeading, 30);
  SelectObject(canvas_.Dc(), previous);
}

}  // namespace
}  // namespace glyphon::win
