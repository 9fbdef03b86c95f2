// The tooltip window that all buttons of a thread share. It is created by the first button that
// registers in run mode; later buttons only add their windows as tools.
//
// Buttons are counted as they register and as they end. When the last registered button of the
// thread ends, the shared window is destroyed, so a thread whose buttons are all gone holds no
// tooltip window; the next button to register creates a new one.
#pragma once

#include "platform/win32.h"

namespace glyphon {

// The thread's tooltip window; null until a button registered in run mode.
win::HWND TooltipWindow();

// Counts a button in. At design time (userMode false) nothing else happens: no tooltip then.
void RegisterTooltip(win::HWND controlWindow, bool userMode);

// Adds controlWindow as a tool whose text is asked for each time it is shown.
void AddTool(win::HWND controlWindow);

// Counts a button out after it registered `registrations` times, removes its tool, and destroys
// the shared window when no registered button is left.
void UnregisterTooltip(win::HWND controlWindow, int registrations);

// Passes a mouse message of a tool window on to the tooltip, which times its showing from them.
void RelayToTooltip(win::HWND hwnd, win::UINT message, win::WPARAM wParam, win::LPARAM lParam);

}  // namespace glyphon
