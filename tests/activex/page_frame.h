// What a property frame gives the General page in the tests: a page site that records the page's
// status changes, an answer to the style question (read, then clicked, while the question's
// modal loop runs), and an extended control that forwards to the control but refuses to set
// one property, raising an exception as an automation object does.
#pragma once

#include <windows.h>
#include <ocidl.h>
#include <wrl/client.h>

#include <string>
#include <vector>

namespace glyphon::activex::testing {

using Microsoft::WRL::ComPtr;

class PageSite final : public IPropertyPageSite {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP OnStatusChange(DWORD flags) override;
  STDMETHODIMP GetLocaleID(LCID* locale) override;
  STDMETHODIMP GetPageContainer(IUnknown** container) override;
  STDMETHODIMP TranslateAccelerator(MSG* message) override;

  std::vector<DWORD> statusChanges;
};

// While it lives, the first message box of the thread is read and answered.
class PromptAnswer {
 public:
  explicit PromptAnswer(int answer);
  ~PromptAnswer();
  PromptAnswer(const PromptAnswer&) = delete;
  PromptAnswer& operator=(const PromptAnswer&) = delete;

  // Empty and null until the question was asked.
  std::wstring text;
  std::wstring title;
  HWND owner = nullptr;

 private:
  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);
  static BOOL CALLBACK Answer(HWND window, LPARAM answer);

  int answer_;
  UINT_PTR timer_;
};

// The control's IDispatch, but setting the property named vetoed raises exception.
class VetoingObject final : public IDispatch {
 public:
  VetoingObject(IDispatch& control, const wchar_t* vetoed, EXCEPINFO exception);

  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID id, REFIID interfaceId, LCID locale, WORD flags,
                      DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                      UINT* argumentError) override;

 private:
  IDispatch& control_;
  DISPID vetoed_ = DISPID_UNKNOWN;
  EXCEPINFO exception_;
};

// The window's text.
std::wstring TextOf(HWND window);

// The window's class and text, and its state where it has one, in the form
// "Button Dr&opShadow checked" or "Static &Border Style disabled".
std::string Describe(HWND window);

// The children of a window, in tab order.
std::vector<HWND> Children(HWND parent);

}  // namespace glyphon::activex::testing
