// Windows, messages, input, timers, the tooltip control and host services of the soft engine.
// One instance per engine, so per thread: the thread's message queue, focus, capture and timers.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/soft/pixmap.h"
#include "platform/soft/user/timer_list.h"
#include "platform/soft/user/window.h"
#include "platform/win32_functions.h"
#include "platform/win32_types.h"

namespace glyphon::win::soft {

class SoftEngine;

enum class MouseButton { Left, Right, Middle };

// A request to open a document or web page, as ShellExecuteA received it.
struct ShellRequest {
  HWND owner = nullptr;
  std::string operation;
  std::string file;
  std::string parameters;
  std::string directory;
  int show = 0;
};

// Host-replaceable behaviour of the calls that reach outside the program. An empty hook keeps the
// headless default.
struct UserHooks {
  // Default: the answer of a box the user dismissed (HeadlessMessageBoxResult).
  std::function<int(HWND owner, LPCSTR text, LPCSTR caption, UINT type)> messageBox;
  // Default: silence.
  std::function<void(UINT type)> messageBeep;
  // Default: the virtual clock moves on at once; no timer fires meanwhile (the thread is blocked).
  std::function<void(DWORD milliseconds)> sleep;
  // Default: accepted (42). Every request is recorded either way (ShellRequests()).
  std::function<HINSTANCE(const ShellRequest& request)> shellExecute;
};

// IDOK for an OK box, IDCANCEL when the box has a Cancel button, IDNO for Yes/No, IDABORT for
// Abort/Retry/Ignore: what pressing Escape or closing the box gives, the safe answer for a host
// that has nobody to ask.
int HeadlessMessageBoxResult(UINT type);

// What a tooltip window currently shows; rect is in screen coordinates.
struct TooltipView {
  bool visible = false;
  std::string text;
  RECT rect{};
};

class UserSystem {
 public:
  static constexpr UINT kDoubleClickTime = 500;
  static constexpr int kDoubleClickWidth = 4;
  static constexpr int kDoubleClickHeight = 4;

  explicit UserSystem(SoftEngine& engine);
  ~UserSystem();
  UserSystem(const UserSystem&) = delete;
  UserSystem& operator=(const UserSystem&) = delete;

#define GLYPHON_DECLARE_USER_FUNCTION(ret, name, params, args) ret name params;
  GLYPHON_WIN32_USER_FUNCTIONS(GLYPHON_DECLARE_USER_FUNCTION)
#undef GLYPHON_DECLARE_USER_FUNCTION

  // ---- Services for hosts and tests ----

  // Input at screen points. Each call reaches the window procedures before it returns, together
  // with the input it provokes (the mouse move that ReleaseCapture generates) and any message
  // posted meanwhile, as if the host's message loop ran at once. Mouse input goes to the capture
  // window, else to the window under the point; a button press at a point the cursor is not at
  // moves the cursor there first, as a real mouse would.
  void MouseMove(POINT screen);
  void MouseDown(MouseButton button, POINT screen);
  void MouseUp(MouseButton button, POINT screen);
  // Two presses and releases at one point and instant: the second press is a double click for
  // classes with CS_DBLCLKS.
  void DoubleClick(MouseButton button, POINT screen);
  // Keys go to the focus window; VK_SHIFT, VK_CONTROL and VK_MENU held down set the modifier state
  // that GetKeyState, the MK_ flags and the WM_SYS* choice see.
  void KeyDown(int virtualKey);
  void KeyUp(int virtualKey);
  void Char(char character);

  // Moves the virtual clock on by milliseconds, firing every timer that falls due on the way, in
  // order, each at its due time (WM_TIMER to its window, or its TIMERPROC).
  void AdvanceClock(DWORD milliseconds);

  // Sends WM_CANCELMODE, as the system does when a modal window comes up over hwnd.
  void CancelMode(HWND hwnd);

  // Sends WM_SYSCOLORCHANGE to every window, parents before children. The system sends it to
  // top-level windows and containers pass it on to their child windows; here every window gets it
  // straight away, so hosts need not forward it.
  void BroadcastSystemColorChange();

  // Dispatches posted messages, pending input and WM_PAINT until none is left (each window is
  // painted at most once per call; WM_QUIT stays queued). Returns the number dispatched.
  int DispatchPendingMessages();

  // Draws the desktop and every visible window, in z-order and clipped to its parents, onto the
  // screen pixmap (SoftEngine::Screen()).
  void ComposeScreen();

  // The client-area pixels of a window, or null for a stale handle.
  std::shared_ptr<Pixmap> WindowPixels(HWND hwnd) const;

  // The state of a tooltip window, or nothing when hwnd is not one.
  std::optional<TooltipView> TooltipState(HWND hwnd) const;

  UserHooks& Hooks() { return hooks_; }
  const std::vector<ShellRequest>& ShellRequests() const { return shellRequests_; }

