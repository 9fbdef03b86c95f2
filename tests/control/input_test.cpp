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

using InputTest = HostedButtonTest;

// Another window on the form, which can hold the focus.
win::HWND OtherWindow(MemoryHost& host) {
  return win::CreateWindowExA(0, "GlyphonHostControl", nullptr, win::WS_CHILD | win::WS_VISIBLE,
                              200, 200, 20, 20, host.FormWindow(), nullptr, nullptr, nullptr);
}

TEST_F(InputTest, TypicalClickRaisesEventsAndRepaintsInOrder) {
  hosted_.MoveTo(20, 10);
  hosted_.Click(20, 10);
  hosted_.MoveTo(kOutside, kOutside);

  EXPECT_EQ(host_.Log(), (Log{"MouseMove(0,0,20,10)", "paint Hot", "MouseOver",
                              // The click gives the window the focus, then presses.
                              "paint Hot", "paint Down", "MouseDown(1,0,20,10)",
                              // Release: hot, Click, a look at the pointer, then MouseUp.
                              "paint Hot", "Click", "paint Hot", "MouseUp(1,0,20,10)",
                              // Leaving: focused with ShowFocus stays hot, so no repaint.
                              "MouseOut"}));
  EXPECT_EQ(button_.DrawState(), DrawStateHot);
  EXPECT_EQ(win::GetCapture(), nullptr);
}

TEST_F(InputTest, LeavingWithoutFocusRepaintsUp) {
  hosted_.MoveTo(5, 5);
  host_.ClearLog();
  hosted_.MoveTo(kOutside, kOutside);
  EXPECT_EQ(host_.Log(), (Log{"MouseOut", "paint Up"}));
  EXPECT_EQ(button_.DrawState(), DrawStateUp);
}

TEST_F(InputTest, DragOutAndBackThenReleaseInsideClicksOnce) {
  hosted_.MoveTo(5, 5);
  hosted_.Press(5, 5);
  host_.ClearLog();

  hosted_.MoveTo(kOutside, kOutside);
  EXPECT_EQ(button_.DrawState(), DrawStateHot) << "pops up while the pointer is away";
  hosted_.MoveTo(6, 6);
  EXPECT_EQ(button_.DrawState(), DrawStateDown) << "goes down again when it returns";
  hosted_.Release(6, 6);

  EXPECT_EQ(CountOf(host_.Log(), "Click"), 1);
  EXPECT_EQ(Only(host_.Log(), "paint"), (Log{"paint Hot", "paint Down", "paint Hot", "paint Hot"}));
}

TEST_F(InputTest, ReleaseOutsideDoesNotClick) {
  hosted_.MoveTo(5, 5);
  hosted_.Press(5, 5);
  hosted_.MoveTo(kOutside, kOutside);
  host_.ClearLog();
  hosted_.Release(kOutside, kOutside);

  EXPECT_EQ(CountOf(host_.Log(), "Click"), 0);
  EXPECT_EQ(Only(host_.Log(), "Mouse"), (Log{"MouseOut", "MouseUp(1,0,90,90)"}));
  // It has the focus and shows it, so it rests hot.
  EXPECT_EQ(button_.DrawState(), DrawStateHot);
}

TEST_F(InputTest, RightButtonNeverChangesTheState) {
  hosted_.MoveTo(5, 5);
  host_.ClearLog();

  hosted_.Press(5, 5, MouseButton::Right);
  hosted_.Release(5, 5, MouseButton::Right);
  hosted_.Press(7, 7, MouseButton::Right);
  hosted_.MoveTo(8, 8);
  hosted_.Release(8, 8, MouseButton::Right);

  EXPECT_EQ(Only(host_.Log(), "paint"), Log{});
  EXPECT_EQ(CountOf(host_.Log(), "Click"), 0);
  EXPECT_EQ(button_.DrawState(), DrawStateHot);
  EXPECT_EQ(Only(host_.Log(), "MouseDown"), (Log{"MouseDown(2,0,5,5)", "MouseDown(2,0,7,7)"}));
}

TEST_F(InputTest, MouseMoveIsRaisedOnlyInsideWhileCaptured) {
  hosted_.MoveTo(5, 5);
  hosted_.Press(5, 5);
  host_.ClearLog();

  hosted_.MoveTo(kOutside, kOutside);
  hosted_.MoveTo(-3, 2);
  hosted_.MoveTo(81, 25);  // the far edges still count as inside

  EXPECT_EQ(win::GetCapture(), host_.hWnd());
  EXPECT_EQ(Only(host_.Log(), "MouseMove"), Log{"MouseMove(1,0,81,25)"});
  hosted_.Release(81, 25);
  EXPECT_EQ(CountOf(host_.Log(), "Click"), 1);
}

