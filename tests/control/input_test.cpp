// The input state machine, driven by mouse and keyboard input injected into the soft engine.
#include <gtest/gtest.h>

#include "tests/control/hosted_button.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using win::soft::MouseButton;
using Log = std::vector<std::string>;

// The control window sits at (10, 10) in the form and is 81 x 25; (100, 100) is on the form.
constexpr int kOutside = 90;

TEST(InputTest, TypicalClickRaisesEventsAndRepaintsInOrder) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.MoveTo(20, 10);
  hosted.Click(20, 10);
  hosted.MoveTo(kOutside, kOutside);

  EXPECT_EQ(hosted.host.Log(), (Log{
                                   "MouseMove(0,0,20,10)", "paint Hot", "MouseOver",
                                   // The click gives the window the focus, then presses.
                                   "paint Hot", "paint Down", "MouseDown(1,0,20,10)",
                                   // Release: hot, Click, a look at the pointer, then MouseUp.
                                   "paint Hot", "Click", "paint Hot", "MouseUp(1,0,20,10)",
                                   // Leaving: focused with ShowFocus stays hot, so no repaint.
                                   "MouseOut"}));
  EXPECT_EQ(hosted.button.DrawState(), DrawStateHot);
  EXPECT_EQ(win::GetCapture(), nullptr);
}

TEST(InputTest, LeavingWithoutFocusRepaintsUp) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.MoveTo(5, 5);
  hosted.host.ClearLog();
  hosted.MoveTo(kOutside, kOutside);
  EXPECT_EQ(hosted.host.Log(), (Log{"MouseOut", "paint Up"}));
  EXPECT_EQ(hosted.button.DrawState(), DrawStateUp);
}

TEST(InputTest, DragOutAndBackThenReleaseInsideClicksOnce) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.MoveTo(5, 5);
  hosted.Press(5, 5);
  hosted.host.ClearLog();

  hosted.MoveTo(kOutside, kOutside);
  EXPECT_EQ(hosted.button.DrawState(), DrawStateHot) << "pops up while the pointer is away";
  hosted.MoveTo(6, 6);
  EXPECT_EQ(hosted.button.DrawState(), DrawStateDown) << "goes down again when it returns";
  hosted.Release(6, 6);

  EXPECT_EQ(CountOf(hosted.host.Log(), "Click"), 1);
  EXPECT_EQ(Only(hosted.host.Log(), "paint"),
            (Log{"paint Hot", "paint Down", "paint Hot", "paint Hot"}));
}

TEST(InputTest, ReleaseOutsideDoesNotClick) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.MoveTo(5, 5);
  hosted.Press(5, 5);
  hosted.MoveTo(kOutside, kOutside);
  hosted.host.ClearLog();
  hosted.Release(kOutside, kOutside);

  EXPECT_EQ(CountOf(hosted.host.Log(), "Click"), 0);
  EXPECT_EQ(Only(hosted.host.Log(), "Mouse"), (Log{"MouseOut", "MouseUp(1,0,90,90)"}));
  // It has the focus and shows it, so it rests hot.
  EXPECT_EQ(hosted.button.DrawState(), DrawStateHot);
}

TEST(InputTest, RightButtonNeverChangesTheState) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.MoveTo(5, 5);
  hosted.host.ClearLog();

  hosted.Press(5, 5, MouseButton::Right);
  hosted.Release(5, 5, MouseButton::Right);
  hosted.Press(7, 7, MouseButton::Right);
  hosted.MoveTo(8, 8);
  hosted.Release(8, 8, MouseButton::Right);

  EXPECT_EQ(Only(hosted.host.Log(), "paint"), Log{});
  EXPECT_EQ(CountOf(hosted.host.Log(), "Click"), 0);
  EXPECT_EQ(hosted.button.DrawState(), DrawStateHot);
  EXPECT_EQ(Only(hosted.host.Log(), "MouseDown"),
            (Log{"MouseDown(2,0,5,5)", "MouseDown(2,0,7,7)"}));
}

TEST(InputTest, MouseMoveIsRaisedOnlyInsideWhileCaptured) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.MoveTo(5, 5);
  hosted.Press(5, 5);
  hosted.host.ClearLog();

  hosted.MoveTo(kOutside, kOutside);
  hosted.MoveTo(-3, 2);
  hosted.MoveTo(81, 25);  // the far edges still count as inside

  EXPECT_EQ(win::GetCapture(), hosted.host.hWnd());
  EXPECT_EQ(Only(hosted.host.Log(), "MouseMove"), Log{"MouseMove(1,0,81,25)"});
  hosted.Release(81, 25);
  EXPECT_EQ(CountOf(hosted.host.Log(), "Click"), 1);
}

