#include "tests/activex/page_frame.h"

namespace glyphon::activex::testing {

namespace {

PromptAnswer* activeAnswer = nullptr;

// The text of the static control that shows a message box's question.
constexpr int kMessageBoxTextId = 0xFFFF;

std::string Narrow(const std::wstring& text) {
  std::string narrow;
  for (const wchar_t c : text) narrow += static_cast<char>(c);
  return narrow;
}

}  // namespace

STDMETHODIMP PageSite::QueryInterface(REFIID id, void** object) {
  if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IPropertyPageSite)) {
    *object = static_cast<IPropertyPageSite*>(this);
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

STDMETHODIMP PageSite::OnStatusChange(DWORD flags) {
  statusChanges.push_back(flags);
  return S_OK;
}

STDMETHODIMP PageSite::GetLocaleID(LCID* locale) {
  *locale = LOCALE_USER_DEFAULT;
  return S_OK;
}

STDMETHODIMP PageSite::GetPageContainer(IUnknown** container) {
  *container = nullptr;
  return E_NOTIMPL;
}

STDMETHODIMP PageSite::TranslateAccelerator(MSG*) { return S_FALSE; }

PromptAnswer::PromptAnswer(int answer) : answer_(answer), timer_(SetTimer(nullptr, 0, 20, &Tick)) {
  activeAnswer = this;
}

PromptAnswer::~PromptAnswer() {
  KillTimer(nullptr, timer_);
  activeAnswer = nullptr;
}

// Timers run inside the message box's own message loop.
void CALLBACK PromptAnswer::Tick(HWND, UINT, UINT_PTR, DWORD) {
  if (activeAnswer != nullptr && activeAnswer->owner == nullptr) {
    EnumThreadWindows(GetCurrentThreadId(), &Answer, reinterpret_cast<LPARAM>(activeAnswer));
  }
}

BOOL CALLBACK PromptAnswer::Answer(HWND window, LPARAM answer) {
  wchar_t className[16] = {};
  GetClassNameW(window, className, 16);
  if (wcscmp(className, L"#32770") != 0 || !IsWindowVisible(window)) return TRUE;
  auto& self = *reinterpret_cast<PromptAnswer*>(answer);
  self.text = TextOf(GetDlgItem(window, kMessageBoxTextId));
  self.title = TextOf(window);
  self.owner = GetWindow(window, GW_OWNER);
  PostMessageW(window, WM_COMMAND, MAKEWPARAM(self.answer_, BN_CLICKED), 0);
  return FALSE;
}

VetoingObject::VetoingObject(IDispatch& control, const wchar_t* vetoed, EXCEPINFO exception)
    : control_(control), exception_(exception) {
  auto* names = const_cast<LPOLESTR>(vetoed);
  control_.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &vetoed_);
}

STDMETHODIMP VetoingObject::QueryInterface(REFIID id, void** object) {
  if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch)) {
    *object = static_cast<IDispatch*>(this);
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

STDMETHODIMP VetoingObject::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

STDMETHODIMP VetoingObject::GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) {
  return control_.GetIDsOfNames(id, names, count, locale, ids);
}

STDMETHODIMP VetoingObject::Invoke(DISPID id, REFIID interfaceId, LCID locale, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* argumentError) {
  if (id == vetoed_ && (flags & DISPATCH_PROPERTYPUT) != 0) {
    *exception = exception_;
    exception->bstrSource = SysAllocString(exception_.bstrSource);
    exception->bstrDescription = SysAllocString(exception_.bstrDescription);
    return DISP_E_EXCEPTION;
  }
  return control_.Invoke(id, interfaceId, locale, flags, parameters, result, exception,
                         argumentError);
}

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
  return text;
}

std::string Describe(HWND window) {
  wchar_t className[32] = {};
  GetClassNameW(window, className, 32);
  std::string description = Narrow(className) + " " + Narrow(TextOf(window));
  if (_wcsicmp(className, L"Button") == 0) {
    description +=
        SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED ? " checked" : " unchecked";
  }
  if (!IsWindowEnabled(window)) description += " disabled";
  return description;
}

std::vector<HWND> Children(HWND parent) {
  std::vector<HWND> children;
  for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    children.push_back(child);
  }
  return children;
}

}  // namespace glyphon::activex::testing
