#include "activex/page/native_controls.h"

#include <vector>

#include "activex/com_error.h"
#include "activex/module.h"

namespace glyphon::activex {

namespace {

// The height of a list's drop-down part below its field.
constexpr int kDropDownHeight = 160;
// A list's field is its item height and a 3-pixel border above and below.
constexpr int kListFieldBorders = 6;

struct NativeKind {
  const char* windowClass;
  DWORD style;
  DWORD extendedStyle;
};

NativeKind KindOf(PageControlKind kind) {
  switch (kind) {
    case PageControlKind::Label:
      return {"STATIC", SS_LEFT, 0};
    case PageControlKind::TextBox:
      return {"EDIT", WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE};
    case PageControlKind::DropDownList:
      return {"COMBOBOX", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, 0};
    case PageControlKind::CheckBox:
      break;
  }
  return {"BUTTON", WS_TABSTOP | BS_AUTOCHECKBOX, 0};
}

void UpdateText(HWND window, const TextBox& box) {
  if (WindowText(window) != box.Text()) SetWindowTextA(window, box.Text().c_str());
  const EditSelection selection = SelectionOf(window);
  if (selection.start != box.SelStart() || selection.length != box.SelLength()) {
    SendMessageA(window, EM_SETSEL, static_cast<WPARAM>(box.SelStart()),
                 static_cast<LPARAM>(box.SelStart() + box.SelLength()));
  }
}

std::vector<std::string> ListItems(HWND window) {
  const auto count = static_cast<int>(SendMessageA(window, CB_GETCOUNT, 0, 0));
  std::vector<std::string> items;
  for (int i = 0; i < count; ++i) {
    std::string item(static_cast<std::size_t>(SendMessageA(window, CB_GETLBTEXTLEN, i, 0)), '\0');
    // The buffer needs room for the terminating null, which std::string keeps beyond its size.
    SendMessageA(window, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(item.data()));
    items.push_back(std::move(item));
  }
  return items;
}

void UpdateList(HWND window, const DropDownList& list) {
  if (ListItems(window) != list.Items()) {
    SendMessageA(window, CB_RESETCONTENT, 0, 0);
    for (const std::string& item : list.Items()) {
      SendMessageA(window, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
    }
  }
  // CB_ERR (-1) and DropDownList::kNoSelection both mean no item.
  if (SendMessageA(window, CB_GETCURSEL, 0, 0) != list.ListIndex()) {
    SendMessageA(window, CB_SETCURSEL, static_cast<WPARAM>(list.ListIndex()), 0);
  }
}

void UpdateCheck(HWND window, const CheckBox& check) {
  const WPARAM state = check.Value() == CheckBox::kChecked ? BST_CHECKED : BST_UNCHECKED;
  if (static_cast<WPARAM>(SendMessageA(window, BM_GETCHECK, 0, 0)) != state) {
    SendMessageA(window, BM_SETCHECK, state, 0);
  }
}

}  // namespace

HWND CreateNativeControl(const PageControl& control, HWND parent, int id, HFONT font) {
  const NativeKind kind = KindOf(control.Kind());
  const win::RECT& bounds = control.Bounds();
  const int fieldHeight = bounds.bottom - bounds.top;
  const bool isList = control.Kind() == PageControlKind::DropDownList;
  // A list's window height includes its drop-down part.
  const int height = isList ? fieldHeight + kDropDownHeight : fieldHeight;
  const std::string caption(control.Caption());
  HWND window = CreateWindowExA(kind.extendedStyle, kind.windowClass, caption.c_str(),
                                WS_CHILD | WS_VISIBLE | kind.style, bounds.left, bounds.top,
                                bounds.right - bounds.left, height, parent,
                                reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                ModuleInstance(), nullptr);
  if (window == nullptr) throw ComFailure(HRESULT_FROM_WIN32(GetLastError()));
  SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  // The field itself fills the bounds.
  if (isList) {
    SendMessageA(window, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1),
                 fieldHeight - kListFieldBorders);
  }
  return window;
}

void UpdateNativeControl(HWND window, const PageControl& control) {
  if ((IsWindowEnabled(window) != FALSE) != control.Enabled()) {
    EnableWindow(window, control.Enabled() ? TRUE : FALSE);
  }
  switch (control.Kind()) {
    case PageControlKind::TextBox:
      UpdateText(window, static_cast<const TextBox&>(control));
      break;
    case PageControlKind::DropDownList:
      UpdateList(window, static_cast<const DropDownList&>(control));
      break;
    case PageControlKind::CheckBox:
      UpdateCheck(window, static_cast<const CheckBox&>(control));
      break;
    case PageControlKind::Label:
      break;
  }
}

std::string WindowText(HWND window) {
  std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)), '\0');
  if (!text.empty()) {
    text.resize(static_cast<std::size_t>(
        GetWindowTextA(window, text.data(), static_cast<int>(text.size()) + 1)));
  }
  return text;
}

EditSelection SelectionOf(HWND edit) {
  DWORD start = 0;
  DWORD end = 0;
  SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return {static_cast<int>(start), static_cast<int>(end - start)};
}

}  // namespace glyphon::activex
