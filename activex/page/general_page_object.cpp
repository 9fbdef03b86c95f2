#include "activex/page/general_page_object.h"

#include <algorithm>
#include <string>
#include <utility>

#include "activex/com_error.h"
#include "activex/error_info.h"
#include "activex/module.h"
#include "activex/text.h"

namespace glyphon::activex {

namespace {

LPOLESTR CopyToTaskMemory(std::string_view text) {
  const std::wstring wide = Widen(text);
  const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
  auto* copy = static_cast<LPOLESTR>(CoTaskMemAlloc(bytes));
  if (copy == nullptr) throw ComFailure(E_OUTOFMEMORY);
  std::copy(wide.c_str(), wide.c_str() + wide.size() + 1, copy);
  return copy;
}

}  // namespace

HRESULT CreateGeneralPageObject(REFIID id, void** object) {
  return Guarded([&] {
    auto* created = new GeneralPageObject();
    const HRESULT result = created->QueryInterface(id, object);
    created->Release();
    return result;
  });
}

GeneralPageObject::GeneralPageObject() {
  page_.SetListener(this);
  LockModule();
}

GeneralPageObject::~GeneralPageObject() {
  view_.reset();
  page_.SetListener(nullptr);
  UnlockModule();
}

// ---- IUnknown -----------------------------------------------------------------------------------

STDMETHODIMP GeneralPageObject::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IPropertyPage)) {
    *object = static_cast<IPropertyPage*>(this);
    AddRef();
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) GeneralPageObject::AddRef() { return ++references_; }

STDMETHODIMP_(ULONG) GeneralPageObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

// ---- IPropertyPage ------------------------------------------------------------------------------

STDMETHODIMP GeneralPageObject::SetPageSite(IPropertyPageSite* site) {
  site_ = site;
  return S_OK;
}

STDMETHODIMP GeneralPageObject::Activate(HWND parent, LPCRECT position, BOOL /*modal*/) {
  if (position == nullptr) return E_POINTER;
  if (view_ != nullptr) return E_UNEXPECTED;
  return Guarded([&] {
    view_ = std::make_unique<PageView>(page_, parent, *position);
    // The style question comes from the page, under the component's name.
    page_.SetPromptOwner(reinterpret_cast<win::HWND>(view_->Window()),
                         std::string(kLibraryName));
    return S_OK;
  });
}

STDMETHODIMP GeneralPageObject::Deactivate() {
  page_.SetPromptOwner(nullptr, {});
  view_.reset();
  return S_OK;
}

STDMETHODIMP GeneralPageObject::GetPageInfo(PROPPAGEINFO* info) {
  if (info == nullptr) return E_POINTER;
  return Guarded([&] {
    *info = PROPPAGEINFO{};
    info->cb = sizeof(PROPPAGEINFO);
    info->pszTitle = CopyToTaskMemory(GeneralPage::kCaption);
    info->size = SIZE{GeneralPage::kWidth, GeneralPage::kHeight};
    return S_OK;
  });
}

// The frame hands in the selected controls (or their extended controls); the page reads and
// writes them by name through IDispatch.
STDMETHODIMP GeneralPageObject::SetObjects(ULONG count, IUnknown** objects) {
  if (count > 0 && objects == nullptr) return E_POINTER;
  return Guarded([&] {
    std::vector<std::unique_ptr<DispatchObject>> selection;
    for (ULONG i = 0; i < count; ++i) {
      if (objects[i] == nullptr) return E_POINTER;
      ComPtr<IDispatch> dispatch;
      ThrowIfFailed(objects[i]->QueryInterface(IID_PPV_ARGS(dispatch.GetAddressOf())));
      selection.push_back(std::make_unique<DispatchObject>(std::move(dispatch)));
    }
    std::vector<LateBoundObject*> selected;
    for (const auto& object : selection) selected.push_back(object.get());
    // The previous objects live until the page has let go of them.
    selection_.swap(selection);
    try {
      page_.SelectionChanged(selected);
    } catch (const AutomationError& error) {
      return ReportError(error, IID_IPropertyPage);
    }
    return S_OK;
  });
}

STDMETHODIMP GeneralPageObject::Show(UINT command) {
  if (view_ == nullptr) return E_UNEXPECTED;
  view_->Show(static_cast<int>(command));
  return S_OK;
}

STDMETHODIMP GeneralPageObject::Move(LPCRECT position) {
  if (position == nullptr) return E_POINTER;
  if (view_ == nullptr) return E_UNEXPECTED;
  view_->Move(*position);
  return S_OK;
}

STDMETHODIMP GeneralPageObject::IsPageDirty() { return page_.Changed() ? S_OK : S_FALSE; }

// Only a changed page writes: applying an unchanged one would set every property again.
STDMETHODIMP GeneralPageObject::Apply() {
  if (!page_.Changed()) return S_OK;
  return Guarded([&] {
    try {
      page_.ApplyChanges();
    } catch (const AutomationError& error) {
      return ReportError(error, IID_IPropertyPage);
    }
    return S_OK;
  });
}

// The page has no help of its own; the frame uses what GetPageInfo gave (nothing).
STDMETHODIMP GeneralPageObject::Help(LPCOLESTR /*helpFolder*/) { return E_NOTIMPL; }

STDMETHODIMP GeneralPageObject::TranslateAccelerator(MSG* message) {
  if (message == nullptr) return E_POINTER;
  if (view_ == nullptr) return E_UNEXPECTED;
  return view_->TranslateKey(*message) ? S_OK : S_FALSE;
}

// ---- What the page tells its view and its frame -------------------------------------------------

void GeneralPageObject::ControlChanged(const PageControl& control) {
  if (view_ != nullptr) view_->Update(control);
}

void GeneralPageObject::PageChanged(bool changed) {
  if (changed && site_ != nullptr) site_->OnStatusChange(PROPPAGESTATUS_DIRTY);
}

}  // namespace glyphon::activex