TEST_F(InputTest, SpaceKeepsTheButtonDownWhereverThePointerGoes) {
  win::SetFocus(host_.hWnd());
  hosted_.User().KeyDown(win::VK_SPACE);
  EXPECT_EQ(button_.DrawState(), DrawStateDown);

  hosted_.MoveTo(5, 5);
  hosted_.MoveTo(kOutside, kOutside);
  hosted_.MoveTo(6, 6);
  hosted_.MoveTo(kOutside, kOutside);
  EXPECT_EQ(button_.DrawState(), DrawStateDown);
  EXPECT_EQ(CountOf(host_.Log(), "Click"), 0);

  hosted_.User().KeyUp(win::VK_SPACE);
  EXPECT_EQ(CountOf(host_.Log(), "Click"), 1);
  EXPECT_EQ(button_.DrawState(), DrawStateHot);  // pointer away, but focused
}

TEST_F(InputTest, EnterClicksOnlyWithFocusAndShowFocus) {
  button_.KeyPress(13);
  EXPECT_EQ(CountOf(host_.Log(), "Click"), 0) << "no focus";

  win::SetFocus(host_.hWnd());
  hosted_.Type("\r");
  EXPECT_EQ(CountOf(host_.Log(), "Click"), 1);

  button_.SetShowFocus(false);
  hosted_.Type("\r");
  EXPECT_EQ(CountOf(host_.Log(), "Click"), 1) << "ShowFocus off";
}

TEST_F(InputTest, HandlersChangeByReferenceParameters) {
  win::SetFocus(host_.hWnd());
  host_.Handlers().keyPress = [](std::int16_t& keyAscii) { keyAscii = 13; };
  host_.Handlers().keyDown = [](std::int16_t& keyCode, std::int16_t&) { keyCode = 32; };

  hosted_.Type("x");
  EXPECT_EQ(CountOf(host_.Log(), "Click"), 1) << "x became Enter";
  hosted_.User().KeyDown('A');
  EXPECT_EQ(button_.DrawState(), DrawStateDown) << "A became space";
  hosted_.User().KeyUp('A');
}

TEST_F(InputTest, TypingAboutWhileHoldingTheMouseShowsTheAboutBox) {
  hosted_.MoveTo(5, 5);
  hosted_.Press(5, 5);
  hosted_.Type("AbOuT");
  EXPECT_EQ(button_.AboutWindow(), nullptr);
  hosted_.Release(5, 5);

  const win::HWND about = button_.AboutWindow();
  ASSERT_NE(about, nullptr);
  EXPECT_TRUE(win::IsWindowVisible(about));
  win::SendMessageA(about, win::WM_CLOSE, 0, 0);
  EXPECT_EQ(button_.AboutWindow(), nullptr);

  // A new press forgets what was typed.
  hosted_.Pause();
  hosted_.Click(5, 5);
  EXPECT_EQ(button_.AboutWindow(), nullptr);
}

TEST_F(InputTest, StealFocusFalseGivesTheFocusBackAfterAClick) {
  const win::HWND other = OtherWindow(host_);
  win::SetFocus(other);
  button_.SetStealFocus(false);

  hosted_.MoveTo(5, 5);
  hosted_.Click(5, 5);
  EXPECT_EQ(CountOf(host_.Log(), "Click"), 1);
  EXPECT_EQ(win::GetFocus(), other);
  EXPECT_FALSE(button_.HasFocus());

  button_.SetStealFocus(true);
  hosted_.Pause();
  hosted_.Click(5, 5);
  EXPECT_EQ(win::GetFocus(), host_.hWnd()) << "a stealing button keeps it";
  win::DestroyWindow(other);
}

TEST(DesignTimeTest, FocusIsKept) {
  LeakCheck leaks;
  MemoryHostOptions designTime;
  designTime.userMode = false;
  HostedButton hosted(designTime);
  const win::HWND other = OtherWindow(hosted.host);
  win::SetFocus(other);
  hosted.button.SetStealFocus(false);
  hosted.MoveTo(5, 5);
  hosted.Click(5, 5);
  EXPECT_EQ(win::GetFocus(), hosted.host.hWnd());
  win::DestroyWindow(other);
}

TEST_F(InputTest, DoubleClickShowsPressedAndClicksTwice) {
  hosted_.MoveTo(5, 5);
  hosted_.User().DoubleClick(MouseButton::Left, hosted_.Screen(5, 5));
  EXPECT_EQ(CountOf(host_.Log(), "Click"), 2);
  EXPECT_EQ(CountOf(host_.Log(), "paint Down"), 2);
  EXPECT_EQ(Only(host_.Log(), "MouseDown").size(), 1u) << "the second press is the double click";
}

