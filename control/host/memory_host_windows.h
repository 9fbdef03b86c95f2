// The in-memory host's two windows: a form and the control's window inside it. Their procedures
// find the host through a per-thread registry, because the control keeps its own pointer in the
// control window's user data.
#pragma once

#include "platform/win32.h"

namespace glyphon {

class MemoryHost;

win::HWND CreateFormWindow(int width, int height);
win::HWND CreateControlWindow(win::HWND form, int left, int top, int width, int height);
void RegisterHostWindows(MemoryHost& host, win::HWND form, win::HWND control);
void UnregisterHostWindows(win::HWND form, win::HWND control);

}  // namespace glyphon
