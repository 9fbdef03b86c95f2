// The looks through a hosted button: what the control hands the painters reaches the screen.
#include <gtest/gtest.h>

#include "tests/control/hosted_button.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using Log = std::vector<std::string>;
using StyleControl = HostedButtonTest;

TEST_F(StyleControl, ChangingTheStyleRepaintsOnceInTheNewLook) {
  host_.ExtenderObject().containerBackColor = win::RGB(0, 128, 128);
  button_.SetStyle(zonStyleWinXPBlue);
  EXPECT_EQ(host_.Log(), (Log{"paint Up", "changed Style"}));
  const win::HDC hdc = host_.hDC();
  EXPECT_EQ(win::GetPixel(hdc, 0, 0), win::RGB(0, 128, 128));
  EXPECT_EQ(win::GetPixel(hdc, 5, 0), win::RGB(0, 60, 115));

  host_.ClearLog();
  button_.SetStyle(zonStyleMac8x);
  EXPECT_EQ(host_.Log(), (Log{"paint Up", "changed Style"}));
  EXPECT_EQ(win::GetPixel(hdc, 0, 0), win::RGB(0, 128, 128));
  EXPECT_EQ(win::GetPixel(hdc, 2, 0), win::RGB(0, 0, 0));
}

TEST_F(StyleControl, WithoutAContainerColourTheRepaintStillCompletes) {
  host_.ExtenderObject().containerBackColor.reset();
  button_.SetStyle(zonStyleWinXPBlue);
  EXPECT_EQ(host_.Log(), (Log{"paint Up", "changed Style"}));
  EXPECT_EQ(win::GetPixel(host_.hDC(), 5, 0), win::RGB(0, 60, 115))
      << "the frame stops at the first corner, the blit still shows what it drew";
}

}  // namespace
}  // namespace glyphon::testing
