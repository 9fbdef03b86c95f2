// Sent and posted messages, the thread's queue and its retrieval order: posted messages, the quit
// request, input, paint requests, then timers.
#include <algorithm>

#include "platform/soft/soft_engine.h"
#include "platform/soft/user/user_system.h"

namespace glyphon::win::soft {

LRESULT UserSystem::CallWindowProcA(WNDPROC proc, HWND hwnd, UINT message, WPARAM wParam,
                                    LPARAM lParam) {
  if (proc == nullptr) return 0;
  // The procedure's own platform calls must reach the engine that owns its window.
  EngineScope scope(engine_);
  return proc(hwnd, message, wParam, lParam);
}

LRESULT UserSystem::SendMessageA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  const WindowObject* window = Window(hwnd);
  if (window == nullptr) return 0;
  return CallWindowProcA(window->proc, hwnd, message, wParam, lParam);
}

MSG UserSystem::MakeMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) const {
  return MSG{hwnd, message, wParam, lParam, static_cast<DWORD>(clock_), cursor_};
}

BOOL UserSystem::PostMessageA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (hwnd != nullptr && !IsWindow(hwnd)) return FALSE;
  posted_.push_back(MakeMessage(hwnd, message, wParam, lParam));
  return TRUE;
}

void UserSystem::PostQuitMessage(int exitCode) {
  quitPosted_ = true;
  quitCode_ = exitCode;
}

bool UserSystem::TakePosted(const MessageFilter& filter, bool remove, MSG& msg) {
  const auto it = std::find_if(posted_.begin(), posted_.end(), [&](const MSG& m) {
    return filter.Accepts(m.hwnd, m.message);
  });
  if (it == posted_.end()) return false;
  msg = *it;
  if (remove) posted_.erase(it);
  return true;
}

bool UserSystem::TakeTimer(const MessageFilter& filter, std::uint64_t deadline, bool remove,
                           MSG& msg) {
  const TimerList::Timer* timer = timers_.NextDue(
      deadline, [&](const TimerList::Timer& t) { return filter.Accepts(t.hwnd, WM_TIMER); });
  if (timer == nullptr) return false;
  const HWND hwnd = timer->hwnd;
  const UINT_PTR id = timer->id;
  if (remove) clock_ = std::max(clock_, timer->due);
  msg = MakeMessage(hwnd, WM_TIMER, id, reinterpret_cast<LPARAM>(timer->proc));
  if (remove) timers_.Rearm(hwnd, id, clock_);
  return true;
}

BOOL UserSystem::PeekMessageA(MSG* msg, HWND hwnd, UINT filterMin, UINT filterMax, UINT remove) {
  if (msg == nullptr) return FALSE;
  if (hwnd != nullptr && hwnd != kThreadMessagesOnly && !IsWindow(hwnd)) return FALSE;
  const MessageFilter filter{*this, hwnd, filterMin, filterMax};
  const bool take = (remove & PM_REMOVE) != 0;
  if (TakePosted(filter, take, *msg)) return TRUE;
  if (quitPosted_ && filter.Accepts(nullptr, WM_QUIT)) {
    *msg = MakeMessage(nullptr, WM_QUIT, static_cast<WPARAM>(quitCode_), 0);
    if (take) quitPosted_ = false;
    return TRUE;
  }
  if (TakeInput(filter, take, *msg)) return TRUE;
  // WM_PAINT stays pending until the window validates itself.
  if (HWND dirty = WindowToPaint(filter)) {
    *msg = MakeMessage(dirty, WM_PAINT, 0, 0);
    return TRUE;
  }
  return TakeTimer(filter, clock_, take, *msg) ? TRUE : FALSE;
}

LRESULT UserSystem::DispatchMessageA(const MSG* msg) {
  if (msg == nullptr) return 0;
  if (msg->message == WM_TIMER && msg->lParam != 0) {
    const auto proc = reinterpret_cast<TIMERPROC>(msg->lParam);
    // Only the procedure of a live timer is called, never an address from a forged message.
    if (!timers_.HasProc(proc)) return 0;
    EngineScope scope(engine_);
    proc(msg->hwnd, WM_TIMER, msg->wParam, GetTickCount());
    return 0;
  }
  const WindowObject* window = Window(msg->hwnd);
  if (window == nullptr) return 0;
  return CallWindowProcA(window->proc, msg->hwnd, msg->message, msg->wParam, msg->lParam);
}

int UserSystem::DispatchPendingMessages() {
  int count = 0;
  std::vector<HWND> painted;
  MSG msg;
  while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
    if (msg.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(msg.wParam));  // left for the host's own loop
      break;
    }
    if (msg.message == WM_PAINT) {
      // A window that does not validate itself would be asked again forever.
      if (std::find(painted.begin(), painted.end(), msg.hwnd) != painted.end()) break;
      painted.push_back(msg.hwnd);
    }
    DispatchMessageA(&msg);
    ++count;
  }
  return count;
}

}  // namespace glyphon::win::soft
