// The common controls' tooltip window (class tooltips_class32): tools registered by window,
// mouse messages relayed by their owners, a tip that appears after the pointer rests on a tool and
// goes on a click, when the pointer leaves, or after a while.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/soft/user/user_system.h"

namespace glyphon::win::soft {

LRESULT GLYPHON_CALLBACK TooltipWindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

class Tooltip final : public ControlState {
 public:
  // Windows derives the delays from the double-click time.
  static constexpr UINT kInitialDelay = UserSystem::kDoubleClickTime;
  static constexpr UINT kReshowDelay = kInitialDelay / 5;
  static constexpr UINT kAutoPopDelay = kInitialDelay * 10;

  Tooltip(UserSystem& user, HWND self) : user_(user), self_(self) {}

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  // The window rectangle is left for the caller.
  TooltipView View() const { return TooltipView{shown_ != 0, text_, RECT{}}; }

 private:
  struct Tool {
    std::uint64_t serial;
    UINT flags;
    HWND hwnd;
    UINT_PTR id;
    RECT rect;
    bool callback;  // text asked for with TTN_NEEDTEXTA each time
    std::string text;
    LPARAM lParam;
  };

  const Tool* FindTool(std::uint64_t serial) const;
  std::uint64_t ToolAt(HWND hwnd, POINT point) const;
  std::uint64_t ToolUnderCursor() const;
  LRESULT AddTool(const TOOLINFOA* info);
  void DeleteTool(const TOOLINFOA* info);
  void Activate(bool active);
  void Relay(const MSG* msg);
  void OnTimer(UINT_PTR id);
  void Leave();
  void Show();
  void Hide();
  void Paint();
  std::string RequestText(const Tool& tool) const;
  void Notify(const Tool& tool, UINT code) const;
  SIZE Measure() const;

  UserSystem& user_;
  const HWND self_;
  std::vector<Tool> tools_;
  std::uint64_t nextSerial_ = 1;
  bool active_ = true;
  std::uint64_t hover_ = 0;  // serial of the tool under the pointer, 0 for none
  std::uint64_t shown_ = 0;  // serial of the tool whose tip is up
  // A click or the auto-pop ended the tip: no other until the pointer leaves the tool.
  bool suppressed_ = false;
  POINT lastPoint_{};
  std::string text_;  // the text last shown
};

}  // namespace glyphon::win::soft
