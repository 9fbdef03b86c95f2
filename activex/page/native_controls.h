// One page control as a control of the system: the window class and styles for its kind, and
// the window brought up to date with the control's state. Updates compare first and change only
// what differs, so a window that already shows the state (because the user just set it there)
// sends no notification back.
#pragma once

#include <string>

#include "activex/windows_api.h"

namespace glyphon::activex {

// A child of parent with the control's caption, at its bounds, visible, and not yet showing
// the control's state (UpdateNativeControl does that).
HWND CreateNativeControl(const PageControl& control, HWND parent, int id, HFONT font);

// The window's enabled state, text, list items, selection or check state as the control has it.
void UpdateNativeControl(HWND window, const PageControl& control);

std::string WindowText(HWND window);

struct EditSelection {
  int start;
  int length;
};
EditSelection SelectionOf(HWND edit);

}  // namespace glyphon::activex
