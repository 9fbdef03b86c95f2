// The windows a container makes: a top-level form and control windows inside it. Their procedures
// find the object that handles them through a per-thread registry, because a hosted control keeps
// its own pointer in its window's user data.
#pragma once

#include "platform/win32.h"

namespace glyphon {

class HostWindowHandler {
 public:
  virtual ~HostWindowHandler() = default;
  // What the handler does with a message; false passes it to the default procedure.
  virtual bool HandleWindowMessage(win::HWND hwnd, win::UINT message, win::WPARAM wParam,
                                   win::LPARAM lParam) = 0;
};

// A visible top-level form; WM_PAINT and WM_SYSCHAR reach the handler first.
win::HWND CreateFormWindow(const char* caption, int width, int height, HostWindowHandler& handler);
// A visible child of parent that takes the focus and double clicks.
win::HWND CreateControlWindow(win::HWND parent, int left, int top, int width, int height,
                              HostWindowHandler& handler);
// Unregisters the window's handler and destroys it.
void DestroyHostWindow(win::HWND hwnd);
// Unregisters the window classes once no host window is left, so code that may be unloaded (the
// ActiveX DLL) leaves no class behind whose procedure it takes with it.
void UnregisterHostWindowClasses();

}  // namespace glyphon
