#include "activex/page/page_view.h"

#include <cstdint>

#include "activex/com_error.h"
#include "activex/module.h"
#include "activex/page/native_controls.h"

namespace glyphon::activex {

namespace {

constexpr const char* kPageClass = "zonGlyphonPropertyPage";
// Control identifiers follow the tab order from here.
constexpr int kFirstControlId = 100;

void RegisterPageWindowClass(WNDPROC procedure) {
  WNDCLASSA windowClass{};
  if (GetClassInfoA(ModuleInstance(), kPageClass, &windowClass) != FALSE) return;
  windowClass.lpfnWndProc = procedure;
  // A dialog window without a dialog procedure: the dialog manager moves the focus for Tab and
  // the labels' access keys (WM_NEXTDLGCTL) and restores it when the frame is activated again.
  windowClass.cbWndExtra = DLGWINDOWEXTRA;
  windowClass.hInstance = ModuleInstance();
  windowClass.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
  windowClass.lpszClassName = kPageClass;
  if (RegisterClassA(&windowClass) == 0) throw ComFailure(HRESULT_FROM_WIN32(GetLastError()));
}

// Marks the control whose window reports the user's edit for as long as the model handles it.
class ForwardingScope {
 public:
  ForwardingScope(const PageControl*& forwarding, const PageControl& control)
      : forwarding_(forwarding), outer_(forwarding) {
    forwarding_ = &control;
  }
  ~ForwardingScope() { forwarding_ = outer_; }
  ForwardingScope(const ForwardingScope&) = delete;
  ForwardingScope& operator=(const ForwardingScope&) = delete;

 private:
  const PageControl*& forwarding_;
  const PageControl* outer_;
};

}  // namespace

PageView::PageView(GeneralPage& page, HWND parent, const RECT& position) : page_(page) {
  RegisterPageWindowClass(&PageProc);
  // Tab moves into and out of the page as through a dialog inside the frame.
  window_ = CreateWindowExA(WS_EX_CONTROLPARENT, kPageClass, nullptr, WS_CHILD | WS_CLIPCHILDREN,
                            position.left, position.top, position.right - position.left,
                            position.bottom - position.top, parent, nullptr, ModuleInstance(),
                            this);
  if (window_ == nullptr) throw ComFailure(HRESULT_FROM_WIN32(GetLastError()));
  try {
    CreateControls();
  } catch (...) {
    DestroyWindow(window_);
    throw;
  }
}

PageView::~PageView() { DestroyWindow(window_); }

void PageView::CreateControls() {
  const auto font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
  int id = kFirstControlId;
  for (const PageControl* control : page_.Controls()) {
    HWND window = CreateNativeControl(*control, window_, id++, font);
    controls_.push_back(window);
    if (control->Kind() == PageControlKind::TextBox) {
      // Typed characters pass the box's KeyPress before the edit control sees them.
      SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
      editProc_ = reinterpret_cast<WNDPROC>(
          SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&BoxProc)));
    }
  }
  for (const PageControl* control : page_.Controls()) Update(*control);
}

void PageView::Move(const RECT& position) const {
  MoveWindow(window_, position.left, position.top, position.right - position.left,
             position.bottom - position.top, TRUE);
}

void PageView::Update(const PageControl& control) {
  if (&control == forwarding_) return;
  const std::span<PageControl* const> controls = page_.Controls();
  for (std::size_t i = 0; i < controls.size() && i < controls_.size(); ++i) {
    if (controls[i] == &control) UpdateNativeControl(controls_[i], control);
  }
}

bool PageView::TranslateKey(MSG& message) const {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
  // Enter and Escape belong to the frame's OK and Cancel buttons.
  const bool dialogKey = message.wParam == VK_RETURN || message.wParam == VK_ESCAPE;
  if (message.message == WM_KEYDOWN && dialogKey) return false;
  return IsDialogMessageA(window_, &message) != FALSE;
}

PageView* PageView::FromWindow(HWND window) {
  return reinterpret_cast<PageView*>(GetWindowLongPtrA(window, GWLP_USERDATA));
}

PageControl* PageView::ControlOf(HWND window) const {
  const int index = GetDlgCtrlID(window) - kFirstControlId;
  if (index < 0 || static_cast<std::size_t>(index) >= controls_.size()) return nullptr;
  if (controls_[static_cast<std::size_t>(index)] != window) return nullptr;
  return page_.Controls()[static_cast<std::size_t>(index)];
}

void PageView::OnCommand(HWND window, UINT code) {
  PageControl* control = ControlOf(window);
  if (control == nullptr) return;
  switch (control->Kind()) {
    case PageControlKind::TextBox:
      OnBoxCommand(window, static_cast<TextBox&>(*control), code);
      break;
    case PageControlKind::DropDownList:
      if (code == CBN_SELCHANGE) {
        static_cast<DropDownList&>(*control).SetListIndex(
            static_cast<int>(SendMessageA(window, CB_GETCURSEL, 0, 0)));
      }
      break;
    case PageControlKind::CheckBox:
      // The check box has toggled itself; the model follows and agrees.
      if (code == BN_CLICKED) static_cast<CheckBox&>(*control).Toggle();
      break;
    case PageControlKind::Label:
      break;
  }
}

void PageView::OnBoxCommand(HWND window, TextBox& box, UINT code) {
  if (code == EN_CHANGE) {
    ForwardingScope forwarding(forwarding_, box);
    box.SetText(WindowText(window));
  } else if (code == EN_KILLFOCUS) {
    {
      // The box's handler starts from where the user left the selection.
      ForwardingScope forwarding(forwarding_, box);
      const EditSelection selection = SelectionOf(window);
      box.SetSelection(selection.start, selection.length);
    }
    box.LostFocus();
  }
}

// A key the box's handler refuses (replaces with 0) never reaches the edit control.
LRESULT PageView::OnBoxCharacter(HWND window, WPARAM character, LPARAM lParam) {
  const PageControl* control = ControlOf(window);
  auto keyAscii = static_cast<std::int16_t>(character);
  if (control != nullptr) static_cast<const TextBox&>(*control).KeyPress(keyAscii);
  if (keyAscii == 0) return 0;
  return CallWindowProcA(editProc_, window, WM_CHAR,
                         static_cast<WPARAM>(static_cast<std::uint16_t>(keyAscii)), lParam);
}

// Input never throws: a failing handler leaves the page as it was.
LRESULT CALLBACK PageView::PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTA*>(lParam);
    SetWindowLongPtrA(window, GWLP_USERDATA,
                      reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
  }
  PageView* view = FromWindow(window);
  if (message == WM_COMMAND && view != nullptr && lParam != 0) {
    try {
      view->OnCommand(reinterpret_cast<HWND>(lParam), HIWORD(wParam));
    } catch (...) {
    }
    return 0;
  }
  return DefDlgProcA(window, message, wParam, lParam);
}

LRESULT CALLBACK PageView::BoxProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  PageView* view = FromWindow(window);
  if (message == WM_CHAR) {
    try {
      return view->OnBoxCharacter(window, wParam, lParam);
    } catch (...) {
      return 0;
    }
  }
  return CallWindowProcA(view->editProc_, window, message, wParam, lParam);
}

void UnregisterPageWindowClass() { UnregisterClassA(kPageClass, ModuleInstance()); }

}  // namespace glyphon::activex
