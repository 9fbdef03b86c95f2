#include "control/host/memory_host_windows.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "control/host/memory_host.h"

namespace glyphon {

namespace {

constexpr win::LPCSTR kFormClass = "GlyphonMemoryForm";
constexpr win::LPCSTR kControlClass = "GlyphonMemoryControl";

// Event values of the mouse buttons and of the shift keys.
constexpr std::int16_t kLeft = 1;
constexpr std::int16_t kRight = 2;
constexpr std::int16_t kMiddle = 4;
constexpr std::int16_t kShift = 1;
constexpr std::int16_t kControl = 2;
constexpr std::int16_t kAlt = 4;

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

bool KeyHeld(int virtualKey) { return win::GetKeyState(virtualKey) < 0; }

std::int16_t AltState() { return KeyHeld(win::VK_MENU) ? kAlt : std::int16_t{0}; }

std::int16_t MouseShift(win::WPARAM wParam) {
  return static_cast<std::int16_t>(((wParam & win::MK_SHIFT) != 0 ? kShift : 0) |
                                   ((wParam & win::MK_CONTROL) != 0 ? kControl : 0) | AltState());
}

std::int16_t MouseButtons(win::WPARAM wParam) {
  return static_cast<std::int16_t>(((wParam & win::MK_LBUTTON) != 0 ? kLeft : 0) |
                                   ((wParam & win::MK_RBUTTON) != 0 ? kRight : 0) |
                                   ((wParam & win::MK_MBUTTON) != 0 ? kMiddle : 0));
}

std::int16_t KeyShift() {
  return static_cast<std::int16_t>((KeyHeld(win::VK_SHIFT) ? kShift : 0) |
                                   (KeyHeld(win::VK_CONTROL) ? kControl : 0) | AltState());
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

// A form host's translation of the control window's messages into notifications. Clicking with
// the left button gives the control window the focus first, as a form does.
bool MemoryHost::HandleControlMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam) {
  if (control_ == nullptr) return false;
  const float x = win::GET_X_LPARAM(lParam);
  const float y = win::GET_Y_LPARAM(lParam);
  switch (message) {
    case win::WM_MOUSEMOVE:
      control_->MouseMove(MouseButtons(wParam), MouseShift(wParam), x, y);
      return true;
    case win::WM_LBUTTONDOWN:
      if (win::GetFocus() != window_) win::SetFocus(window_);
      control_->MouseDown(kLeft, MouseShift(wParam), x, y);
      return true;
    case win::WM_RBUTTONDOWN:
    case win::WM_RBUTTONDBLCLK:
      control_->MouseDown(kRight, MouseShift(wParam), x, y);
      return true;
    case win::WM_MBUTTONDOWN:
    case win::WM_MBUTTONDBLCLK:
      control_->MouseDown(kMiddle, MouseShift(wParam), x, y);
      return true;
    case win::WM_LBUTTONUP:
      control_->MouseUp(kLeft, MouseShift(wParam), x, y);
      return true;
    case win::WM_RBUTTONUP:
      control_->MouseUp(kRight, MouseShift(wParam), x, y);
      return true;
    case win::WM_MBUTTONUP:
      control_->MouseUp(kMiddle, MouseShift(wParam), x, y);
      return true;
    case win::WM_LBUTTONDBLCLK:
      // The second press of a double click is reported as the double click itself.
      control_->DblClick();
      return true;
    case win::WM_KEYDOWN:
      control_->KeyDown(static_cast<std::int16_t>(wParam), KeyShift());
      return true;
    case win::WM_KEYUP:
      control_->KeyUp(static_cast<std::int16_t>(wParam), KeyShift());
      return true;
    case win::WM_CHAR:
      control_->KeyPress(static_cast<std::int16_t>(wParam));
      return true;
    case win::WM_SYSCHAR:
      return PressAccessKey(static_cast<char>(wParam));
    case win::WM_SETFOCUS:
      control_->EnterFocus();
      return true;
    case win::WM_KILLFOCUS:
      control_->ExitFocus();
      return true;
    case win::WM_PAINT: {
      win::PAINTSTRUCT paint{};
      win::BeginPaint(window_, &paint);
      win::EndPaint(window_, &paint);
      control_->Paint();
      return true;
    }
    default:
      return false;
  }
}

}  // namespace glyphon
