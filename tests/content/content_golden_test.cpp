// Golden images of the content pass alone, on a flat face: layouts, picture styles, disabled
// looks and captions. Regenerate only on purpose, after checking the new images by eye:
//   GLYPHON_UPDATE_GOLDEN=1 build/release/tests/content_tests --gtest_filter='ContentGolden.*'
#include <gtest/gtest.h>

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

}  // namespace
}  // namespace glyphon::testing
