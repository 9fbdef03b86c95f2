// Timers on the virtual clock, the posted-message queue and its retrieval order.
#include "tests/platform/user_test_support.h"

namespace glyphon::win::testing_user {
namespace {

using QueueTest = UserTest;

std::vector<std::pair<UINT_PTR, DWORD>> fired;  // timer id, tick count when it fired

void GLYPHON_CALLBACK RecordTimer(HWND, UINT, UINT_PTR id, DWORD tick) { fired.emplace_back(id, tick); }

LRESULT GLYPHON_CALLBACK TimerWindow(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_TIMER) {
    fired.emplace_back(wParam, GetTickCount());
    if (wParam == 9) KillTimer(hwnd, 9);  // a one-shot
  }
  return RecordingProc(hwnd, message, wParam, lParam);
}

TEST_F(QueueTest, TimersFireInOrderEachAtItsDueTime) {
  HWND hwnd = TopLevel({0, 0, 10, 10});
  SetWindowLongPtrA(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&TimerWindow));
  fired.clear();
  const DWORD start = GetTickCount();
  EXPECT_EQ(SetTimer(hwnd, 7, 30, nullptr), 7u);
  SetTimer(hwnd, 8, 50, nullptr);
  const UINT_PTR thread = SetTimer(nullptr, 0, 50, &RecordTimer);
  EXPECT_NE(thread, 0u);
  const UINT_PTR other = SetTimer(nullptr, 0, 50, &RecordTimer);
  EXPECT_NE(other, thread);  // thread timers get ids of their own
  EXPECT_TRUE(KillTimer(nullptr, other));
  SetTimer(hwnd, 9, 45, nullptr);
  User().AdvanceClock(29);
  EXPECT_TRUE(fired.empty());
  User().AdvanceClock(71);
  // Ties go in the order the timers were armed.
  const std::vector<std::pair<UINT_PTR, DWORD>> expected = {
      {7, start + 30},  {9, start + 45},  {8, start + 50},       {thread, start + 50},
      {7, start + 60},  {7, start + 90},  {8, start + 100}, {thread, start + 100}};
  EXPECT_EQ(fired, expected);
  EXPECT_EQ(GetTickCount() - start, 100u);

  EXPECT_TRUE(KillTimer(hwnd, 8));
  EXPECT_FALSE(KillTimer(hwnd, 8));
  fired.clear();
  SetTimer(hwnd, 7, 0, nullptr);  // re-armed, and too short a period becomes 10 ms
  User().AdvanceClock(10);
  EXPECT_EQ(fired, (std::vector<std::pair<UINT_PTR, DWORD>>{{7, start + 110}}));
  DestroyWindow(hwnd);
  EXPECT_TRUE(KillTimer(nullptr, thread));
}

TEST_F(QueueTest, SleepPassesTimeWithoutFiringAndALateTimerFiresOnce) {
  HWND hwnd = TopLevel({0, 0, 10, 10});
  UpdateWindow(hwnd);
  SetTimer(hwnd, 1, 20, nullptr);
  const DWORD start = GetTickCount();
  Sleep(100);
  EXPECT_EQ(GetTickCount() - start, 100u);
  EXPECT_TRUE(Of(hwnd, {WM_TIMER}).empty());
  MSG msg;
  ASSERT_TRUE(PeekMessageA(&msg, hwnd, 0, 0, PM_REMOVE));
  EXPECT_EQ(msg.message, WM_TIMER);
  EXPECT_EQ(msg.wParam, 1u);
  EXPECT_FALSE(PeekMessageA(&msg, hwnd, 0, 0, PM_REMOVE));  // due again 20 ms from now
  User().AdvanceClock(20);
  EXPECT_EQ(Of(hwnd, {WM_TIMER}).size(), 1u);
  DestroyWindow(hwnd);
}

TEST_F(QueueTest, PostedMessagesComeBeforeQuitPaintAndTimers) {
  HWND a = TopLevel({0, 0, 10, 10});
  HWND b = TopLevel({20, 0, 30, 10});
  UpdateWindow(a);
  UpdateWindow(b);
  Log().clear();
  SetTimer(a, 1, 10, nullptr);
  Sleep(10);
  InvalidateRect(a, nullptr, FALSE);
  PostMessageA(a, WM_USER + 1, 0, 0);
  PostMessageA(b, WM_USER + 2, 0, 0);
  PostMessageA(nullptr, WM_USER + 3, 0, 0);
  PostQuitMessage(5);

  MSG msg;
  ASSERT_TRUE(PeekMessageA(&msg, b, 0, 0, PM_REMOVE));
  EXPECT_EQ(msg.message, WM_USER + 2);
  ASSERT_TRUE(PeekMessageA(&msg, reinterpret_cast<HWND>(std::intptr_t{-1}), 0, 0, PM_REMOVE));
  EXPECT_EQ(msg.message, WM_USER + 3);  // posted to the thread
  EXPECT_EQ(msg.hwnd, nullptr);
  std::vector<UINT> order;
  while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
    order.push_back(msg.message);
    DispatchMessageA(&msg);
    if (msg.message == WM_QUIT) {
      EXPECT_EQ(msg.wParam, 5u);
    }
  }
  EXPECT_EQ(order, (std::vector<UINT>{WM_USER + 1, WM_QUIT, WM_PAINT, WM_TIMER}));
  EXPECT_EQ(Kinds(Of(a, {WM_USER + 1, WM_PAINT, WM_TIMER})),
            (std::vector<UINT>{WM_USER + 1, WM_PAINT, WM_TIMER}));

  // A range filter skips what it excludes; PM_NOREMOVE leaves the message queued.
  PostMessageA(a, WM_USER + 4, 0, 0);
  PostMessageA(a, WM_USER + 5, 0, 0);
  ASSERT_TRUE(PeekMessageA(&msg, nullptr, WM_USER + 5, WM_USER + 9, PM_NOREMOVE));
  EXPECT_EQ(msg.message, WM_USER + 5);
  PostQuitMessage(0);
  EXPECT_EQ(User().DispatchPendingMessages(), 2);
  ASSERT_TRUE(PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE));  // left for the host's loop
  EXPECT_EQ(msg.message, WM_QUIT);

  // Only the procedure of a live timer is ever called from a WM_TIMER message.
  fired.clear();
  const MSG forged{a, WM_TIMER, 1, reinterpret_cast<LPARAM>(&RecordTimer), 0, {}};
  DispatchMessageA(&forged);
  EXPECT_TRUE(fired.empty());
  DestroyWindow(a);
  DestroyWindow(b);
  EXPECT_FALSE(PeekMessageA(&msg, a, 0, 0, PM_REMOVE));  // stale filter window
}

}  // namespace
}  // namespace glyphon::win::testing_user
