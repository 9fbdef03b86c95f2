// A container's top-level form window: it paints its client area in the form's back colour and
// hands the keys that reach it (while the form itself has the focus) to the container.
#pragma once

#include <functional>

#include "control/host/host_windows.h"
#include "platform/win32.h"

namespace glyphon {

class FormWindow final : private HostWindowHandler {
 public:
  FormWindow(const char* caption, int width, int height, win::OLE_COLOR backColor);
  ~FormWindow() override;
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  win::HWND hWnd() const { return window_; }
  win::OLE_COLOR BackColor() const { return backColor_; }
  // Takes effect at the next paint of the form.
  void SetBackColor(win::OLE_COLOR backColor);
  // Told of WM_KEYDOWN, WM_CHAR and WM_SYSCHAR with their key; returns whether it took the key.
  void SetKeyHandler(std::function<bool(win::UINT message, win::WPARAM key)> handler) {
    keyHandler_ = std::move(handler);
  }

 private:
  bool HandleWindowMessage(win::HWND hwnd, win::UINT message, win::WPARAM wParam,
                           win::LPARAM lParam) override;

  win::HWND window_ = nullptr;
  win::OLE_COLOR backColor_;
  std::function<bool(win::UINT, win::WPARAM)> keyHandler_;
};

}  // namespace glyphon
