// The content pass as a whole: which picture shows, and how pressing moves the content.
#include <gtest/gtest.h>

#include "content/paint_content.h"
#include "content/picture_choice.h"
#include "samples/sample_pictures.h"
#include "tests/content/test_button.h"
#include "tests/support/leak_check.h"
#include "tests/support/pinned_font.h"

namespace glyphon::testing {
namespace {

using samples::MakeSamplePicture;
using samples::SamplePicture;

TEST(PictureChoice, FallsBackByStateAndPrefersTheDisabledPicture) {
  LeakCheck leaks;
  TestButton button;
  button.picture = MakeSamplePicture(SamplePicture::Check16);
  button.pictureOver = MakeSamplePicture(SamplePicture::Folder16);
  EXPECT_EQ(ChoosePicture(button, DrawStateDown), button.pictureOver);
  EXPECT_EQ(ChoosePicture(button, DrawStateHot), button.pictureOver);
  EXPECT_EQ(ChoosePicture(button, DrawStateUp), button.picture);
  EXPECT_FALSE(HasPicture(ChoosePicture(button, 7)));
  button.pictureOver = StdPicture::Empty();  // an empty picture counts as none
  EXPECT_EQ(ChoosePicture(button, DrawStateDown), button.picture);
  button.pictureDown = MakeSamplePicture(SamplePicture::Arrow15x13);
  EXPECT_EQ(ChoosePicture(button, DrawStateDown), button.pictureDown);

  button.enabled = false;
  EXPECT_EQ(ChoosePicture(button, DrawStateDown), button.pictureDown);
  button.pictureDisabled = MakeSamplePicture(SamplePicture::Stop16Icon);
  for (const std::int32_t state : {DrawStateHot, DrawStateDown, DrawStateUp, 7}) {
    EXPECT_EQ(ChoosePicture(button, state), button.pictureDisabled);
  }
}

// True when the down image is the up image moved one pixel right and down.
bool MovedByOnePixel(const Canvas& up, const Canvas& down) {
  for (int y = 0; y + 1 < up.Height(); ++y) {
    for (int x = 0; x + 1 < up.Width(); ++x) {
      if (win::GetPixel(up.hdc(), x, y) != win::GetPixel(down.hdc(), x + 1, y + 1)) return false;
    }
  }
  return true;
}

TEST(PaintContent, PressingMovesCaptionPictureAndFocusRectangleOnePixel) {
  LeakCheck leaks;
  PinnedFont pinned;
  TestButton button;
  button.style = zonStyleWin3x;
  button.hasFocus = true;
  button.SetCaption("&Go");
  button.picture = MakeSamplePicture(SamplePicture::Folder16);
  for (const std::int32_t pictureAlignment : {zonPicAlignLeft, zonPicAlignTop}) {
    button.pictureAlignment = pictureAlignment;
    const auto up = RenderContent(button, 61, 45, DrawStateUp);
    EXPECT_TRUE(MovedByOnePixel(*up, *RenderContent(button, 61, 45, DrawStateDown)));
    // Without the push look nothing moves.
    button.pushLook = 0;
    EXPECT_FALSE(MovedByOnePixel(*up, *RenderContent(button, 61, 45, DrawStateDown)));
    button.pushLook = 1;
  }
}

// The caption rectangle stays at the origin; only the picture's placement is compared, since
// whether a lone "&" shows there is the text call's business.
TEST(PaintContent, AnAmpersandAloneLeavesThePictureAlone) {
  LeakCheck leaks;
  PinnedFont pinned;
  TestButton button;
  button.picture = MakeSamplePicture(SamplePicture::Check16);
  button.SetCaption("");
  const auto bare = RenderContent(button, 40, 24, DrawStateUp);
  button.SetCaption("&");
  const auto ampersand = RenderContent(button, 40, 24, DrawStateUp);
  for (int y = 0; y < 24; ++y) {
    for (int x = 10; x < 40; ++x) {
      ASSERT_EQ(win::GetPixel(bare->hdc(), x, y), win::GetPixel(ampersand->hdc(), x, y))
          << x << ", " << y;
    }
  }
}

TEST(PaintContent, ActivePictureIsFullForADefaultButtonThatShowsIt) {
  LeakCheck leaks;
  TestButton button;
  button.pictureStyle = zonPicStyleActive;
  button.picture = MakeSamplePicture(SamplePicture::Check16);
  const auto faded = RenderContent(button, 30, 26, DrawStateUp);
  button.isDefault = true;
  const auto full = RenderContent(button, 30, 26, DrawStateUp);
  button.userMode = false;
  const auto designed = RenderContent(button, 30, 26, DrawStateUp);
  // The middle of the tick: green in full, half green over the face when faded.
  EXPECT_EQ(win::GetPixel(full->hdc(), 13, 14), win::GetPixel(designed->hdc(), 13, 14));
  EXPECT_NE(win::GetPixel(full->hdc(), 13, 14), win::GetPixel(faded->hdc(), 13, 14));
}

}  // namespace
}  // namespace glyphon::testing
