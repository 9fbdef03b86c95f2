#include "control/host/memory_host_windows.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "control/host/input_messages.h"
#include "control/host/memory_host.h"

namespace glyphon {

namespace {

constexpr win::LPCSTR kFormClass = "GlyphonMemoryForm";
constexpr win::LPCSTR kControlClass = "GlyphonMemoryControl";

using Registry = std::vector<std::pair<win::HWND, MemoryHost*>>;

Registry& ThreadRegistry() {
  thread_local Registry registry;
  return registry;
}

MemoryHost* HostOf(win::HWND hwnd) {
  for (const auto& [window, host] : ThreadRegistry()) {
    if (window == hwnd) return host;
  }
  return nullptr;
}

win::LRESULT FormWindowProc(win::HWND hwnd, win::UINT message, win::WPARAM wParam,
                            win::LPARAM lParam) {
  MemoryHost* host = HostOf(hwnd);
  if (host != nullptr && message == win::WM_SYSCHAR &&
      host->PressAccessKey(static_cast<char>(wParam))) {
    return 0;
  }
  return win::DefWindowProcA(hwnd, message, wParam, lParam);
}

win::LRESULT ControlWindowProc(win::HWND hwnd, win::UINT message, win::WPARAM wParam,
                               win::LPARAM lParam) {
  MemoryHost* host = HostOf(hwnd);
  if (host != nullptr && host->HandleControlMessage(message, wParam, lParam)) return 0;
  return win::DefWindowProcA(hwnd, message, wParam, lParam);
}

// Each engine keeps its own classes; registering again fails harmlessly.
void RegisterWindowClass(win::LPCSTR name, win::WNDPROC procedure, win::UINT style) {
  win::WNDCLASSA windowClass{};
  windowClass.style = style;
  windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = win::GetModuleHandleA(nullptr);
  windowClass.lpszClassName = name;
  win::RegisterClassA(&windowClass);
}

}  // namespace

win::HWND CreateFormWindow(int width, int height) {
  RegisterWindowClass(kFormClass, &FormWindowProc, 0);
  return win::CreateWindowExA(0, kFormClass, "Form1", win::WS_POPUP | win::WS_VISIBLE, 0, 0, width,
                              height, nullptr, nullptr, win::GetModuleHandleA(nullptr), nullptr);
}

win::HWND CreateControlWindow(win::HWND form, int left, int top, int width, int height) {
  RegisterWindowClass(kControlClass, &ControlWindowProc, win::CS_DBLCLKS);
  return win::CreateWindowExA(0, kControlClass, nullptr,
                              win::WS_CHILD | win::WS_VISIBLE | win::WS_TABSTOP, left, top, width,
                              height, form, nullptr, win::GetModuleHandleA(nullptr), nullptr);
}

void RegisterHostWindows(MemoryHost& host, win::HWND form, win::HWND control) {
  ThreadRegistry().emplace_back(form, &host);
  ThreadRegistry().emplace_back(control, &host);
}

void UnregisterHostWindows(win::HWND form, win::HWND control) {
  std::erase_if(ThreadRegistry(), [&](const auto& entry) {
    return entry.first == form || entry.first == control;
  });
}

// The form turns Alt+key into the control's access keys; the rest is a form host's usual
// translation.
bool MemoryHost::HandleControlMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam) {
  if (control_ == nullptr) return false;
  if (message == win::WM_SYSCHAR) return PressAccessKey(static_cast<char>(wParam));
  return DeliverControlMessage(*control_, window_, message, wParam, lParam);
}

}  // namespace glyphon
