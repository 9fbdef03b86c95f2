#include "platform/ole/std_font.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <utility>

#include "tests/support/leak_check.h"

namespace glyphon {
namespace {

using namespace win;

TEST(StdFont, BoldAndWeightAreOneValue) {
  StdFont font;
  EXPECT_EQ(font.Weight(), 400);
  for (const auto& [weight, bold] : {std::pair{400, false}, {550, false}, {551, true}}) {
    font.Weight(static_cast<std::int16_t>(weight));
    EXPECT_EQ(font.Bold(), bold) << weight;
  }
  font.Bold(true);
  EXPECT_EQ(font.Weight(), 700);
  font.Weight(900);
  font.Bold(false);  // not bold any more means normal weight, whatever it was
  EXPECT_EQ(font.Weight(), 400);
}

TEST(StdFont, SizeKeepsFourDecimals) {
  StdFont font;
  EXPECT_EQ(font.SizeTenThousandths(), 82500);  // 8.25 points
  // The last two land on a half exactly; halves go to the even neighbour.
  for (const auto& [points, stored] :
       {std::pair{8.123456, 81235}, {10.00004, 100000}, {0.00025, 2}, {0.00035, 4}}) {
    font.Size(points);
    EXPECT_EQ(font.SizeTenThousandths(), stored) << points;
  }
  EXPECT_DOUBLE_EQ(font.Size(), 0.0004);
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
  const LOGFONTA f = font.ToLogFont();
  EXPECT_EQ((std::array<long, 6>{f.lfWeight, f.lfItalic, f.lfUnderline, f.lfStrikeOut,
                                 f.lfCharSet, f.lfWidth}),
            (std::array<long, 6>{551, 1, 0, 1, SYMBOL_CHARSET, 0}));
  EXPECT_EQ(std::strlen(f.lfFaceName), static_cast<std::size_t>(LF_FACESIZE - 1));

  // Copies are independent values.
  StdFont copy = font;
  EXPECT_EQ(copy, font);
  copy.Italic(false);
  EXPECT_TRUE(font.Italic());
  EXPECT_NE(copy, font);
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

}  // namespace
}  // namespace glyphon
