// The About box: what it shows, its link, and that closing it leaves nothing behind.
#include <gtest/gtest.h>

#include "control/glyphon_version.h"
#include "tests/control/hosted_button.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

TEST(AboutBoxTest, ShowsNameAndVersionAndOpensTheWebPage) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.button.About();
  const win::HWND about = hosted.button.AboutWindow();
  ASSERT_NE(about, nullptr);
  EXPECT_TRUE(win::IsWindowVisible(about));
  EXPECT_NE(win::GetFocus(), about) << "it does not take the focus from the form";

  hosted.button.About();  // a second request shows the same box
  EXPECT_EQ(hosted.button.AboutWindow(), about);

  // The link is the third line; clicking it asks the shell to open the project's page.
  const std::size_t before = hosted.User().ShellRequests().size();
  win::RECT box{};
  win::GetWindowRect(about, &box);
  const win::POINT link{(box.left + box.right) / 2, box.top + 15 + 2 * 20 + 10};
  hosted.User().MouseDown(win::soft::MouseButton::Left, link);
  hosted.User().MouseUp(win::soft::MouseButton::Left, link);
  ASSERT_EQ(hosted.User().ShellRequests().size(), before + 1);
  EXPECT_EQ(hosted.User().ShellRequests().back().file, kProjectWebPage);
  EXPECT_EQ(hosted.User().ShellRequests().back().operation, "open");

  hosted.User().KeyDown(win::VK_ESCAPE);  // the click gave it the focus
  hosted.User().KeyUp(win::VK_ESCAPE);
  EXPECT_EQ(hosted.button.AboutWindow(), nullptr);
  EXPECT_FALSE(win::IsWindow(about));
}

TEST(AboutBoxTest, EndingTheButtonClosesAnOpenBox) {
  LeakCheck leaks;
  win::HWND about = nullptr;
  {
    HostedButton hosted;
    hosted.button.About();
    about = hosted.button.AboutWindow();
    ASSERT_NE(about, nullptr);
  }
  EXPECT_FALSE(win::IsWindow(about));
}

}  // namespace
}  // namespace glyphon::testing