TEST(InputTest, SpaceKeepsTheButtonDownWhereverThePointerGoes) {
  LeakCheck leaks;
  HostedButton hosted;
  win::SetFocus(hosted.host.hWnd());
  hosted.User().KeyDown(win::VK_SPACE);
  EXPECT_EQ(hosted.button.DrawState(), DrawStateDown);

  hosted.MoveTo(5, 5);
  hosted.MoveTo(kOutside, kOutside);
  hosted.MoveTo(6, 6);
  hosted.MoveTo(kOutside, kOutside);
  EXPECT_EQ(hosted.button.DrawState(), DrawStateDown);
  EXPECT_EQ(CountOf(hosted.host.Log(), "Click"), 0);

  hosted.User().KeyUp(win::VK_SPACE);
  EXPECT_EQ(CountOf(hosted.host.Log(), "Click"), 1);
  EXPECT_EQ(hosted.button.DrawState(), DrawStateHot);  // pointer away, but focused
}

TEST(InputTest, EnterClicksOnlyWithFocusAndShowFocus) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.button.KeyPress(13);
  EXPECT_EQ(CountOf(hosted.host.Log(), "Click"), 0) << "no focus";

  win::SetFocus(hosted.host.hWnd());
  hosted.Type("\r");
  EXPECT_EQ(CountOf(hosted.host.Log(), "Click"), 1);

  hosted.button.SetShowFocus(false);
  hosted.Type("\r");
  EXPECT_EQ(CountOf(hosted.host.Log(), "Click"), 1) << "ShowFocus off";
}

TEST(InputTest, HandlersChangeByReferenceParameters) {
  LeakCheck leaks;
  HostedButton hosted;
  win::SetFocus(hosted.host.hWnd());
  hosted.host.Handlers().keyPress = [](std::int16_t& keyAscii) { keyAscii = 13; };
  hosted.host.Handlers().keyDown = [](std::int16_t& keyCode, std::int16_t&) { keyCode = 32; };

  hosted.Type("x");
  EXPECT_EQ(CountOf(hosted.host.Log(), "Click"), 1) << "x became Enter";
  hosted.User().KeyDown('A');
  EXPECT_EQ(hosted.button.DrawState(), DrawStateDown) << "A became space";
  hosted.User().KeyUp('A');
}

TEST(InputTest, TypingAboutWhileHoldingTheMouseShowsTheAboutBox) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.MoveTo(5, 5);
  hosted.Press(5, 5);
  hosted.Type("AbOuT");
  EXPECT_EQ(hosted.button.AboutWindow(), nullptr);
  hosted.Release(5, 5);

  const win::HWND about = hosted.button.AboutWindow();
  ASSERT_NE(about, nullptr);
  EXPECT_TRUE(win::IsWindowVisible(about));
  win::SendMessageA(about, win::WM_CLOSE, 0, 0);
  EXPECT_EQ(hosted.button.AboutWindow(), nullptr);

  // A new press forgets what was typed.
  hosted.Pause();
  hosted.Click(5, 5);
  EXPECT_EQ(hosted.button.AboutWindow(), nullptr);
}

TEST(InputTest, StealFocusFalseGivesTheFocusBackAfterAClick) {
  LeakCheck leaks;
  HostedButton hosted;
  const win::HWND other =
      win::CreateWindowExA(0, "GlyphonHostControl", nullptr, win::WS_CHILD | win::WS_VISIBLE,
                           200, 200, 20, 20, hosted.host.FormWindow(), nullptr, nullptr, nullptr);
  win::SetFocus(other);
  hosted.button.SetStealFocus(false);

  hosted.MoveTo(5, 5);
  hosted.Click(5, 5);
  EXPECT_EQ(CountOf(hosted.host.Log(), "Click"), 1);
  EXPECT_EQ(win::GetFocus(), other);
  EXPECT_FALSE(hosted.button.HasFocus());

  hosted.button.SetStealFocus(true);
  hosted.Pause();
  hosted.Click(5, 5);
  EXPECT_EQ(win::GetFocus(), hosted.host.hWnd()) << "a stealing button keeps it";
  win::DestroyWindow(other);
}

TEST(InputTest, FocusIsKeptAtDesignTime) {
  LeakCheck leaks;
  MemoryHostOptions designTime;
  designTime.userMode = false;
  HostedButton hosted(designTime);
  const win::HWND other =
      win::CreateWindowExA(0, "GlyphonHostControl", nullptr, win::WS_CHILD | win::WS_VISIBLE,
                           200, 200, 20, 20, hosted.host.FormWindow(), nullptr, nullptr, nullptr);
  win::SetFocus(other);
  hosted.button.SetStealFocus(false);
  hosted.MoveTo(5, 5);
  hosted.Click(5, 5);
  EXPECT_EQ(win::GetFocus(), hosted.host.hWnd());
  win::DestroyWindow(other);
}

TEST(InputTest, DoubleClickShowsPressedAndClicksTwice) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.MoveTo(5, 5);
  hosted.User().DoubleClick(MouseButton::Left, hosted.Screen(5, 5));
  EXPECT_EQ(CountOf(hosted.host.Log(), "Click"), 2);
  EXPECT_EQ(CountOf(hosted.host.Log(), "paint Down"), 2);
  EXPECT_EQ(Only(hosted.host.Log(), "MouseDown").size(), 1u) << "the second press is the double click";
}

