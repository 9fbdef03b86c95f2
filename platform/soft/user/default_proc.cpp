// The default window procedure: the behaviour every window has unless its procedure overrides it.
#include <algorithm>
#include <cstring>

#include "platform/soft/soft_engine.h"
#include "platform/soft/user/user_system.h"

namespace glyphon::win::soft {

LRESULT UserSystem::DefWindowProcA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  WindowObject* window = Window(hwnd);
  if (window == nullptr) return 0;
  switch (message) {
    case WM_NCCREATE: {
      const auto* create = reinterpret_cast<const CREATESTRUCTA*>(lParam);
      if (create != nullptr && create->lpszName != nullptr) window->text = create->lpszName;
      return TRUE;
    }
    case WM_SETTEXT:
      window->text = lParam != 0 ? reinterpret_cast<LPCSTR>(lParam) : "";
      return TRUE;
    case WM_GETTEXT: {
      if (wParam == 0 || lParam == 0) return 0;
      auto* buffer = reinterpret_cast<char*>(lParam);
      const std::size_t count = std::min(window->text.size(), static_cast<std::size_t>(wParam - 1));
      std::memcpy(buffer, window->text.data(), count);
      buffer[count] = '\0';
      return static_cast<LRESULT>(count);
    }
    case WM_GETTEXTLENGTH: return static_cast<LRESULT>(window->text.size());
    case WM_PAINT: {
      PAINTSTRUCT paint;
      BeginPaint(hwnd, &paint);
      EndPaint(hwnd, &paint);
      return 0;
    }
    case WM_ERASEBKGND: {
      auto brush = window->windowClass->background;
      const auto value = reinterpret_cast<std::uintptr_t>(brush);
      if (value == 0) return 0;
      // A class brush may name a system colour as COLOR_* + 1.
      if (value <= SYSTEM_COLOR_COUNT) {
        brush = engine_.GetSysColorBrush(static_cast<int>(value) - 1);
      }
      const RECT client{0, 0, window->Width(), window->Height()};
      engine_.FillRect(reinterpret_cast<HDC>(wParam), &client, brush);
      return 1;
    }
    case WM_CANCELMODE:
      if (capture_ == hwnd) ReleaseCapture();
      return 0;
    case WM_CLOSE:
      DestroyWindow(hwnd);
      return 0;
    default: return 0;
  }
}

}  // namespace glyphon::win::soft