  // ---- For the engine's built-in window classes ----

  template <class State>
  State* Control(HWND hwnd) const {
    const WindowObject* window = Window(hwnd);
    return window != nullptr ? dynamic_cast<State*>(window->control.get()) : nullptr;
  }
  void SetControl(HWND hwnd, std::unique_ptr<ControlState> state);
  // Moves a top-level window to the front of its band (topmost windows stay above the others).
  void BringToFront(HWND hwnd);
  SIZE ScreenSize() const;

 private:
  struct InputEvent {
    UINT message;  // WM_MOUSEMOVE, WM_?BUTTONDOWN/UP, WM_KEYDOWN/UP or WM_CHAR
    WPARAM code;   // virtual key or character
    POINT point;
    DWORD time;
  };
  struct Click {
    UINT message = 0;
    HWND hwnd = nullptr;
    DWORD time = 0;
    POINT point{};
  };
  using KeyStates = std::array<BYTE, 256>;
  static inline const HWND kThreadMessagesOnly = reinterpret_cast<HWND>(std::intptr_t{-1});
  // PeekMessage's choice of messages: a window (and its descendants), null for any, or -1 for those
  // posted to the thread itself; and a message range, 0..0 for all, wrapping when reversed.
  struct MessageFilter {
    const UserSystem& user;
    HWND hwnd;
    UINT first;
    UINT last;

    bool InRange(UINT message) const {
      if (first == 0 && last == 0) return true;
      if (first <= last) return message >= first && message <= last;
      return message >= first || message <= last;
    }
    bool Accepts(HWND target, UINT message) const {
      if (!InRange(message)) return false;
      if (hwnd == nullptr) return true;
      if (hwnd == kThreadMessagesOnly) return target == nullptr;
      return target == hwnd || user.IsDescendant(hwnd, target);
    }
  };

  WindowObject* Window(HWND hwnd) const;
  std::shared_ptr<WindowClass> FindClass(LPCSTR name) const;
  void AddClass(std::shared_ptr<WindowClass> windowClass);
  void RegisterTooltipClass();

  // Windows: lifetime and tree.
  void Link(HWND hwnd, WindowObject& window);
  void Unlink(HWND hwnd, const WindowObject& window);
  void SendDestroy(HWND hwnd);
  void Free(HWND hwnd);
  void ReleaseResources(HWND hwnd);
  bool IsDescendant(HWND ancestor, HWND hwnd) const;
  std::vector<HWND> AllWindows() const;
  void CollectTree(HWND hwnd, std::vector<HWND>& out) const;

  // Geometry.
  POINT ClientOrigin(const WindowObject& window) const;
  bool Visible(HWND hwnd) const;
  HWND HitTest(HWND hwnd, POINT point) const;
  void Resize(HWND hwnd, int width, int height);

  // Painting.
  void Invalidate(HWND hwnd, RECT area, bool erase);
  void InvalidateTree(HWND hwnd);
  void UpdateTree(HWND hwnd);
  HWND WindowToPaint(const MessageFilter& filter) const;
  void ComposeWindow(const WindowObject& window, POINT origin, RECT clip, Pixmap& screen) const;

  // Focus and input.
  HWND ChangeFocus(HWND hwnd);
  void Inject(UINT message, WPARAM code, POINT point);
  void DeliverInput();
  bool TakeInput(const MessageFilter& filter, bool remove, MSG& msg);
  bool CookInput(const InputEvent& event, KeyStates& keys, Click& click, MSG& msg);
  bool CookMouse(const InputEvent& event, KeyStates& keys, Click& click, MSG& msg);
  bool CookKey(const InputEvent& event, KeyStates& keys, MSG& msg) const;
  void PressAt(MouseButton button, POINT screen, bool down);

  // Queue.
  bool TakePosted(const MessageFilter& filter, bool remove, MSG& msg);
  bool TakeTimer(const MessageFilter& filter, std::uint64_t deadline, bool remove, MSG& msg);
  MSG MakeMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) const;

  SoftEngine& engine_;
  std::vector<std::shared_ptr<WindowClass>> classes_;
  ATOM nextAtom_ = 0xC000;
  std::vector<HWND> topLevel_;  // z-order, front first
  HWND focus_ = nullptr;
  HWND capture_ = nullptr;
  POINT cursor_{};
  KeyStates keys_{};
  Click lastClick_;
  std::deque<InputEvent> input_;
  std::deque<MSG> posted_;
  bool quitPosted_ = false;
  int quitCode_ = 0;
  TimerList timers_;
  UINT_PTR nextThreadTimerId_ = 0x7FFF;
  std::uint64_t clock_ = 0;
  UserHooks hooks_;
  std::vector<ShellRequest> shellRequests_;
};

}  // namespace glyphon::win::soft
