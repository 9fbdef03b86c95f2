#include "platform/soft/user/timer_list.h"

#include <algorithm>
#include <utility>

namespace glyphon::win::soft {

const TimerList::Timer* TimerList::Find(HWND hwnd, UINT_PTR id) const {
  auto it = std::find_if(timers_.begin(), timers_.end(),
                         [&](const Timer& t) { return t.hwnd == hwnd && t.id == id; });
  return it != timers_.end() ? &*it : nullptr;
}

TimerList::Timer* TimerList::Find(HWND hwnd, UINT_PTR id) {
  return const_cast<Timer*>(std::as_const(*this).Find(hwnd, id));
}

void TimerList::Set(HWND hwnd, UINT_PTR id, UINT elapse, TIMERPROC proc, std::uint64_t now) {
  const Timer timer{hwnd, id, elapse, proc, now + elapse, nextOrder_++};
  if (Timer* existing = Find(hwnd, id)) {
    *existing = timer;
  } else {
    timers_.push_back(timer);
  }
}

bool TimerList::Kill(HWND hwnd, UINT_PTR id) {
  const auto before = timers_.size();
  std::erase_if(timers_, [&](const Timer& t) { return t.hwnd == hwnd && t.id == id; });
  return timers_.size() != before;
}

void TimerList::KillAll(HWND hwnd) {
  std::erase_if(timers_, [&](const Timer& t) { return t.hwnd == hwnd; });
}

bool TimerList::HasProc(TIMERPROC proc) const {
  return std::any_of(timers_.begin(), timers_.end(),
                     [&](const Timer& t) { return t.proc == proc; });
}

void TimerList::Rearm(HWND hwnd, UINT_PTR id, std::uint64_t now) {
  if (Timer* timer = Find(hwnd, id)) {
    timer->due = now + timer->elapse;
    timer->order = nextOrder_++;
  }
}

}  // namespace glyphon::win::soft
