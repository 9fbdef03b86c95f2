// The COM object of the General property page: the page's model behind IPropertyPage, with the
// selected controls bound late through their IDispatch, and a view of system controls while
// the property frame shows the page. The frame hears through its page site when the page
// becomes dirty.
#pragma once

#include <memory>
#include <vector>

#include "activex/page/dispatch_object.h"
#include "activex/page/page_view.h"
#include "activex/windows_api.h"

namespace glyphon::activex {

HRESULT CreateGeneralPageObject(REFIID id, void** object);

class GeneralPageObject final : public IPropertyPage, private GeneralPageListener {
 public:
  GeneralPageObject();
  ~GeneralPageObject();
  GeneralPageObject(const GeneralPageObject&) = delete;
  GeneralPageObject& operator=(const GeneralPageObject&) = delete;

  // ---- IUnknown ----
  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;

  // ---- IPropertyPage ----
  STDMETHODIMP SetPageSite(IPropertyPageSite* site) override;
  STDMETHODIMP Activate(HWND parent, LPCRECT position, BOOL modal) override;
  STDMETHODIMP Deactivate() override;
  STDMETHODIMP GetPageInfo(PROPPAGEINFO* info) override;
  STDMETHODIMP SetObjects(ULONG count, IUnknown** objects) override;
  STDMETHODIMP Show(UINT command) override;
  STDMETHODIMP Move(LPCRECT position) override;
  STDMETHODIMP IsPageDirty() override;
  STDMETHODIMP Apply() override;
  STDMETHODIMP Help(LPCOLESTR helpFolder) override;
  STDMETHODIMP TranslateAccelerator(MSG* message) override;

 private:
  // ---- GeneralPageListener ----
  void ControlChanged(const PageControl& control) override;
  void PageChanged(bool changed) override;

  ULONG references_ = 1;
  GeneralPage page_;
  // The page keeps pointers to these until the next selection.
  std::vector<std::unique_ptr<DispatchObject>> selection_;
  ComPtr<IPropertyPageSite> site_;
  std::unique_ptr<PageView> view_;
};

}  // namespace glyphon::activex
