#include "control/host/input_messages.h"

#include <cstdint>

namespace glyphon {

namespace {

// Event values of the mouse buttons and of the shift keys.
constexpr std::int16_t kLeft = 1;
constexpr std::int16_t kRight = 2;
constexpr std::int16_t kMiddle = 4;
constexpr std::int16_t kShift = 1;
constexpr std::int16_t kControl = 2;
constexpr std::int16_t kAlt = 4;

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

bool DeliverControlMessage(HostedControl& control, win::HWND window, win::UINT message,
                           win::WPARAM wParam, win::LPARAM lParam) {
  const float x = win::GET_X_LPARAM(lParam);
  const float y = win::GET_Y_LPARAM(lParam);
  switch (message) {
    case win::WM_MOUSEMOVE:
      control.MouseMove(MouseButtons(wParam), MouseShift(wParam), x, y);
      return true;
    case win::WM_LBUTTONDOWN:
      if (win::GetFocus() != window) win::SetFocus(window);
      control.MouseDown(kLeft, MouseShift(wParam), x, y);
      return true;
    case win::WM_RBUTTONDOWN:
    case win::WM_RBUTTONDBLCLK:
      control.MouseDown(kRight, MouseShift(wParam), x, y);
      return true;
    case win::WM_MBUTTONDOWN:
    case win::WM_MBUTTONDBLCLK:
      control.MouseDown(kMiddle, MouseShift(wParam), x, y);
      return true;
    case win::WM_LBUTTONUP:
      control.MouseUp(kLeft, MouseShift(wParam), x, y);
      return true;
    case win::WM_RBUTTONUP:
      control.MouseUp(kRight, MouseShift(wParam), x, y);
      return true;
    case win::WM_MBUTTONUP:
      control.MouseUp(kMiddle, MouseShift(wParam), x, y);
      return true;
    case win::WM_LBUTTONDBLCLK:
      // The second press of a double click is reported as the double click itself.
      control.DblClick();
      return true;
    case win::WM_KEYDOWN:
      control.KeyDown(static_cast<std::int16_t>(wParam), KeyShift());
      return true;
    case win::WM_KEYUP:
      control.KeyUp(static_cast<std::int16_t>(wParam), KeyShift());
      return true;
    case win::WM_CHAR:
      control.KeyPress(static_cast<std::int16_t>(wParam));
      return true;
    case win::WM_SETFOCUS:
      control.EnterFocus();
      return true;
    case win::WM_KILLFOCUS:
      control.ExitFocus();
      return true;
    case win::WM_PAINT: {
      win::PAINTSTRUCT paint{};
      win::BeginPaint(window, &paint);
      win::EndPaint(window, &paint);
      control.Paint();
      return true;
    }
    default:
      return false;
  }
}

}  // namespace glyphon
