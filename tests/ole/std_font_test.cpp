#include "platform/ole/std_font.h"

#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "tests/support/leak_check.h"

namespace glyphon {
namespace {

using namespace win;

TEST(StdFont, BoldAndWeightAreOneValue) {
  StdFont font;
  EXPECT_EQ(font.Weight(), 400);
  EXPECT_FALSE(font.Bold());
  font.Weight(551);
  EXPECT_TRUE(font.Bold());
  font.Weight(550);
  EXPECT_FALSE(font.Bold());
  font.Bold(true);
  EXPECT_EQ(font.Weight(), 700);
  font.Weight(900);
  font.Bold(false);  // not bold any more means normal weight, whatever it was
  EXPECT_EQ(font.Weight(), 400);
}

TEST(StdFont, SizeKeepsFourDecimals) {
  StdFont font;
  EXPECT_EQ(font.SizeTenThousandths(), 82500);  // 8.25 points
  font.Size(8.123456);
  EXPECT_EQ(font.SizeTenThousandths(), 81235);
  EXPECT_DOUBLE_EQ(font.Size(), 8.1235);
  font.Size(10.00004);
  EXPECT_EQ(font.SizeTenThousandths(), 100000);
  // Both land on a half exactly; halves go to the even neighbour.
  font.Size(0.00025);
  EXPECT_EQ(font.SizeTenThousandths(), 2);
  font.Size(0.00035);
  EXPECT_EQ(font.SizeTenThousandths(), 4);
  font.Size(1e300);  // beyond the host's range: refused
  EXPECT_EQ(font.SizeTenThousandths(), 4);
}

TEST(StdFont, LogicalFontAtNinetySixPixelsPerInch) {
  StdFont font;
  // Points to pixels is 4/3; the fraction rounds up only above one half.
  for (const auto& [points, height] :
       {std::pair{8.25, -11}, std::pair{8.0, -11}, std::pair{9.0, -12}, std::pair{10.0, -13},
        std::pair{12.0, -16}, std::pair{6.375, -8}, std::pair{6.3751, -9}}) {
    font.Size(points);
    EXPECT_EQ(font.ToLogFont().lfHeight, height) << points;
  }
  font.Name("A face name far longer than thirty-one characters");
  font.Weight(551);
  font.Italic(true);
  font.Strikethrough(true);
  font.Charset(SYMBOL_CHARSET);
  const LOGFONTA logFont = font.ToLogFont();
  EXPECT_EQ(logFont.lfWeight, 551);
  EXPECT_EQ(logFont.lfItalic, 1);
  EXPECT_EQ(logFont.lfUnderline, 0);
  EXPECT_EQ(logFont.lfStrikeOut, 1);
  EXPECT_EQ(logFont.lfCharSet, SYMBOL_CHARSET);
  EXPECT_EQ(logFont.lfWidth, 0);
  EXPECT_EQ(std::strlen(logFont.lfFaceName), static_cast<std::size_t>(LF_FACESIZE - 1));
}

TEST(StdFont, HandleCarriesTheLogicalFontAndBelongsToTheCaller) {
  testing::LeakCheck leaks;
  StdFont font;
  font.Underline(true);
  HFONT handle = font.CreateHandle();
  ASSERT_NE(handle, nullptr);
  LOGFONTA stored{};
  ASSERT_EQ(GetObjectA(handle, sizeof stored, &stored), static_cast<int>(sizeof stored));
  const LOGFONTA expected = font.ToLogFont();
  EXPECT_EQ(std::memcmp(&stored, &expected, sizeof stored), 0);
  EXPECT_TRUE(DeleteObject(handle));
}

TEST(StdFont, CopiesAreIndependentValues) {
  StdFont a;
  StdFont b = a;
  EXPECT_EQ(a, b);
  b.Italic(true);
  EXPECT_FALSE(a.Italic());
  EXPECT_NE(a, b);
}

}  // namespace
}  // namespace glyphon
