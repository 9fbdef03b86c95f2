// Golden images of the content pass alone, on a flat face: layouts, picture styles, disabled
// looks and captions. Regenerate only on purpose, after checking the new images by eye:
//   GLYPHON_UPDATE_GOLDEN=1 build/release/tests/content_tests --gtest_filter='ContentGolden.*'
#include <gtest/gtest.h>

#include <string>

#include "samples/sample_pictures.h"
#include "tests/content/test_button.h"
#include "tests/support/leak_check.h"
#include "tests/support/pinned_font.h"

namespace glyphon::testing {
namespace {

using samples::MakeSamplePicture;
using samples::SamplePicture;

constexpr std::int32_t kStates[] = {DrawStateHot, DrawStateDown, DrawStateUp};

TEST(ContentGolden, EveryAlignmentWithEveryPictureAlignment) {
  LeakCheck leaks;
  PinnedFont pinned;
  TestButton button;
  button.SetCaption("&Open");
  button.picture = MakeSamplePicture(SamplePicture::Folder16);
  ButtonSheet sheet(5, 3, 81, 41);
  for (std::int32_t alignment = 0; alignment < 3; ++alignment) {
    for (std::int32_t pictureAlignment = 0; pictureAlignment < 5; ++pictureAlignment) {
      button.alignment = alignment;
      button.pictureAlignment = pictureAlignment;
      sheet.Put(pictureAlignment, alignment, *RenderContent(button, 81, 41, DrawStateUp));
    }
  }
  EXPECT_TRUE(sheet.Matches("alignments"));
}

// Rows: each PictureStyle without and with DropShadow, each without and with UseMaskColor.
// Columns: hot, down, up in a running form, up at design time.
void PictureStyleSheet(const StdPicture& picture, const std::string& golden) {
  TestButton button;
  button.picture = picture;
  ButtonSheet sheet(4, 20, 30, 26);
  int row = 0;
  for (std::int32_t pictureStyle = 0; pictureStyle < 5; ++pictureStyle) {
    for (const bool dropShadow : {false, true}) {
      for (const bool useMaskColor : {true, false}) {
        button.pictureStyle = pictureStyle;
        button.dropShadow = dropShadow;
        button.useMaskColor = useMaskColor;
        for (int column = 0; column < 4; ++column) {
          button.userMode = column < 3;
          const std::int32_t state = column < 3 ? kStates[column] : DrawStateUp;
          sheet.Put(column, row, *RenderContent(button, 30, 26, state));
        }
        ++row;
      }
    }
  }
  EXPECT_TRUE(sheet.Matches(golden));
}

TEST(ContentGolden, EveryPictureStyleInEveryState) {
  LeakCheck leaks;
  PictureStyleSheet(MakeSamplePicture(SamplePicture::Check16), "picture_styles_bitmap");
  PictureStyleSheet(MakeSamplePicture(SamplePicture::Stop16Icon), "picture_styles_icon");
}

// Rows: the six styles. Columns: a bitmap with a caption, a masked icon, an alpha icon, and a
// button with its own PictureDisabled.
TEST(ContentGolden, DisabledPicturesByStyle) {
  LeakCheck leaks;
  PinnedFont pinned;
  const StdPicture swatches = MakeSamplePicture(SamplePicture::Swatches32);
  const StdPicture globe = MakeSamplePicture(SamplePicture::Globe32Icon);
  const StdPicture gem = MakeSamplePicture(SamplePicture::Gem48AlphaIcon);
  const StdPicture check = MakeSamplePicture(SamplePicture::Check16);
  const StdPicture stop = MakeSamplePicture(SamplePicture::Stop16Icon);
  ButtonSheet sheet(4, 6, 88, 56);
  for (std::int32_t style = 0; style < 6; ++style) {
    TestButton button;
    button.style = style;
    button.enabled = false;
    const auto put = [&](int column) {
      sheet.Put(column, style, *RenderContent(button, 88, 56, DrawStateUp));
    };
    button.SetCaption("&Off");
    button.picture = swatches;
    put(0);
    button.SetCaption("");
    button.picture = globe;
    put(1);
    button.picture = gem;
    put(2);
    button.SetCaption("S&top");
    button.picture = check;
    button.pictureDisabled = stop;
    put(3);
  }
  EXPECT_TRUE(sheet.Matches("disabled_pictures"));
}

// Rows: the six styles. Columns: up, down (moved one pixel), disabled, focused (the 3.x style
// draws its focus rectangle around the caption, or around a picture without one).
TEST(ContentGolden, CaptionsByStyleAndState) {
  LeakCheck leaks;
  PinnedFont pinned;
  const StdPicture folder = MakeSamplePicture(SamplePicture::Folder16);
  ButtonSheet sheet(5, 6, 75, 27);
  for (std::int32_t style = 0; style < 6; ++style) {
    TestButton button;
    button.style = style;
    button.SetCaption("&Print");
    button.foreColor = win::RGB(0, 0, 128);
    button.picture = folder;
    sheet.Put(0, style, *RenderContent(button, 75, 27, DrawStateUp));
    sheet.Put(1, style, *RenderContent(button, 75, 27, DrawStateDown));
    button.hasFocus = true;
    sheet.Put(3, style, *RenderContent(button, 75, 27, DrawStateHot));
    button.SetCaption("");
    sheet.Put(4, style, *RenderContent(button, 75, 27, DrawStateDown));
    button.SetCaption("&Print");
    button.hasFocus = false;
    button.enabled = false;
    sheet.Put(2, style, *RenderContent(button, 75, 27, DrawStateUp));
  }
  EXPECT_TRUE(sheet.Matches("captions_by_style"));
}

// A long caption wrapped in each alignment, a word too long for the button broken, and access
// keys ("&&" shows one "&").
TEST(ContentGolden, WrappedCaptionsAndAccessKeys) {
  LeakCheck leaks;
  PinnedFont pinned;
  ButtonSheet sheet(3, 2, 81, 61);
  TestButton button;
  button.SetCaption("A rather long caption that &wraps");
  for (std::int32_t alignment = 0; alignment < 3; ++alignment) {
    button.alignment = alignment;
    sheet.Put(alignment, 0, *RenderContent(button, 81, 61, DrawStateUp));
  }
  button.alignment = zonAlignCenter;
  button.SetCaption("Incomprehensibilities");
  sheet.Put(0, 1, *RenderContent(button, 81, 61, DrawStateUp));
  button.SetCaption("Save && E&xit");
  sheet.Put(1, 1, *RenderContent(button, 81, 61, DrawStateUp));
  button.SetCaption("&Arrow");
  button.picture = MakeSamplePicture(SamplePicture::Arrow15x13);
  button.pictureAlignment = zonPicAlignRight;
  sheet.Put(2, 1, *RenderContent(button, 81, 61, DrawStateUp));
  EXPECT_TRUE(sheet.Matches("wrapped_captions"));
}

}  // namespace
}  // namespace glyphon::testing
