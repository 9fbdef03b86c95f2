#include "control/tooltip.h"

namespace glyphon {

namespace {

struct TooltipState {
  win::HWND window = nullptr;
  bool created = false;
  int buttonInstanceCount = 0;
};

TooltipState& ThreadTooltip() {
  thread_local TooltipState state;
  return state;
}

win::HINSTANCE ModuleInstance() { return win::GetModuleHandleA(nullptr); }

win::TOOLINFOA ToolFor(win::HWND controlWindow) {
  win::TOOLINFOA tool{};
  tool.cbSize = sizeof(win::TOOLINFOA);
  tool.uFlags = win::TTF_IDISHWND;
  tool.hwnd = controlWindow;
  tool.uId = reinterpret_cast<win::UINT_PTR>(controlWindow);
  tool.hinst = ModuleInstance();
  tool.lpszText = GLYPHON_LPSTR_TEXTCALLBACKA;
  return tool;
}

void CreateTooltipWindow(TooltipState& state) {
  state.created = true;
  win::InitCommonControls();
  state.window = win::CreateWindowExA(win::WS_EX_TOPMOST, win::TOOLTIPS_CLASSA, nullptr, 0,
                                      win::CW_USEDEFAULT, win::CW_USEDEFAULT, win::CW_USEDEFAULT,
                                      win::CW_USEDEFAULT, nullptr, nullptr, ModuleInstance(),
                                      nullptr);
  win::SendMessageA(state.window, win::TTM_ACTIVATE, 1, 0);
}

}  // namespace

win::HWND TooltipWindow() { return ThreadTooltip().window; }

void RegisterTooltip(win::HWND controlWindow, bool userMode) {
  TooltipState& state = ThreadTooltip();
  state.buttonInstanceCount += 1;
  if (!userMode) return;
  if (!state.created) CreateTooltipWindow(state);
  AddTool(controlWindow);
}

void AddTool(win::HWND controlWindow) {
  win::TOOLINFOA tool = ToolFor(controlWindow);
  const win::HWND tooltip = TooltipWindow();
  win::SendMessageA(tooltip, win::TTM_ADDTOOLA, 0, reinterpret_cast<win::LPARAM>(&tool));
  win::SendMessageA(tooltip, win::TTM_ACTIVATE, 1, reinterpret_cast<win::LPARAM>(controlWindow));
}

void UnregisterTooltip(win::HWND controlWindow, int registrations) {
  if (registrations <= 0) return;
  TooltipState& state = ThreadTooltip();
  state.buttonInstanceCount -= registrations;
  if (state.buttonInstanceCount > 0) {
    if (state.window == nullptr) return;
    win::TOOLINFOA tool = ToolFor(controlWindow);
    win::SendMessageA(state.window, win::TTM_DELTOOLA, 0, reinterpret_cast<win::LPARAM>(&tool));
    return;
  }
  if (state.window != nullptr) win::DestroyWindow(state.window);
  state = TooltipState{};
}

void RelayToTooltip(win::HWND hwnd, win::UINT message, win::WPARAM wParam, win::LPARAM lParam) {
  const win::HWND tooltip = TooltipWindow();
  if (tooltip == nullptr) return;
  win::MSG relayed{hwnd, message, wParam, lParam, 0, {}};
  win::SendMessageA(tooltip, win::TTM_RELAYEVENT, 0, reinterpret_cast<win::LPARAM>(&relayed));
}

}  // namespace glyphon
