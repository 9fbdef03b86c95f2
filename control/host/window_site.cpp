#include "control/host/window_site.h"

#include <cctype>
#include <cmath>

namespace glyphon {

namespace {

// Event values of the mouse buttons and of the shift keys.
constexpr std::int16_t kLeft = 1;
constexpr std::int16_t kRight = 2;
constexpr std::int16_t kMiddle = 4;
constexpr std::int16_t kShift = 1;
constexpr std::int16_t kControl = 2;
constexpr std::int16_t kAlt = 4;

// The window holds the whole of a fractional client area.
int WholePixels(double size) { return size > 0 ? static_cast<int>(std::ceil(size)) : 0; }

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

WindowSite::WindowSite(win::HWND parent, const SiteRect& rect, bool record)
    : rect_(rect), recorder_(record) {
  window_ = CreateControlWindow(parent, rect.left, rect.top, WholePixels(rect.width),
                                WholePixels(rect.height), *this);
  hdc_ = win::GetDC(window_);
}

WindowSite::~WindowSite() {
  win::ReleaseDC(window_, hdc_);
  DestroyHostWindow(window_);
}

void WindowSite::SetEnabled(bool enabled) {
  enabled_ = enabled;
  win::EnableWindow(window_, enabled ? win::TRUE : win::FALSE);
}

void WindowSite::SetClientSize(double width, double height) {
  rect_.width = width;
  rect_.height = height;
  win::MoveWindow(window_, rect_.left, rect_.top, WholePixels(width), WholePixels(height),
                  win::FALSE);
  if (control_ != nullptr) control_->Resize();
}

bool WindowSite::HasAccessKey(char key) const {
  const auto folded = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
  for (const char accessKey : accessKeys_) {
    if (folded(accessKey) == folded(key)) return true;
  }
  return false;
}

bool WindowSite::PressAccessKey(char key) {
  if (control_ == nullptr || !enabled_ || !HasAccessKey(key)) return false;
  if (win::GetFocus() != window_) win::SetFocus(window_);
  control_->AccessKeyPress(static_cast<std::int16_t>(static_cast<unsigned char>(key)));
  return true;
}

// A form host's translation of the control window's messages into notifications.
bool WindowSite::HandleWindowMessage(win::HWND, win::UINT message, win::WPARAM wParam,
                                     win::LPARAM lParam) {
  if (control_ == nullptr) return false;
  switch (message) {
    case win::WM_MOUSEMOVE:
    case win::WM_LBUTTONDOWN:
    case win::WM_RBUTTONDOWN:
    case win::WM_RBUTTONDBLCLK:
    case win::WM_MBUTTONDOWN:
    case win::WM_MBUTTONDBLCLK:
    case win::WM_LBUTTONUP:
    case win::WM_RBUTTONUP:
    case win::WM_MBUTTONUP:
    case win::WM_LBUTTONDBLCLK:
      return DeliverMouse(message, wParam, static_cast<float>(win::GET_X_LPARAM(lParam)),
                          static_cast<float>(win::GET_Y_LPARAM(lParam)));
    case win::WM_KEYDOWN:
    case win::WM_KEYUP:
    case win::WM_CHAR:
      return OnNavigationKey(message, wParam) || DeliverKey(message, wParam);
    case win::WM_SYSCHAR:
      return OnAccessKey(static_cast<char>(wParam));
    case win::WM_SETFOCUS:
      control_->EnterFocus();
      OnFocusChanged();
      return true;
    case win::WM_KILLFOCUS:
      control_->ExitFocus();
      OnFocusChanged();
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

bool WindowSite::DeliverMouse(win::UINT message, win::WPARAM wParam, float x, float y) {
  const std::int16_t shift = MouseShift(wParam);
  switch (message) {
    case win::WM_MOUSEMOVE:
      control_->MouseMove(MouseButtons(wParam), shift, x, y);
      break;
    case win::WM_LBUTTONDOWN:
      // A press with the left button gives the control window the focus first, as a form does.
      if (win::GetFocus() != window_) win::SetFocus(window_);
      control_->MouseDown(kLeft, shift, x, y);
      break;
    case win::WM_RBUTTONDOWN:
    case win::WM_RBUTTONDBLCLK:
      control_->MouseDown(kRight, shift, x, y);
      break;
    case win::WM_MBUTTONDOWN:
    case win::WM_MBUTTONDBLCLK:
      control_->MouseDown(kMiddle, shift, x, y);
      break;
    case win::WM_LBUTTONUP:
      control_->MouseUp(kLeft, shift, x, y);
      break;
    case win::WM_RBUTTONUP:
      control_->MouseUp(kRight, shift, x, y);
      break;
    case win::WM_MBUTTONUP:
      control_->MouseUp(kMiddle, shift, x, y);
      break;
    case win::WM_LBUTTONDBLCLK:
      // The second press of a double click is reported as the double click itself.
      control_->DblClick();
      break;
    default:
      return false;
  }
  return true;
}

bool WindowSite::DeliverKey(win::UINT message, win::WPARAM wParam) {
  switch (message) {
    case win::WM_KEYDOWN:
      control_->KeyDown(static_cast<std::int16_t>(wParam), KeyShift());
      return true;
    case win::WM_KEYUP:
      control_->KeyUp(static_cast<std::int16_t>(wParam), KeyShift());
      return true;
    case win::WM_CHAR:
      control_->KeyPress(static_cast<std::int16_t>(wParam));
      return true;
    default:
      return false;
  }
}

}  // namespace glyphon
