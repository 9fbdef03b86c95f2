// The golden image of a caption as the button draws it: wrapped, centred, underlined, smoothed.
// Regenerate only on purpose, after checking the new picture by eye:
//   GLYPHON_UPDATE_GOLDEN=1 build/debug/tests/platform_tests --gtest_filter='TextGolden.*'
#include <gtest/gtest.h>

#include "tests/platform/text_canvas.h"
#include "tests/support/image_compare.h"
#include "tests/support/leak_check.h"
#include "tests/support/pinned_font.h"

namespace glyphon::win {
namespace {

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
