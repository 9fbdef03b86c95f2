#include "control/host/host_windows.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace glyphon {

namespace {

constexpr win::LPCSTR kFormClass = "GlyphonHostForm";
constexpr win::LPCSTR kControlClass = "GlyphonHostControl";

using Registry = std::vector<std::pair<win::HWND, HostWindowHandler*>>;

Registry& ThreadRegistry() {
  thread_local Registry registry;
  return registry;
}

HostWindowHandler* HandlerOf(win::HWND hwnd) {
  for (const auto& [window, handler] : ThreadRegistry()) {
    if (window == hwnd) return handler;
  }
  return nullptr;
}

win::LRESULT GLYPHON_CALLBACK HostWindowProc(win::HWND hwnd, win::UINT message, win::WPARAM wParam,
                                             win::LPARAM lParam) {
  HostWindowHandler* handler = HandlerOf(hwnd);
  if (handler != nullptr && handler->HandleWindowMessage(hwnd, message, wParam, lParam)) return 0;
  return win::DefWindowProcA(hwnd, message, wParam, lParam);
}

// Each engine keeps its own classes; registering again fails harmlessly.
void RegisterWindowClass(win::LPCSTR name, win::UINT style) {
  win::WNDCLASSA windowClass{};
  windowClass.style = style;
  windowClass.lpfnWndProc = &HostWindowProc;
  windowClass.hInstance = win::GetModuleHandleA(nullptr);
  windowClass.lpszClassName = name;
  win::RegisterClassA(&windowClass);
}

win::HWND Registered(win::HWND hwnd, HostWindowHandler& handler) {
  if (hwnd != nullptr) ThreadRegistry().emplace_back(hwnd, &handler);
  return hwnd;
}

}  // namespace

win::HWND CreateFormWindow(const char* caption, int width, int height, HostWindowHandler& handler) {
  RegisterWindowClass(kFormClass, 0);
  return Registered(win::CreateWindowExA(0, kFormClass, caption, win::WS_POPUP | win::WS_VISIBLE,
                                         0, 0, width, height, nullptr, nullptr,
                                         win::GetModuleHandleA(nullptr), nullptr),
                    handler);
}

win::HWND CreateControlWindow(win::HWND parent, int left, int top, int width, int height,
                              HostWindowHandler& handler) {
  RegisterWindowClass(kControlClass, win::CS_DBLCLKS);
  return Registered(
      win::CreateWindowExA(0, kControlClass, nullptr,
                           win::WS_CHILD | win::WS_VISIBLE | win::WS_TABSTOP, left, top, width,
                           height, parent, nullptr, win::GetModuleHandleA(nullptr), nullptr),
      handler);
}

void DestroyHostWindow(win::HWND hwnd) {
  std::erase_if(ThreadRegistry(), [&](const auto& entry) { return entry.first == hwnd; });
  win::DestroyWindow(hwnd);
}

void UnregisterHostWindowClasses() {
  win::UnregisterClassA(kFormClass, win::GetModuleHandleA(nullptr));
  win::UnregisterClassA(kControlClass, win::GetModuleHandleA(nullptr));
}

}  // namespace glyphon
