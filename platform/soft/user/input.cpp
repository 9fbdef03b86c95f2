// Focus, capture, enable state, the cursor and key state, and injected input turned into mouse and
// keyboard messages.
#include <cstdlib>

#include "platform/soft/soft_engine.h"
#include "platform/soft/user/user_system.h"

namespace glyphon::win::soft {

namespace {

constexpr BYTE kKeyDown = 0x80;
constexpr BYTE kKeyToggled = 0x01;

bool IsMouseMessage(UINT message) { return message >= WM_MOUSEMOVE && message <= WM_MBUTTONDBLCLK; }
bool IsButtonDown(UINT message) {
  return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN;
}
bool IsButtonUp(UINT message) {
  return message == WM_LBUTTONUP || message == WM_RBUTTONUP || message == WM_MBUTTONUP;
}
int ButtonKey(UINT message) {
  if (message <= WM_LBUTTONDBLCLK) return VK_LBUTTON;
  return message <= WM_RBUTTONDBLCLK ? VK_RBUTTON : VK_MBUTTON;
}
UINT ButtonDownMessage(MouseButton button) {
  switch (button) {
    case MouseButton::Left: return WM_LBUTTONDOWN;
    case MouseButton::Right: return WM_RBUTTONDOWN;
    case MouseButton::Middle: return WM_MBUTTONDOWN;
  }
  return WM_LBUTTONDOWN;
}

}  // namespace

// ---- Focus, capture and enable state -----------------------------------------------------------

// The focus moves before the messages go out, so GetFocus inside WM_KILLFOCUS already answers
// the new window; a KILLFOCUS handler that moves the focus elsewhere cancels the WM_SETFOCUS.
HWND UserSystem::ChangeFocus(HWND hwnd) {
  const HWND previous = GetFocus();
  if (previous == hwnd) return previous;
  focus_ = hwnd;
  if (previous != nullptr) {
    SendMessageA(previous, WM_KILLFOCUS, reinterpret_cast<WPARAM>(hwnd), 0);
    if (focus_ != hwnd) return previous;
  }
  if (hwnd != nullptr) SendMessageA(hwnd, WM_SETFOCUS, reinterpret_cast<WPARAM>(previous), 0);
  return previous;
}

HWND UserSystem::SetFocus(HWND hwnd) {
  if (hwnd != nullptr) {
    if (!IsWindow(hwnd)) return nullptr;
    if (hwnd == GetFocus()) return hwnd;
    // Neither a disabled window nor one inside a disabled parent can take the focus.
    for (const WindowObject* window = Window(hwnd); window != nullptr;
         window = window->IsChild() ? Window(window->parent) : nullptr) {
      if ((window->style & WS_DISABLED) != 0) return nullptr;
    }
  }
  return ChangeFocus(hwnd);
}

HWND UserSystem::GetFocus() { return IsWindow(focus_) ? focus_ : nullptr; }

HWND UserSystem::SetCapture(HWND hwnd) {
  if (hwnd != nullptr && !IsWindow(hwnd)) return nullptr;
  const HWND previous = GetCapture();
  capture_ = hwnd;
  if (previous != nullptr && previous != hwnd) {
    SendMessageA(previous, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(hwnd));
  }
  return previous;
}

BOOL UserSystem::ReleaseCapture() {
  const HWND previous = GetCapture();
  capture_ = nullptr;
  if (previous != nullptr) {
    SendMessageA(previous, WM_CAPTURECHANGED, 0, 0);
    // The window under the cursor has missed the moves the capture took; it hears of it now.
    input_.push_back(InputEvent{WM_MOUSEMOVE, 0, cursor_, static_cast<DWORD>(clock_)});
  }
  return TRUE;
}

HWND UserSystem::GetCapture() { return IsWindow(capture_) ? capture_ : nullptr; }

BOOL UserSystem::EnableWindow(HWND hwnd, BOOL enable) {
  WindowObject* window = Window(hwnd);
  if (window == nullptr) return FALSE;
  const bool wasDisabled = (window->style & WS_DISABLED) != 0;
  if (enable && wasDisabled) {
    window->style &= ~WS_DISABLED;
    SendMessageA(hwnd, WM_ENABLE, TRUE, 0);
  } else if (!enable && !wasDisabled) {
    SendMessageA(hwnd, WM_CANCELMODE, 0, 0);
    if ((window = Window(hwnd)) == nullptr) return FALSE;
    window->style |= WS_DISABLED;
    // A disabled window can neither keep the focus nor hold the mouse.
    if (hwnd == GetFocus()) SetFocus(nullptr);
    const HWND captured = GetCapture();
    if (captured != nullptr && (captured == hwnd || IsDescendant(hwnd, captured))) {
      ReleaseCapture();
    }
    SendMessageA(hwnd, WM_ENABLE, FALSE, 0);
  }
  return wasDisabled ? TRUE : FALSE;
}

BOOL UserSystem::IsWindowEnabled(HWND hwnd) {
  const WindowObject* window = Window(hwnd);
  return window != nullptr && (window->style & WS_DISABLED) == 0 ? TRUE : FALSE;
}

// ---- Cursor and key state ---------------------------------------------------------------------

BOOL UserSystem::GetCursorPos(POINT* point) {
  if (point == nullptr) return FALSE;
  *point = cursor_;
  return TRUE;
}

BOOL UserSystem::SetCursorPos(int x, int y) {
  cursor_ = POINT{x, y};
  // Moving the cursor is a mouse move like any other, delivered by the message loop.
  input_.push_back(InputEvent{WM_MOUSEMOVE, 0, cursor_, static_cast<DWORD>(clock_)});
  return TRUE;
}

// The key state as of the last input message taken from the queue: bit 15 down, bit 0 toggled.
SHORT UserSystem::GetKeyState(int virtualKey) {
  if (virtualKey < 0 || virtualKey > 0xFF) return 0;
  const BYTE state = keys_[static_cast<std::size_t>(virtualKey)];
  return static_cast<SHORT>(((state & kKeyDown) != 0 ? 0x8000 : 0) | (state & kKeyToggled));
}

// ---- Injection --------------------------------------------------------------------------------

void UserSystem::Inject(UINT message, WPARAM code, POINT point) {
  input_.push_back(InputEvent{message, code, point, static_cast<DWORD>(clock_)});
  DeliverInput();
}

void UserSystem::DeliverInput() {
  const MessageFilter all{*this, nullptr, 0, 0};
  while (!input_.empty()) {
    MSG msg;
    // Posted messages come before input, as in the message loop.
    if (TakePosted(all, true, msg) || TakeInput(all, true, msg)) DispatchMessageA(&msg);
  }
}

void UserSystem::MouseMove(POINT screen) {
  cursor_ = screen;
  Inject(WM_MOUSEMOVE, 0, screen);
}

void UserSystem::PressAt(MouseButton button, POINT screen, bool down) {
  if (screen.x != cursor_.x || screen.y != cursor_.y) MouseMove(screen);
  const UINT message = ButtonDownMessage(button) + (down ? 0 : WM_LBUTTONUP - WM_LBUTTONDOWN);
  Inject(message, 0, screen);
}

void UserSystem::MouseDown(MouseButton button, POINT screen) { PressAt(button, screen, true); }

void UserSystem::MouseUp(MouseButton button, POINT screen) { PressAt(button, screen, false); }

void UserSystem::DoubleClick(MouseButton button, POINT screen) {
  for (int i = 0; i < 2; ++i) {
    MouseDown(button, screen);
    MouseUp(button, screen);
  }
}

void UserSystem::KeyDown(int virtualKey) {
  Inject(WM_KEYDOWN, static_cast<WPARAM>(virtualKey & 0xFF), cursor_);
}

void UserSystem::KeyUp(int virtualKey) {
  Inject(WM_KEYUP, static_cast<WPARAM>(virtualKey & 0xFF), cursor_);
}

void UserSystem::Char(char character) {
  Inject(WM_CHAR, static_cast<unsigned char>(character), cursor_);
}

// ---- From input events to messages --------------------------------------------------------------

// The oldest input event as a message. Taking it commits the key state and the double-click
// memory it produces; an event no window can receive is consumed on the way.
bool UserSystem::TakeInput(const MessageFilter& filter, bool remove, MSG& msg) {
  while (!input_.empty()) {
    KeyStates keys = keys_;
    Click click = lastClick_;
    MSG cooked;
    const bool delivered = CookInput(input_.front(), keys, click, cooked);
    if (delivered && !filter.Accepts(cooked.hwnd, cooked.message)) return false;
    if (delivered && !remove) {
      msg = cooked;
      return true;
    }
    keys_ = keys;
    lastClick_ = click;
    input_.pop_front();
    if (delivered) {
      msg = cooked;
      return true;
    }
  }
  return false;
}

bool UserSystem::CookInput(const InputEvent& event, KeyStates& keys, Click& click, MSG& msg) {
  return IsMouseMessage(event.message) ? CookMouse(event, keys, click, msg)
                                       : CookKey(event, keys, msg);
}

bool UserSystem::CookMouse(const InputEvent& event, KeyStates& keys, Click& click, MSG& msg) {
  if (IsButtonDown(event.message) || IsButtonUp(event.message)) {
    BYTE& state = keys[static_cast<std::size_t>(ButtonKey(event.message))];
    if (IsButtonDown(event.message)) {
      if ((state & kKeyDown) == 0) state ^= kKeyToggled;
      state |= kKeyDown;
    } else {
      state &= static_cast<BYTE>(~kKeyDown);
    }
  }
  const HWND target = GetCapture() != nullptr ? GetCapture() : WindowFromPoint(event.point);
  if (target == nullptr) return false;
  const WindowObject& window = *Window(target);
  // A disabled top-level window under the cursor swallows the input (disabled children are
  // already passed over by the hit test).
  if ((window.style & WS_DISABLED) != 0) return false;

  UINT message = event.message;
  if (IsButtonDown(message)) {
    const bool doubleClick =
        (window.windowClass->style & CS_DBLCLKS) != 0 && click.message == message &&
        click.hwnd == target && event.time - click.time < kDoubleClickTime &&
        std::abs(event.point.x - click.point.x) < kDoubleClickWidth / 2 &&
        std::abs(event.point.y - click.point.y) < kDoubleClickHeight / 2;
    if (doubleClick) {
      message += WM_LBUTTONDBLCLK - WM_LBUTTONDOWN;
      click = Click{};  // a third press starts afresh
    } else {
      click = Click{message, target, event.time, event.point};
    }
  }

  auto down = [&keys](int vk) { return (keys[static_cast<std::size_t>(vk)] & kKeyDown) != 0; };
  WPARAM flags = 0;
  if (down(VK_LBUTTON)) flags |= MK_LBUTTON;
  if (down(VK_RBUTTON)) flags |= MK_RBUTTON;
  if (down(VK_MBUTTON)) flags |= MK_MBUTTON;
  if (down(VK_SHIFT)) flags |= MK_SHIFT;
  if (down(VK_CONTROL)) flags |= MK_CONTROL;
  const POINT origin = ClientOrigin(window);
  msg = MSG{target, message, flags, MAKELPARAM(event.point.x - origin.x, event.point.y - origin.y),
            event.time, event.point};
  return true;
}

// Keys held with Alt (and without Ctrl) and F10 make the WM_SYS* messages of the menu keys.
bool UserSystem::CookKey(const InputEvent& event, KeyStates& keys, MSG& msg) const {
  const auto vk = static_cast<std::size_t>(event.code);
  auto down = [&keys](int key) { return (keys[static_cast<std::size_t>(key)] & kKeyDown) != 0; };
  const bool wasDown = (keys[vk] & kKeyDown) != 0;
  UINT message = event.message;
  LPARAM lParam = 1;  // repeat count
  switch (event.message) {
    case WM_KEYDOWN: {
      if (!wasDown) keys[vk] ^= kKeyToggled;
      keys[vk] |= kKeyDown;
      const bool alt = down(VK_MENU);
      if (event.code == VK_F10 || (alt && !down(VK_CONTROL))) message = WM_SYSKEYDOWN;
      if (alt) lParam |= LPARAM{1} << 29;
      if (wasDown) lParam |= LPARAM{1} << 30;
      break;
    }
    case WM_KEYUP: {
      // Judged before the release, so letting go of Alt itself is a WM_SYSKEYUP.
      const bool alt = down(VK_MENU);
      if (event.code == VK_F10 || (alt && !down(VK_CONTROL))) message = WM_SYSKEYUP;
      keys[vk] &= static_cast<BYTE>(~kKeyDown);
      if (alt) lParam |= LPARAM{1} << 29;
      lParam |= (LPARAM{1} << 30) | (LPARAM{1} << 31);
      break;
    }
    default: {  // WM_CHAR
      const bool alt = down(VK_MENU);
      if (alt && !down(VK_CONTROL)) message = WM_SYSCHAR;
      if (alt) lParam |= LPARAM{1} << 29;
      break;
    }
  }
  // Without a focus window a key only changes the key state.
  if (focus_ == nullptr || Window(focus_) == nullptr) return false;
  msg = MSG{focus_, message, event.code, lParam, event.time, event.point};
  return true;
}

}  // namespace glyphon::win::soft
