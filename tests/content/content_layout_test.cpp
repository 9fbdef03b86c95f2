// Exact positions from the layout routines, with a measurer that answers a fixed text size.
#include <gtest/gtest.h>

#include <vector>

#include "content/content_layout.h"
#include "content/content_margins.h"
#include "control/glyphon_constants.h"

namespace glyphon {
namespace {

constexpr win::UINT kMeasure = 0x2410;

// A caption of a fixed size that fits whatever it is given; remembers every question.
class FixedCaption final : public CaptionMeasurer {
 public:
  FixedCaption(int width, int height) : width_(width), height_(height) {}
  win::RECT Measure(win::RECT rect, win::UINT flags) const override {
    asked.push_back(rect);
    flagsAsked.push_back(flags);
    return {rect.left, rect.top, rect.left + width_, rect.top + height_};
  }
  mutable std::vector<win::RECT> asked;
  mutable std::vector<win::UINT> flagsAsked;

 private:
  int width_;
  int height_;
};

ContentFrame Frame(int width, int height, std::int32_t alignment, std::int32_t pictureAlignment,
                   SideMargins margins = ContentMargins(zonStyleWin9x, true)) {
  return {width, height, alignment, pictureAlignment, 5, margins};
}

bool SameRect(const win::RECT& a, const win::RECT& b) {
  return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

TEST(ContentMargins, ByStyleAndFocusCue) {
  EXPECT_EQ(ContentMargins(zonStyleWin9x, true).left, 6);
  EXPECT_EQ(ContentMargins(zonStyleWin9x, true).right, 7);
  EXPECT_EQ(ContentMargins(zonStyleWin9x, false).left, 5);
  EXPECT_EQ(ContentMargins(zonStyleWin9x, false).right, 5);
  const SideMargins mac = ContentMargins(zonStyleMac8x, true);
  EXPECT_EQ(mac.left, 8);
  EXPECT_EQ(mac.top, 10);
  EXPECT_EQ(mac.bottom, 8);
  EXPECT_EQ(mac.right, 8);
  for (std::int32_t style : {zonStyleWin3x, zonStyleWinXPBlue, zonStyleWinXPSilver}) {
    EXPECT_EQ(ContentMargins(style, false).left, 6);
    EXPECT_EQ(ContentMargins(style, true).right, 6);
  }
}

TEST(CaptionLayout, MeasuresAWidthInTheRightMemberAndCentresVertically) {
  FixedCaption text(30, 13);
  // Even sizes: 81 - 30 = 51 leaves a truncated half; 24 / 2 - 13 / 2 = 6.
  EXPECT_EQ(LayOutCaption(Frame(81, 24, zonAlignLeft, 0), text), (CaptionRect{6, 6, 36, 13}));
  EXPECT_EQ(LayOutCaption(Frame(81, 24, zonAlignRight, 0), text), (CaptionRect{44, 6, 74, 13}));
  EXPECT_EQ(LayOutCaption(Frame(81, 24, zonAlignCenter, 0), text),
            (CaptionRect{25, 6, 55, 13}));
  ASSERT_EQ(text.asked.size(), 3u);
  EXPECT_TRUE(SameRect(text.asked[0], {6, 0, 68, 1}));
  EXPECT_EQ(text.flagsAsked[0], kMeasure);
  EXPECT_EQ(text.flagsAsked[2], kMeasure | win::DT_CENTER);

  // Odd sizes truncate both halves.
  FixedCaption odd(31, 13);
  EXPECT_EQ(LayOutCaption(Frame(80, 25, zonAlignCenter, 0), odd), (CaptionRect{25, 6, 56, 13}));
}

TEST(PictureLayout, IgnoresPictureAlignment) {
  for (std::int32_t pictureAlignment = 0; pictureAlignment < 5; ++pictureAlignment) {
    EXPECT_EQ(LayOutPicture(Frame(81, 25, zonAlignLeft, pictureAlignment), 16, 16),
              (PicturePosition{6, 4}));
    EXPECT_EQ(LayOutPicture(Frame(81, 25, zonAlignRight, pictureAlignment), 16, 16),
              (PicturePosition{58, 4}));
    EXPECT_EQ(LayOutPicture(Frame(81, 25, zonAlignCenter, pictureAlignment), 15, 13),
              (PicturePosition{33, 6}));
  }
  const SideMargins noFocus = ContentMargins(zonStyleWin9x, false);
  EXPECT_EQ(LayOutPicture(Frame(81, 25, zonAlignRight, 0, noFocus), 16, 16),
            (PicturePosition{60, 4}));
}

struct PairCase {
  std::int32_t alignment;
  std::int32_t pictureAlignment;
  CaptionRect caption;
  PicturePosition picture;
};

// 81 x 41, picture 16 x 16, spacing 5, text 30 x 13, margins 6 and 7: block 51 wide, 34 high.
const PairCase kPairs[] = {
    {zonAlignLeft, zonPicAlignLeft, {27, 14, 57, 13}, {6, 12}},
    {zonAlignRight, zonPicAlignLeft, {44, 14, 74, 13}, {23, 12}},
    {zonAlignCenter, zonPicAlignLeft, {36, 14, 66, 13}, {15, 12}},
    {zonAlignLeft, zonPicAlignRight, {6, 14, 36, 13}, {41, 12}},
    {zonAlignRight, zonPicAlignRight, {23, 14, 53, 13}, {58, 12}},
    {zonAlignCenter, zonPicAlignRight, {15, 14, 45, 13}, {50, 12}},
    {zonAlignLeft, zonPicAlignCenter, {6, 14, 36, 13}, {13, 12}},
    // Off the text's middle by Lm - Rm = -1.
    {zonAlignRight, zonPicAlignCenter, {44, 14, 74, 13}, {50, 12}},
    {zonAlignCenter, zonPicAlignCenter, {25, 14, 55, 13}, {32, 12}},
    // 41 / 2 - 34 / 2 = 3.5 goes to 4.
    {zonAlignLeft, zonPicAlignTop, {6, 25, 36, 13}, {6, 4}},
    {zonAlignRight, zonPicAlignTop, {44, 25, 74, 13}, {58, 4}},
    {zonAlignCenter, zonPicAlignTop, {25, 25, 55, 13}, {32, 4}},
    {zonAlignLeft, zonPicAlignBottom, {6, 4, 36, 13}, {6, 22}},
    {zonAlignRight, zonPicAlignBottom, {44, 4, 74, 13}, {58, 22}},
    {zonAlignCenter, zonPicAlignBottom, {25, 4, 55, 13}, {32, 22}},
};

TEST(CaptionAndPictureLayout, EveryAlignmentPair) {
  for (const PairCase& expected : kPairs) {
    SCOPED_TRACE(testing::Message() << "alignment " << expected.alignment << ", picture "
                                    << expected.pictureAlignment);
    FixedCaption text(30, 13);
    const CaptionAndPicture placed = LayOutCaptionAndPicture(
        Frame(81, 41, expected.alignment, expected.pictureAlignment), 16, 16, text);
    EXPECT_EQ(placed.caption, expected.caption);
    EXPECT_EQ(placed.picture, expected.picture);
    // Measured where the text may go, then again where it went; never centred.
    ASSERT_EQ(text.asked.size(), 2u);
    EXPECT_EQ(text.flagsAsked[0], kMeasure);
    EXPECT_EQ(text.flagsAsked[1], kMeasure);
    EXPECT_TRUE(SameRect(text.asked[1], {expected.caption.left, 0, expected.caption.right, 1}));
  }
}

TEST(CaptionAndPictureLayout, MeasuringRectanglesByPictureAlignment) {
  const auto firstAsked = [](std::int32_t pictureAlignment) {
    FixedCaption text(30, 13);
    LayOutCaptionAndPicture(Frame(81, 41, zonAlignCenter, pictureAlignment), 16, 16, text);
    return text.asked.front();
  };
  EXPECT_TRUE(SameRect(firstAsked(zonPicAlignLeft), {27, 0, 74, 1}));
  EXPECT_TRUE(SameRect(firstAsked(zonPicAlignRight), {27, 0, 74, 1}));
  EXPECT_TRUE(SameRect(firstAsked(zonPicAlignCenter), {11, 0, 74, 1}));
  // A width in the right member, as for a caption alone.
  EXPECT_TRUE(SameRect(firstAsked(zonPicAlignTop), {6, 0, 68, 1}));
  EXPECT_TRUE(SameRect(firstAsked(zonPicAlignBottom), {6, 0, 68, 1}));
}

TEST(CaptionAndPictureLayout, StackedBlocksRoundHalvesToEven) {
  // 40 / 2 - 35 / 2 = 2.5 goes down to 2; 41 / 2 - 35 / 2 = 3 exactly.
  FixedCaption text(30, 14);
  EXPECT_EQ(LayOutCaptionAndPicture(Frame(81, 40, zonAlignLeft, zonPicAlignTop), 16, 16, text)
                .picture.y,
            2);
  EXPECT_EQ(LayOutCaptionAndPicture(Frame(81, 40, zonAlignLeft, zonPicAlignBottom), 16, 16, text)
                .caption.top,
            2);
  EXPECT_EQ(LayOutCaptionAndPicture(Frame(81, 41, zonAlignLeft, zonPicAlignTop), 16, 16, text)
                .picture.y,
            3);
  // Odd picture, beside the text: each centred on its own with truncated halves.
  const CaptionAndPicture beside =
      LayOutCaptionAndPicture(Frame(80, 25, zonAlignCenter, zonPicAlignLeft), 15, 13, text);
  EXPECT_EQ(beside.picture, (PicturePosition{15, 6}));
  EXPECT_EQ(beside.caption, (CaptionRect{35, 5, 65, 14}));
}

}  // namespace
}  // namespace glyphon
