// The control's hold on its window and the thread's shared tooltip.
#include <gtest/gtest.h>

#include "control/host/memory_property_bag.h"
#include "control/tooltip.h"
#include "tests/control/hosted_button.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using Log = std::vector<std::string>;

using SubclassMessageTest = HostedButtonTest;
using TooltipTest = HostedButtonTest;

win::WNDPROC WindowProcOf(win::HWND hwnd) {
  return reinterpret_cast<win::WNDPROC>(win::GetWindowLongPtrA(hwnd, win::GWLP_WNDPROC));
}

// What the control answers to the tooltip's text request, or null when it leaves it alone.
const char* RequestedText(win::HWND control, win::HWND from) {
  win::NMTTDISPINFOA info{};
  info.hdr.hwndFrom = from;
  info.hdr.idFrom = reinterpret_cast<win::UINT_PTR>(control);
  info.hdr.code = win::TTN_NEEDTEXTA;
  win::SendMessageA(control, win::WM_NOTIFY, 0, reinterpret_cast<win::LPARAM>(&info));
  return info.lpszText;
}

// Loads a stored instance, which registers it with the tooltip.
void Load(HostedButton& hosted) {
  MemoryPropertyBag bag;
  hosted.button.ReadProperties(bag);
  hosted.host.ClearLog();
}

TEST(SubclassTest, SubclassesOnceAndRestoresTheWindowProcedure) {
  LeakCheck leaks;
  MemoryHost host;
  const win::WNDPROC hostProc = WindowProcOf(host.hWnd());
  {
    Glyphon button(host);
    host.Attach(&button);
    button.InitProperties();
    EXPECT_EQ(WindowProcOf(host.hWnd()), &ButtonWindowProc);
    EXPECT_EQ(win::GetWindowLongPtrA(host.hWnd(), win::GWLP_USERDATA),
              reinterpret_cast<win::LONG_PTR>(&button));

    button.StartSubclass();  // a second time changes nothing
    host.ClearLog();
    win::SendMessageA(host.hWnd(), win::WM_KEYDOWN, 'Q', 0);
    EXPECT_EQ(host.Log(), Log{"KeyDown(81,0)"}) << "reaches the host once";

    button.Terminate();
    EXPECT_EQ(WindowProcOf(host.hWnd()), hostProc);
    EXPECT_EQ(win::GetWindowLongPtrA(host.hWnd(), win::GWLP_USERDATA), 0);
    host.Attach(nullptr);
  }
}

TEST_F(SubclassMessageTest, SystemColourChangeRederivesFromASystemBackColour) {
  button_.SetShadowColor(0x123456);
  button_.SetDisabledColor(0x654321);
  host_.ClearLog();
  win::SendMessageA(host_.hWnd(), win::WM_SYSCOLORCHANGE, 0, 0);
  EXPECT_NE(button_.ShadowColor(), 0x123456u);
  EXPECT_EQ(button_.DisabledColor(), button_.ShadowColor());
  EXPECT_EQ(host_.Log(), Log{}) << "no repaint here";

  button_.SetBackColor(win::RGB(200, 0, 0));
  button_.SetShadowColor(0x123456);
  win::SendMessageA(host_.hWnd(), win::WM_SYSCOLORCHANGE, 0, 0);
  EXPECT_EQ(button_.ShadowColor(), 0x123456u) << "explicit colours stay";
}

TEST(DesignTimeTest, NoTooltipWindow) {
  LeakCheck leaks;
  MemoryHostOptions designTime;
  designTime.userMode = false;
  HostedButton hosted(designTime);
  Load(hosted);
  EXPECT_EQ(TooltipWindow(), nullptr);
}

TEST_F(TooltipTest, NewInstancesGetNoTooltipUntilLoaded) {
  EXPECT_EQ(TooltipWindow(), nullptr);
  Load(hosted_);
  const win::HWND tooltip = TooltipWindow();
  ASSERT_NE(tooltip, nullptr);
  EXPECT_TRUE(hosted_.User().TooltipState(tooltip).has_value());
}

TEST_F(TooltipTest, TextComesFromTheContainerUntilTheButtonsOwnIsSet) {
  host_.ExtenderObject().toolTipText = "container's tip";
  Load(hosted_);
  const win::HWND control = host_.hWnd();
  const win::HWND tooltip = TooltipWindow();

  EXPECT_STREQ(RequestedText(control, tooltip), "container's tip");
  EXPECT_EQ(RequestedText(control, control), nullptr) << "only the shared tooltip is answered";

  host_.ExtenderObject().toolTipText.reset();
  EXPECT_EQ(RequestedText(control, tooltip), nullptr) << "a container without the text";

  button_.SetToolTipText("");
  EXPECT_STREQ(RequestedText(control, tooltip), "") << "set, even to nothing, the button wins";
  button_.SetToolTipText("mine");
  EXPECT_STREQ(RequestedText(control, tooltip), "mine");
}

TEST_F(TooltipTest, HoveringShowsTheTextThroughRelayedMouseMessages) {
  Load(hosted_);
  button_.SetToolTipText("Saves the file");
  hosted_.MoveTo(5, 5);
  hosted_.User().AdvanceClock(2000);
  const auto state = hosted_.User().TooltipState(TooltipWindow());
  ASSERT_TRUE(state.has_value());
  EXPECT_TRUE(state->visible);
  EXPECT_EQ(state->text, "Saves the file");

  hosted_.Press(5, 5);  // a click hides it
  EXPECT_FALSE(hosted_.User().TooltipState(TooltipWindow())->visible);
  hosted_.Release(5, 5);  // the thread's engine outlives the test: no button left down
}

TEST(SharedTooltipTest, ButtonsOfAThreadShareOneWindowThatGoesWithTheLast) {
  LeakCheck leaks;
  {
    HostedButton first;
    Load(first);
    const win::HWND shared = TooltipWindow();
    {
      MemoryHostOptions elsewhere;
      elsewhere.left = 120;
      HostedButton second(elsewhere);
      Load(second);
      EXPECT_EQ(TooltipWindow(), shared);
    }
    EXPECT_EQ(TooltipWindow(), shared) << "stays while a button is left";
    EXPECT_TRUE(win::IsWindow(shared));
  }
  EXPECT_EQ(TooltipWindow(), nullptr);
}

}  // namespace
}  // namespace glyphon::testing
