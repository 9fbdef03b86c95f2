// The thread's timers on the virtual clock. Timers repeat until killed; due ties fire in the order
// the timers were (re)armed.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/win32_types.h"

namespace glyphon::win::soft {

class TimerList {
 public:
  struct Timer {
    HWND hwnd;
    UINT_PTR id;
    UINT elapse;
    TIMERPROC proc;
    std::uint64_t due;
    std::uint64_t order;
  };

  // Arms a timer, replacing the one with the same window and id.
  void Set(HWND hwnd, UINT_PTR id, UINT elapse, TIMERPROC proc, std::uint64_t now);
  bool Kill(HWND hwnd, UINT_PTR id);
  void KillAll(HWND hwnd);
  bool Exists(HWND hwnd, UINT_PTR id) const { return Find(hwnd, id) != nullptr; }
  bool HasProc(TIMERPROC proc) const;

  // The earliest timer due at or before deadline that accept() takes, or null.
  template <class Accept>
  const Timer* NextDue(std::uint64_t deadline, Accept&& accept) const {
    const Timer* best = nullptr;
    for (const Timer& timer : timers_) {
      if (timer.due > deadline || !accept(timer)) continue;
      if (best == nullptr || timer.due < best->due ||
          (timer.due == best->due && timer.order < best->order)) {
        best = &timer;
      }
    }
    return best;
  }

  // Starts the next period of a timer that has just fired.
  void Rearm(HWND hwnd, UINT_PTR id, std::uint64_t now);

 private:
  const Timer* Find(HWND hwnd, UINT_PTR id) const;
  Timer* Find(HWND hwnd, UINT_PTR id);

  std::vector<Timer> timers_;
  std::uint64_t nextOrder_ = 0;
};

}  // namespace glyphon::win::soft
