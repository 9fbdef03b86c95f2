// The thread's parking window: a hidden top-level window that holds the controls' windows while
// no container shows them (before in-place activation and after deactivation), so a control has
// its window, and can subclass it, from its creation to its end.
#pragma once

#include "activex/windows_api.h"

namespace glyphon::activex {

// Holds the thread's parking window for its lifetime; the last lease of a thread destroys it.
class ParkingLease {
 public:
  ParkingLease();
  ~ParkingLease();
  ParkingLease(const ParkingLease&) = delete;
  ParkingLease& operator=(const ParkingLease&) = delete;

  HWND Window() const { return window_; }
  // Hides window and moves it back into the parking window.
  void Park(HWND window) const;

 private:
  HWND window_;
};

// Unregisters the window class once no window is left (when the DLL may unload).
void UnregisterParkingWindowClass();

}  // namespace glyphon::activex
