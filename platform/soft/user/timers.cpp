// Timers and the virtual millisecond clock that drives them.
#include <algorithm>

#include "platform/soft/soft_engine.h"
#include "platform/soft/user/user_system.h"

namespace glyphon::win::soft {

namespace {
// The shortest and longest periods Windows accepts; others are brought into range.
constexpr UINT kMinimumElapse = 0x0000000A;
constexpr UINT kMaximumElapse = 0x7FFFFFFF;
}  // namespace

UINT_PTR UserSystem::SetTimer(HWND hwnd, UINT_PTR id, UINT elapse, TIMERPROC proc) {
  if (hwnd != nullptr && !IsWindow(hwnd)) return 0;
  elapse = std::clamp(elapse, kMinimumElapse, kMaximumElapse);
  if (hwnd == nullptr && !timers_.Exists(nullptr, id)) {
    // A thread timer gets an id of its own unless it replaces one.
    do {
      id = nextThreadTimerId_;
      nextThreadTimerId_ = nextThreadTimerId_ > 0x100 ? nextThreadTimerId_ - 1 : 0x7FFF;
    } while (timers_.Exists(nullptr, id));
  }
  timers_.Set(hwnd, id, elapse, proc, clock_);
  return id != 0 ? id : 1;
}

BOOL UserSystem::KillTimer(HWND hwnd, UINT_PTR id) { return timers_.Kill(hwnd, id) ? TRUE : FALSE; }

DWORD UserSystem::GetTickCount() { return static_cast<DWORD>(clock_); }

void UserSystem::AdvanceClock(DWORD milliseconds) {
  const std::uint64_t target = clock_ + milliseconds;
  const MessageFilter all{*this, nullptr, 0, 0};
  MSG msg;
  while (TakeTimer(all, target, true, msg)) DispatchMessageA(&msg);
  clock_ = std::max(clock_, target);
}

}  // namespace glyphon::win::soft
