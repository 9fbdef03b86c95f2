// The control's own window. It exists from the object's creation to its end, so the control can
// subclass it at once; until the container activates the control in place it is a hidden child
// of the thread's parking window. Its messages go to a handler, found through the window's extra
// bytes (the control keeps its own pointer in the user data).
#pragma once

#include "activex/windows_api.h"

namespace glyphon::activex {

class ControlWindowHandler {
 public:
  virtual ~ControlWindowHandler() = default;
  virtual LRESULT OnWindowMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) = 0;
};

// A hidden child of the parking window; its device context is its own for its whole life.
HWND CreateControlWindow(ControlWindowHandler& handler);
void DestroyControlWindow(HWND window);
// Back into the parking window, hidden, when the container deactivates the control.
void ParkControlWindow(HWND window);
// Unregisters the window classes once no window is left (when the DLL may unload).
void UnregisterControlWindowClasses();

}  // namespace glyphon::activex
