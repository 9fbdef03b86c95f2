// Focus, capture, enable state and injected mouse and keyboard input.
#include "tests/platform/user_test_support.h"

namespace glyphon::win::testing_user {
namespace {

using soft::MouseButton;
using InputTest = UserTest;

HWND focusSeenInKillFocus = nullptr;

LRESULT GLYPHON_CALLBACK FocusProbe(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KILLFOCUS) focusSeenInKillFocus = GetFocus();
  return RecordingProc(hwnd, message, wParam, lParam);
}

TEST_F(InputTest, FocusMovesWithKillFocusFirstAndNamesTheOtherWindow) {
  HWND top = TopLevel({0, 0, 100, 100});
  HWND a = Child(top, {0, 0, 10, 10});
  HWND b = Child(top, {20, 0, 30, 10});
  SetWindowLongPtrA(a, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&FocusProbe));
  EXPECT_EQ(SetFocus(a), nullptr);
  Log().clear();
  EXPECT_EQ(SetFocus(b), a);
  EXPECT_EQ(TrailOf({WM_KILLFOCUS, WM_SETFOCUS}), (Trail{{a, WM_KILLFOCUS}, {b, WM_SETFOCUS}}));
  EXPECT_EQ(Of(a, {WM_KILLFOCUS})[0].wParam, reinterpret_cast<WPARAM>(b));
  EXPECT_EQ(Of(b, {WM_SETFOCUS})[0].wParam, reinterpret_cast<WPARAM>(a));
  EXPECT_EQ(focusSeenInKillFocus, b);  // the focus has moved before the messages go out

  Log().clear();
  EXPECT_EQ(SetFocus(b), b);  // no change, no messages
  EnableWindow(top, FALSE);
  EXPECT_EQ(SetFocus(a), nullptr);  // inside a disabled parent
  EXPECT_EQ(GetFocus(), b);
  EnableWindow(top, TRUE);
  EXPECT_TRUE(TrailOf({WM_KILLFOCUS, WM_SETFOCUS}).empty());

  EnableWindow(b, FALSE);  // a disabled window loses the focus to nobody
  EXPECT_EQ(TrailOf({WM_KILLFOCUS, WM_SETFOCUS}), (Trail{{b, WM_KILLFOCUS}}));
  EXPECT_EQ(Of(b, {WM_KILLFOCUS})[0].wParam, 0u);
  EXPECT_EQ(GetFocus(), nullptr);
  DestroyWindow(top);
}

TEST_F(InputTest, CaptureTakesMouseInputFromAnywhereUntilReleased) {
  HWND top = TopLevel({0, 0, 200, 100});
  HWND left = Child(top, {0, 0, 100, 100});
  HWND right = Child(top, {100, 0, 200, 100});
  User().MouseMove({10, 10});
  EXPECT_EQ(SetCapture(left), nullptr);
  Log().clear();
  User().MouseMove({150, 20});
  User().MouseMove({-5, 300});
  const auto moves = Of(left, {WM_MOUSEMOVE});
  ASSERT_EQ(moves.size(), 2u);
  EXPECT_EQ(moves[0].lParam, MAKELPARAM(150, 20));
  EXPECT_EQ(GET_X_LPARAM(moves[1].lParam), -5);
  EXPECT_EQ(GET_Y_LPARAM(moves[1].lParam), 300);
  EXPECT_TRUE(Of(right, {WM_MOUSEMOVE}).empty());

  User().MouseMove({150, 20});
  EXPECT_EQ(SetCapture(right), left);
  ASSERT_EQ(Of(left, {WM_CAPTURECHANGED}).size(), 1u);
  EXPECT_EQ(Of(left, {WM_CAPTURECHANGED})[0].lParam, reinterpret_cast<LPARAM>(right));
  Log().clear();
  EXPECT_TRUE(ReleaseCapture());
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(Kinds(Of(right, {WM_CAPTURECHANGED, WM_MOUSEMOVE})),
            (std::vector<UINT>{WM_CAPTURECHANGED}));
  // The window under the cursor hears of the pointer with the next turn of the message loop.
  User().DispatchPendingMessages();
  const auto resync = Of(right, {WM_MOUSEMOVE});
  ASSERT_EQ(resync.size(), 1u);
  EXPECT_EQ(resync[0].lParam, MAKELPARAM(50, 20));
  DestroyWindow(top);
}

TEST_F(InputTest, MouseMessagesCarryClientPointsAndButtonAndModifierFlags) {
  HWND top = TopLevel({40, 30, 90, 80});
  User().MouseMove({0, 0});
  Log().clear();
  User().KeyDown(VK_SHIFT);
  User().MouseDown(MouseButton::Left, {45, 36});  // moves there first
  User().MouseMove({47, 38});
  User().MouseUp(MouseButton::Left, {47, 38});
  User().KeyUp(VK_SHIFT);
  const auto mouse = Of(top, {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP});
  ASSERT_EQ(Kinds(mouse),
            (std::vector<UINT>{WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP}));
  EXPECT_EQ(mouse[0].wParam, MK_SHIFT);
  EXPECT_EQ(mouse[1].wParam, MK_LBUTTON | MK_SHIFT);
  EXPECT_EQ(mouse[1].lParam, MAKELPARAM(5, 6));
  EXPECT_EQ(mouse[2].wParam, MK_LBUTTON | MK_SHIFT);
  EXPECT_EQ(mouse[3].wParam, MK_SHIFT);
  EXPECT_GE(GetKeyState(VK_LBUTTON), 0);
  DestroyWindow(top);
}

