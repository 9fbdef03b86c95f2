// Reading the picture-spacing box's text as a number.
#include <gtest/gtest.h>

#include "control/glyphon_errors.h"
#include "propertypage/picture_spacing_text.h"

namespace glyphon::testing {
namespace {

TEST(PictureSpacingTextTest, TheNumberTheTextStartsWith) {
  EXPECT_EQ(LeadingNumber(""), 0);
  EXPECT_EQ(LeadingNumber("px"), 0);
  EXPECT_EQ(LeadingNumber("-"), 0);
  EXPECT_EQ(LeadingNumber("12px"), 12);
  EXPECT_EQ(LeadingNumber("  7"), 7);
  EXPECT_EQ(LeadingNumber("-3"), -3);
  EXPECT_EQ(LeadingNumber("+4"), 4);
  EXPECT_EQ(LeadingNumber("1 2"), 1);
  EXPECT_EQ(LeadingNumber(".5"), 0);   // halves go to even
  EXPECT_EQ(LeadingNumber("2.5"), 2);
  EXPECT_EQ(LeadingNumber("3.5"), 4);
  EXPECT_EQ(LeadingNumber("2.51"), 3);
  EXPECT_EQ(LeadingNumber("2147483647"), 2147483647);
  EXPECT_EQ(LeadingNumber("-2147483648"), -2147483647 - 1);
  EXPECT_THROW(LeadingNumber("2147483648"), AutomationError);
  EXPECT_THROW(LeadingNumber("999999999999999999999999"), AutomationError);
}

}  // namespace
}  // namespace glyphon::testing
