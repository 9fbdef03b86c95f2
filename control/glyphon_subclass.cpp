// The control's hold on its window: the replaced window procedure, the window messages that the
// host does not turn into notifications, and the tooltip's text requests.
#include <cstring>

#include "control/glyphon.h"
#include "platform/ignore_errors.h"
#include "control/tooltip.h"
#include "surface/mod_colors.h"

namespace glyphon {

win::LRESULT GLYPHON_CALLBACK ButtonWindowProc(win::HWND hwnd, win::UINT message,
                                               win::WPARAM wParam, win::LPARAM lParam) {
  auto* control = reinterpret_cast<Glyphon*>(win::GetWindowLongPtrA(hwnd, win::GWLP_USERDATA));
  if (control == nullptr) return win::DefWindowProcA(hwnd, message, wParam, lParam);
  return control->HandleMessage(hwnd, message, wParam, lParam);
}

void Glyphon::StartSubclass() {
  if (previousWindowProc_ != nullptr) return;
  IgnoringErrors([&] {
    const win::HWND hwnd = site_.hWnd();
    previousWindowProc_ = reinterpret_cast<win::WNDPROC>(win::SetWindowLongPtrA(
        hwnd, win::GWLP_WNDPROC, reinterpret_cast<win::LONG_PTR>(&ButtonWindowProc)));
    win::SetWindowLongPtrA(hwnd, win::GWLP_USERDATA, reinterpret_cast<win::LONG_PTR>(this));
  });
}

void Glyphon::StopSubclass() {
  IgnoringErrors([&] {
    const win::HWND hwnd = site_.hWnd();
    if (previousWindowProc_ != nullptr) {
      win::SetWindowLongPtrA(hwnd, win::GWLP_WNDPROC,
                             reinterpret_cast<win::LONG_PTR>(previousWindowProc_));
    }
    win::SetWindowLongPtrA(hwnd, win::GWLP_USERDATA, 0);
  });
  previousWindowProc_ = nullptr;
}

void Glyphon::RegisterTooltip() {
  bool userMode = false;
  IgnoringErrors([&] { userMode = UserMode(); });
  ++tooltipRegistrations_;
  IgnoringErrors([&] { ::glyphon::RegisterTooltip(site_.hWnd(), userMode); });
}

win::LRESULT Glyphon::PassOn(win::HWND hwnd, win::UINT message, win::WPARAM wParam,
                             win::LPARAM lParam) {
  if (previousWindowProc_ == nullptr) return win::DefWindowProcA(hwnd, message, wParam, lParam);
  return win::CallWindowProcA(previousWindowProc_, hwnd, message, wParam, lParam);
}

win::LRESULT Glyphon::HandleMessage(win::HWND hwnd, win::UINT message, win::WPARAM wParam,
                                    win::LPARAM lParam) {
  switch (message) {
    case win::WM_SETFOCUS: {
      OnSetFocus();
      const win::LRESULT result = PassOn(hwnd, message, wParam, lParam);
      // The window that lost the focus, to give it back to when the button must not keep it.
      previousFocusWindow_ = reinterpret_cast<win::HWND>(wParam);
      return result;
    }
    case win::WM_KILLFOCUS:
      OnKillFocus();
      break;
    case win::WM_ENABLE:
      OnEnable(wParam != 0);
      break;
    case win::WM_SYSCOLORCHANGE:
      OnSysColorChange();
      break;
    case win::WM_CANCELMODE:
      Redraw(DrawStateUp);
      break;
    case win::WM_NOTIFY:
      AnswerTooltipTextRequest(lParam);
      break;
    case win::WM_MOUSEMOVE:
    case win::WM_LBUTTONDOWN:
    case win::WM_LBUTTONUP:
    case win::WM_RBUTTONDOWN:
    case win::WM_RBUTTONUP:
    case win::WM_MBUTTONDOWN:
    case win::WM_MBUTTONUP:
      IgnoringErrors([&] { RelayToTooltip(hwnd, message, wParam, lParam); });
      break;
    default:
      break;
  }
  return PassOn(hwnd, message, wParam, lParam);
}

void Glyphon::OnSetFocus() {
  hasFocus_ = true;
  if (showFocus_ && !mouseIsDown_ && !spaceIsDown_) drawState_ = DrawStateHot;
  Redraw(drawState_);
}

void Glyphon::OnKillFocus() {
  hasFocus_ = false;
  spaceIsDown_ = false;
  mouseIsDown_ = false;
  SetDrawState(DrawStateUp);
}

// A disabled window cannot be the default button.
void Glyphon::OnEnable(bool enabled) {
  if (enabled) return;
  IgnoringErrors([&] {
    if (Extender* extender = site_.GetExtender()) extender->SetDefault(false);
  });
  default_ = false;
}

// Colours derived from a system colour follow the new scheme.
void Glyphon::OnSysColorChange() {
  if (!modColors::IsSystemColor(backColor_)) return;
  IgnoringErrors([&] { DeriveColorsFromBackColor(); });
}

void Glyphon::AnswerTooltipTextRequest(win::LPARAM lParam) {
  if (lParam == 0) return;
  win::NMHDR header{};
  std::memcpy(&header, reinterpret_cast<const void*>(lParam), sizeof header);
  if (header.code != win::TTN_NEEDTEXTA || header.hwndFrom != TooltipWindow()) return;

  // Until the button's own text was ever set, the container's tooltip text for it is shown.
  bool found = false;
  IgnoringErrors([&] {
    if (toolTipChanged_) {
      tooltipTextBuffer_ = toolTipText_;
      found = true;
    } else if (const Extender* extender = site_.GetExtender()) {
      if (auto text = extender->ToolTipText()) {
        tooltipTextBuffer_ = std::move(*text);
        found = true;
      }
    }
  });
  if (!found) return;

  // The buffer stays alive in the control, so the pointer handed out remains valid.
  win::NMTTDISPINFOA info{};
  std::memcpy(&info, reinterpret_cast<const void*>(lParam), sizeof info);
  info.lpszText = tooltipTextBuffer_.data();
  std::memcpy(reinterpret_cast<void*>(lParam), &info, sizeof info);
}

}  // namespace glyphon