TEST_F(InputTest, DisabledWindowsGetNoMouseInput) {
  HWND top = TopLevel({0, 0, 100, 100});
  HWND child = Child(top, {10, 10, 50, 50});
  SetCapture(child);
  Log().clear();
  EXPECT_FALSE(EnableWindow(child, FALSE));  // it was enabled
  EXPECT_EQ(Kinds(Of(child, {WM_CANCELMODE, WM_CAPTURECHANGED, WM_ENABLE})),
            (std::vector<UINT>{WM_CANCELMODE, WM_CAPTURECHANGED, WM_ENABLE}));
  EXPECT_EQ(Of(child, {WM_ENABLE})[0].wParam, 0u);
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_FALSE(IsWindowEnabled(child));

  Log().clear();
  User().MouseDown(MouseButton::Left, {20, 20});
  User().MouseUp(MouseButton::Left, {20, 20});
  EXPECT_TRUE(Of(child, {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP}).empty());
  ASSERT_EQ(Of(top, {WM_LBUTTONDOWN}).size(), 1u);  // the point falls through to the parent
  EXPECT_EQ(Of(top, {WM_LBUTTONDOWN})[0].lParam, MAKELPARAM(20, 20));

  EXPECT_TRUE(EnableWindow(child, TRUE));
  EXPECT_EQ(Of(child, {WM_ENABLE}).back().wParam, 1u);
  EnableWindow(top, FALSE);  // a disabled top-level window swallows the input
  Log().clear();
  User().MouseDown(MouseButton::Left, {20, 20});
  User().MouseUp(MouseButton::Left, {20, 20});
  EXPECT_TRUE(Log().empty());
  DestroyWindow(top);
}

TEST_F(InputTest, DoubleClicksNeedTheClassStyleAndAQuickCloseSecondPress) {
  HWND dbl = TopLevel({0, 0, 50, 50});
  HWND plain = TopLevel({100, 0, 150, 50}, WS_POPUP | WS_VISIBLE, kPlainRecorder);
  auto presses = [](HWND h) {
    return Kinds(Of(h, {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONDBLCLK}));
  };
  auto click = [](POINT p) {
    User().MouseDown(MouseButton::Left, p);
    User().MouseUp(MouseButton::Left, p);
  };
  User().DoubleClick(MouseButton::Left, {10, 10});
  EXPECT_EQ(presses(dbl), (std::vector<UINT>{WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}));
  EXPECT_EQ(Kinds(Of(dbl, {WM_LBUTTONUP})).size(), 2u);

  Log().clear();
  click({10, 10});  // a third press starts a new pair
  User().AdvanceClock(500);
  click({10, 10});  // too late
  User().AdvanceClock(499);
  click({11, 9});  // in time and within a pixel
  click({10, 10});
  click({12, 10});  // two pixels away
  User().MouseDown(MouseButton::Right, {12, 10});  // another button
  User().MouseUp(MouseButton::Right, {12, 10});
  EXPECT_EQ(presses(dbl), (std::vector<UINT>{WM_LBUTTONDOWN, WM_LBUTTONDOWN, WM_LBUTTONDBLCLK,
                                             WM_LBUTTONDOWN, WM_LBUTTONDOWN, WM_RBUTTONDOWN}));

  User().DoubleClick(MouseButton::Left, {110, 10});
  EXPECT_EQ(presses(plain), (std::vector<UINT>{WM_LBUTTONDOWN, WM_LBUTTONDOWN}));
  DestroyWindow(dbl);
  DestroyWindow(plain);
}

TEST_F(InputTest, KeysGoToTheFocusWindowAndAltMakesThemSystemKeys) {
  HWND top = TopLevel({0, 0, 10, 10});
  SetFocus(top);
  const SHORT before = GetKeyState('A');
  Log().clear();
  User().KeyDown('A');
  User().KeyDown('A');  // auto-repeat
  EXPECT_LT(GetKeyState('A'), 0);
  User().Char('a');
  User().KeyUp('A');
  const std::initializer_list<UINT> keyMessages = {WM_KEYDOWN,    WM_KEYUP,    WM_CHAR,
                                                   WM_SYSKEYDOWN, WM_SYSKEYUP, WM_SYSCHAR};
  auto keys = Of(top, keyMessages);
  ASSERT_EQ(Kinds(keys), (std::vector<UINT>{WM_KEYDOWN, WM_KEYDOWN, WM_CHAR, WM_KEYUP}));
  EXPECT_EQ(keys[0].wParam, WPARAM{'A'});
  EXPECT_EQ(keys[0].lParam, 1);
  EXPECT_EQ(keys[1].lParam, 1 | (LPARAM{1} << 30));  // was already down
  EXPECT_EQ(keys[2].wParam, WPARAM{'a'});
  EXPECT_EQ(keys[3].lParam, 0xC0000001);
  EXPECT_EQ((GetKeyState('A') ^ before) & 1, 1);  // one press toggles once
  EXPECT_GE(GetKeyState('A'), 0);

  Log().clear();
  User().KeyDown(VK_MENU);
  User().KeyDown('F');
  User().Char('f');
  User().KeyUp('F');
  User().KeyUp(VK_MENU);
  keys = Of(top, keyMessages);
  EXPECT_EQ(Kinds(keys), (std::vector<UINT>{WM_SYSKEYDOWN, WM_SYSKEYDOWN, WM_SYSCHAR,
                                            WM_SYSKEYUP, WM_SYSKEYUP}));
  EXPECT_NE(keys[1].lParam & (LPARAM{1} << 29), 0);  // Alt held

  // Without a focus window keys change the key state only.
  SetFocus(nullptr);
  Log().clear();
  User().KeyDown(VK_SHIFT);
  EXPECT_LT(GetKeyState(VK_SHIFT), 0);
  User().KeyUp(VK_SHIFT);
  EXPECT_TRUE(Of(top, keyMessages).empty());
  DestroyWindow(top);
}

}  // namespace
}  // namespace glyphon::win::testing_user
