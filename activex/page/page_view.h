// The General page shown with the system's own controls: a page window, child of the property
// frame's window, holding one control window per page control at the control's bounds, in tab
// order. The view owns no logic: the user's edits go to the model (a change of text, a typed
// character through the box's KeyPress, leaving a box, picking an item, clicking a check box),
// and Update brings a window up to date when the model reports that its control changed.
#pragma once

#include <vector>

#include "activex/windows_api.h"

namespace glyphon::activex {

class PageView {
 public:
  // The page window starts hidden, as a property frame expects; every control shows the
  // model's state.
  PageView(GeneralPage& page, HWND parent, const RECT& position);
  ~PageView();
  PageView(const PageView&) = delete;
  PageView& operator=(const PageView&) = delete;

  HWND Window() const { return window_; }
  void Show(int command) const { ShowWindow(window_, command); }
  void Move(const RECT& position) const;
  void Update(const PageControl& control);
  // Tab, Shift+Tab and the labels' access keys between the page's controls; false for a message
  // that is not for the page, and for Enter and Escape, which the frame handles.
  bool TranslateKey(MSG& message) const;

 private:
  static LRESULT CALLBACK PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK BoxProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static PageView* FromWindow(HWND window);

  void CreateControls();
  PageControl* ControlOf(HWND window) const;
  void OnCommand(HWND window, UINT code);
  void OnBoxCommand(HWND window, TextBox& box, UINT code);
  LRESULT OnBoxCharacter(HWND window, WPARAM character, LPARAM lParam);

  GeneralPage& page_;
  HWND window_ = nullptr;
  // Parallel to page_.Controls().
  std::vector<HWND> controls_;
  WNDPROC editProc_ = nullptr;
  // The control whose window is telling the model about the user's edit: the window already
  // shows the new state, so the model's report of it is not sent back.
  const PageControl* forwarding_ = nullptr;
};

// Unregisters the page's window class once no page window is left (when the DLL may unload).
void UnregisterPageWindowClass();

}  // namespace glyphon::activex