TEST(InputTest, AccessKeyPressesForSixtyMillisecondsThenClicks) {
  LeakCheck leaks;
  HostedButton hosted;
  std::vector<win::DWORD> sleeps;
  hosted.User().Hooks().sleep = [&](win::DWORD milliseconds) { sleeps.push_back(milliseconds); };
  hosted.button.SetCaption("&Go");
  hosted.host.ClearLog();

  EXPECT_FALSE(hosted.host.PressAccessKey('x'));
  EXPECT_TRUE(hosted.host.PressAccessKey('G'));
  EXPECT_EQ(sleeps, std::vector<win::DWORD>{60});
  // Focus arrives first (hot), then down, sleep, hot, Click, and the look at the pointer, which
  // is away from the button: focused and ShowFocus, so hot.
  EXPECT_EQ(hosted.host.Log(),
            (Log{"paint Hot", "paint Down", "paint Hot", "Click", "paint Hot"}));
  hosted.User().Hooks().sleep = nullptr;
}

TEST(InputTest, AccessKeyGivesTheFocusBackWhenNotStealing) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.button.SetCaption("&Go");
  hosted.button.SetStealFocus(false);
  win::SetFocus(hosted.host.FormWindow());
  EXPECT_TRUE(hosted.host.PressAccessKey('g'));
  EXPECT_EQ(win::GetFocus(), hosted.host.FormWindow());
}

TEST(InputTest, MouseOverAndOutHandlersDoNotRepaint) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.host.Handlers().mouseOver = [&] { hosted.button.SetCaption("over"); };
  hosted.host.Handlers().mouseOut = [&] { hosted.button.SetForeColor(0xFF); };
  hosted.MoveTo(5, 5);
  hosted.MoveTo(kOutside, kOutside);
  EXPECT_EQ(hosted.host.Log(), (Log{"MouseMove(0,0,5,5)", "paint Hot", "MouseOver",
                                    "changed Caption", "MouseOut", "changed ForeColor",
                                    "paint Up"}));
  EXPECT_FALSE(hosted.button.SuppressRedraw());
}

TEST(InputTest, DisablingForgetsTheTrackedInput) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.MoveTo(5, 5);
  hosted.Press(5, 5);
  hosted.button.SetEnabled(false);
  hosted.button.SetEnabled(true);
  hosted.host.ClearLog();
  // With MouseIsDown and PointerInside forgotten, the pointer outside just rests the button.
  hosted.button.MouseMove(1, 0, kOutside, kOutside);
  EXPECT_EQ(Only(hosted.host.Log(), "MouseOut"), Log{});
}

TEST(InputTest, WindowMessagesDriveFocusEnableAndCancelMode) {
  LeakCheck leaks;
  HostedButton hosted;
  Glyphon& button = hosted.button;

  win::SetFocus(hosted.host.hWnd());
  EXPECT_TRUE(button.HasFocus());
  EXPECT_EQ(button.DrawState(), DrawStateHot);

  win::SetFocus(hosted.host.FormWindow());
  EXPECT_FALSE(button.HasFocus());
  EXPECT_EQ(button.DrawState(), DrawStateUp);

  hosted.MoveTo(5, 5);
  hosted.host.ClearLog();
  win::SendMessageA(hosted.host.hWnd(), win::WM_CANCELMODE, 0, 0);
  EXPECT_EQ(hosted.host.Log(), Log{"paint Up"});
  EXPECT_EQ(button.DrawState(), DrawStateHot) << "the state itself is kept";

  button.SetDefault(true);
  hosted.host.ExtenderObject().isDefault = true;
  hosted.host.ClearLog();
  win::SendMessageA(hosted.host.hWnd(), win::WM_ENABLE, 0, 0);
  EXPECT_FALSE(button.Default());
  EXPECT_EQ(hosted.host.ExtenderObject().isDefault, false);
  EXPECT_EQ(hosted.host.Log(), Log{}) << "no repaint on WM_ENABLE";
}

TEST(InputTest, AmbientDisplayAsDefaultFollowsTheContainer) {
  LeakCheck leaks;
  HostedButton hosted;
  hosted.host.SetDisplayAsDefault(true);
  EXPECT_TRUE(hosted.button.Default());
  EXPECT_EQ(hosted.host.Log(), Log{"paint Up"});

  hosted.button.SetEnabled(false);
  hosted.host.ExtenderObject().isDefault = true;
  hosted.host.SetDisplayAsDefault(true);
  EXPECT_FALSE(hosted.button.Default());
  EXPECT_EQ(hosted.host.ExtenderObject().isDefault, false);

  hosted.host.ClearLog();
  hosted.button.AmbientChanged("BackColor");
  EXPECT_EQ(hosted.host.Log(), Log{});
}

}  // namespace
}  // namespace glyphon::testing