TEST_F(InputTest, AccessKeyPressesForSixtyMillisecondsThenClicks) {
  std::vector<win::DWORD> sleeps;
  hosted_.User().Hooks().sleep = [&](win::DWORD milliseconds) { sleeps.push_back(milliseconds); };
  button_.SetCaption("&Go");
  host_.ClearLog();

  EXPECT_FALSE(host_.PressAccessKey('x'));
  EXPECT_TRUE(host_.PressAccessKey('G'));
  EXPECT_EQ(sleeps, std::vector<win::DWORD>{60});
  // Focus arrives first (hot), then down, sleep, hot, Click, and the look at the pointer, which
  // is away from the button: focused and ShowFocus, so hot.
  EXPECT_EQ(host_.Log(), (Log{"paint Hot", "paint Down", "paint Hot", "Click", "paint Hot"}));
  hosted_.User().Hooks().sleep = nullptr;
}

TEST_F(InputTest, AccessKeyGivesTheFocusBackWhenNotStealing) {
  button_.SetCaption("&Go");
  button_.SetStealFocus(false);
  win::SetFocus(host_.FormWindow());
  EXPECT_TRUE(host_.PressAccessKey('g'));
  EXPECT_EQ(win::GetFocus(), host_.FormWindow());
}

TEST_F(InputTest, MouseOverAndOutHandlersDoNotRepaint) {
  host_.Handlers().mouseOver = [&] { button_.SetCaption("over"); };
  host_.Handlers().mouseOut = [&] { button_.SetForeColor(0xFF); };
  hosted_.MoveTo(5, 5);
  hosted_.MoveTo(kOutside, kOutside);
  EXPECT_EQ(host_.Log(), (Log{"MouseMove(0,0,5,5)", "paint Hot", "MouseOver", "changed Caption",
                              "MouseOut", "changed ForeColor", "paint Up"}));
  EXPECT_FALSE(button_.SuppressRedraw());
}

TEST_F(InputTest, DisablingForgetsTheTrackedInput) {
  hosted_.MoveTo(5, 5);
  hosted_.Press(5, 5);
  button_.SetEnabled(false);
  button_.SetEnabled(true);
  host_.ClearLog();
  // With MouseIsDown and PointerInside forgotten, the pointer outside just rests the button.
  button_.MouseMove(1, 0, kOutside, kOutside);
  EXPECT_EQ(Only(host_.Log(), "MouseOut"), Log{});
}

TEST_F(InputTest, WindowMessagesDriveFocusEnableAndCancelMode) {
  win::SetFocus(host_.hWnd());
  EXPECT_TRUE(button_.HasFocus());
  EXPECT_EQ(button_.DrawState(), DrawStateHot);

  win::SetFocus(host_.FormWindow());
  EXPECT_FALSE(button_.HasFocus());
  EXPECT_EQ(button_.DrawState(), DrawStateUp);

  hosted_.MoveTo(5, 5);
  host_.ClearLog();
  win::SendMessageA(host_.hWnd(), win::WM_CANCELMODE, 0, 0);
  EXPECT_EQ(host_.Log(), Log{"paint Up"});
  EXPECT_EQ(button_.DrawState(), DrawStateHot) << "the state itself is kept";

  button_.SetDefault(true);
  host_.ExtenderObject().isDefault = true;
  host_.ClearLog();
  win::SendMessageA(host_.hWnd(), win::WM_ENABLE, 0, 0);
  EXPECT_FALSE(button_.Default());
  EXPECT_EQ(host_.ExtenderObject().isDefault, false);
  EXPECT_EQ(host_.Log(), Log{}) << "no repaint on WM_ENABLE";
}

TEST_F(InputTest, AmbientDisplayAsDefaultFollowsTheContainer) {
  host_.SetDisplayAsDefault(true);
  EXPECT_TRUE(button_.Default());
  EXPECT_EQ(host_.Log(), Log{"paint Up"});

  button_.SetEnabled(false);
  host_.ExtenderObject().isDefault = true;
  host_.SetDisplayAsDefault(true);
  EXPECT_FALSE(button_.Default());
  EXPECT_EQ(host_.ExtenderObject().isDefault, false);

  host_.ClearLog();
  button_.AmbientChanged("BackColor");
  EXPECT_EQ(host_.Log(), Log{});
}

}  // namespace
}  // namespace glyphon::testing
