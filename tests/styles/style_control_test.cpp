// The looks through a hosted button: what the control hands the painters reaches the screen.
#include <gtest/gtest.h>

#include "tests/control/hosted_button.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using Log = std::vector<std::string>;

TEST(StyleControl, ChangingTheStyleRepaintsOnceInTheNewLook) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.host.ExtenderObject().containerBackColor = win::RGB(0, 128, 128);
  hosted.button.SetStyle(zonStyleWinXPBlue);
  EXPECT_EQ(hosted.host.Log(), (Log{"paint Up", "changed Style"}));
  const win::HDC hdc = hosted.host.hDC();
  EXPECT_EQ(win::GetPixel(hdc, 0, 0), win::RGB(0, 128, 128));
  EXPECT_EQ(win::GetPixel(hdc, 5, 0), win::RGB(0, 60, 115));

  hosted.host.ClearLog();
  hosted.button.SetStyle(zonStyleMac8x);
  EXPECT_EQ(hosted.host.Log(), (Log{"paint Up", "changed Style"}));
  EXPECT_EQ(win::GetPixel(hdc, 0, 0), win::RGB(0, 128, 128));
  EXPECT_EQ(win::GetPixel(hdc, 2, 0), win::RGB(0, 0, 0));
}

TEST(StyleControl, WithoutAContainerColourTheRepaintStillCompletes) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.host.ExtenderObject().containerBackColor.reset();
  hosted.button.SetStyle(zonStyleWinXPBlue);
  EXPECT_EQ(hosted.host.Log(), (Log{"paint Up", "changed Style"}));
  EXPECT_EQ(win::GetPixel(hosted.host.hDC(), 5, 0), win::RGB(0, 60, 115))
      << "the frame stops at the first corner, the blit still shows what it drew";
}

}  // namespace
}  // namespace glyphon::testing
