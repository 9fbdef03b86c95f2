// IOleObject: siting, verbs, extent and the container's advise sinks.
#include "activex/com_error.h"
#include "activex/glyphon_object.h"
#include "activex/guids.h"
#include "activex/registration.h"

namespace glyphon::activex {

STDMETHODIMP GlyphonObject::SetClientSite(IOleClientSite* site) {
  site_.AttachClientSite(site);
  return S_OK;
}

STDMETHODIMP GlyphonObject::GetClientSite(IOleClientSite** site) {
  if (site == nullptr) return E_POINTER;
  *site = site_.ClientSite();
  if (*site != nullptr) (*site)->AddRef();
  return S_OK;
}

STDMETHODIMP GlyphonObject::SetHostNames(LPCOLESTR /*application*/, LPCOLESTR /*document*/) {
  return S_OK;
}

STDMETHODIMP GlyphonObject::Close(DWORD saveOption) {
  IOleClientSite* site = site_.ClientSite();
  if (dirty_ && site != nullptr &&
      (saveOption == OLECLOSE_SAVEIFDIRTY || saveOption == OLECLOSE_PROMPTSAVE)) {
    site->SaveObject();
  }
  InPlaceDeactivate();
  if (adviseHolder_ != nullptr) adviseHolder_->SendOnClose();
  return S_OK;
}

STDMETHODIMP GlyphonObject::SetMoniker(DWORD /*which*/, IMoniker* /*moniker*/) { return E_NOTIMPL; }

STDMETHODIMP GlyphonObject::GetMoniker(DWORD /*assign*/, DWORD /*which*/, IMoniker** moniker) {
  if (moniker != nullptr) *moniker = nullptr;
  return E_NOTIMPL;
}

STDMETHODIMP GlyphonObject::InitFromData(IDataObject* /*data*/, BOOL /*creation*/,
                                         DWORD /*reserved*/) {
  return E_NOTIMPL;
}

STDMETHODIMP GlyphonObject::GetClipboardData(DWORD /*reserved*/, IDataObject** data) {
  if (data != nullptr) *data = nullptr;
  return E_NOTIMPL;
}

STDMETHODIMP GlyphonObject::DoVerb(LONG verb, LPMSG /*message*/, IOleClientSite* /*site*/,
                                   LONG /*index*/, HWND /*parent*/, LPCRECT /*position*/) {
  return Guarded([&] {
    switch (verb) {
      case OLEIVERB_PRIMARY:
      case OLEIVERB_SHOW:
      case OLEIVERB_UIACTIVATE:
        return ActivateInPlace(true);
      case OLEIVERB_INPLACEACTIVATE:
        return ActivateInPlace(false);
      case OLEIVERB_HIDE:
        ShowWindow(site_.Window(), SW_HIDE);
        return S_OK;
      default:
        return static_cast<HRESULT>(OLEOBJ_S_INVALIDVERB);
    }
  });
}

STDMETHODIMP GlyphonObject::EnumVerbs(IEnumOLEVERB** verbs) {
  return OleRegEnumVerbs(kGlyphonClassId, verbs);
}

STDMETHODIMP GlyphonObject::Update() { return S_OK; }

STDMETHODIMP GlyphonObject::IsUpToDate() { return S_OK; }

STDMETHODIMP GlyphonObject::GetUserClassID(CLSID* classId) { return GetClassID(classId); }

STDMETHODIMP GlyphonObject::GetUserType(DWORD form, LPOLESTR* name) {
  return OleRegGetUserType(kGlyphonClassId, form, name);
}

// Until the container places the window, the extent is its size.
STDMETHODIMP GlyphonObject::SetExtent(DWORD aspect, SIZEL* size) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (size == nullptr) return E_POINTER;
  extent_ = *size;
  if (!inPlaceActive_) {
    HDC screen = GetDC(nullptr);
    const int width = MulDiv(size->cx, GetDeviceCaps(screen, LOGPIXELSX), 2540);
    const int height = MulDiv(size->cy, GetDeviceCaps(screen, LOGPIXELSY), 2540);
    ReleaseDC(nullptr, screen);
    PlaceWindow(RECT{0, 0, width, height});
  }
  return S_OK;
}

STDMETHODIMP GlyphonObject::GetExtent(DWORD aspect, SIZEL* size) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (size == nullptr) return E_POINTER;
  *size = extent_;
  return S_OK;
}

STDMETHODIMP GlyphonObject::Advise(IAdviseSink* sink, DWORD* connection) {
  if (adviseHolder_ == nullptr) {
    const HRESULT created = CreateOleAdviseHolder(adviseHolder_.GetAddressOf());
    if (FAILED(created)) return created;
  }
  return adviseHolder_->Advise(sink, connection);
}

STDMETHODIMP GlyphonObject::Unadvise(DWORD connection) {
  if (adviseHolder_ == nullptr) return OLE_E_NOCONNECTION;
  return adviseHolder_->Unadvise(connection);
}

STDMETHODIMP GlyphonObject::EnumAdvise(IEnumSTATDATA** advise) {
  if (advise == nullptr) return E_POINTER;
  *advise = nullptr;
  if (adviseHolder_ == nullptr) return S_OK;
  return adviseHolder_->EnumAdvise(advise);
}

STDMETHODIMP GlyphonObject::GetMiscStatus(DWORD /*aspect*/, DWORD* status) {
  if (status == nullptr) return E_POINTER;
  *status = kMiscStatus;
  return S_OK;
}

STDMETHODIMP GlyphonObject::SetColorScheme(LOGPALETTE* /*palette*/) { return E_NOTIMPL; }

}  // namespace glyphon::activex
