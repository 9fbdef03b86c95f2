// The object's life, its interfaces, its window's messages, and the small interfaces that only
// describe it (class information, error information, property pages, connection points).
#include "activex/glyphon_object.h"

#include <new>

#include "activex/com_error.h"
#include "activex/guids.h"
#include "activex/module.h"
#include "activex/type_library.h"

namespace glyphon::activex {

namespace {

// The size of a new button (its window starts at 81 by 25 pixels) at 96 pixels per inch, in
// HiMetric.
constexpr SIZEL kDefaultExtent{2143, 661};

template <class Interface>
HRESULT Give(Interface* given, void** object) {
  *object = given;
  given->AddRef();
  return S_OK;
}

}  // namespace

HRESULT CreateGlyphonObject(REFIID id, void** object) {
  return Guarded([&] {
    auto* created = new GlyphonObject();
    const HRESULT result = created->QueryInterface(id, object);
    created->Release();
    return result;
  });
}

GlyphonObject::GlyphonObject()
    : events_(*this, kGlyphonEventsId),
      propertyNotify_(*this, IID_IPropertyNotifySink),
      site_(parking_.Window(), events_,
            SiteAdapter::Notifications{[this](std::string_view name) { OnPropertyChanged(name); },
                                       [this] { OnAccessKeysChanged(); },
                                       [this](bool focused) { OnFocusChanged(focused); }}),
      control_(std::make_unique<Glyphon>(site_)),
      extent_(kDefaultExtent) {
  site_.Attach(control_.get());
  LockModule();
}

GlyphonObject::~GlyphonObject() {
  site_.Attach(nullptr);
  control_->Terminate();
  control_.reset();
  if (accelerators_ != nullptr) DestroyAcceleratorTable(accelerators_);
  UnlockModule();
}

// ---- IUnknown -----------------------------------------------------------------------------------

STDMETHODIMP GlyphonObject::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch) ||
      IsEqualIID(id, kGlyphonDispatchId)) {
    return Give(static_cast<IDispatch*>(this), object);
  }
  if (IsEqualIID(id, IID_IConnectionPointContainer)) {
    return Give(static_cast<IConnectionPointContainer*>(this), object);
  }
  if (IsEqualIID(id, IID_IProvideClassInfo) || IsEqualIID(id, IID_IProvideClassInfo2)) {
    return Give(static_cast<IProvideClassInfo2*>(this), object);
  }
  if (IsEqualIID(id, IID_IPersist) || IsEqualIID(id, IID_IPersistPropertyBag)) {
    return Give(static_cast<IPersistPropertyBag*>(this), object);
  }
  if (IsEqualIID(id, IID_IPersistStreamInit)) {
    return Give(static_cast<IPersistStreamInit*>(this), object);
  }
  if (IsEqualIID(id, IID_IOleObject)) return Give(static_cast<IOleObject*>(this), object);
  if (IsEqualIID(id, IID_IOleWindow) || IsEqualIID(id, IID_IOleInPlaceObject)) {
    return Give(static_cast<IOleInPlaceObject*>(this), object);
  }
  if (IsEqualIID(id, IID_IOleInPlaceActiveObject)) {
    return Give(static_cast<IOleInPlaceActiveObject*>(this), object);
  }
  if (IsEqualIID(id, IID_IOleControl)) return Give(static_cast<IOleControl*>(this), object);
  if (IsEqualIID(id, IID_IViewObject) || IsEqualIID(id, IID_IViewObject2)) {
    return Give(static_cast<IViewObject2*>(this), object);
  }
  if (IsEqualIID(id, IID_ISupportErrorInfo)) {
    return Give(static_cast<ISupportErrorInfo*>(this), object);
  }
  if (IsEqualIID(id, IID_ISpecifyPropertyPages)) {
    return Give(static_cast<ISpecifyPropertyPages*>(this), object);
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) GlyphonObject::AddRef() { return ++references_; }

STDMETHODIMP_(ULONG) GlyphonObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

// ---- IConnectionPointContainer ------------------------------------------------------------------

STDMETHODIMP GlyphonObject::EnumConnectionPoints(IEnumConnectionPoints** points) {
  return Guarded([&] { return EnumerateConnectionPoints({&events_, &propertyNotify_}, points); });
}

STDMETHODIMP GlyphonObject::FindConnectionPoint(REFIID id, IConnectionPoint** point) {
  if (point == nullptr) return E_POINTER;
  *point = nullptr;
  for (ConnectionPoint* candidate : {&events_, &propertyNotify_}) {
    if (IsEqualIID(id, candidate->InterfaceId())) {
      return Give(static_cast<IConnectionPoint*>(candidate), reinterpret_cast<void**>(point));
    }
  }
  return CONNECT_E_NOCONNECTION;
}

// ---- IProvideClassInfo2, ISupportErrorInfo, ISpecifyPropertyPages ------------------------------

STDMETHODIMP GlyphonObject::GetClassInfo(ITypeInfo** info) {
  return GetGlyphonTypeInfo(kGlyphonClassId, info);
}

STDMETHODIMP GlyphonObject::GetGUID(DWORD kind, GUID* guid) {
  if (guid == nullptr) return E_POINTER;
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
  *guid = kGlyphonEventsId;
  return S_OK;
}

STDMETHODIMP GlyphonObject::InterfaceSupportsErrorInfo(REFIID id) {
  return IsEqualIID(id, IID_IDispatch) || IsEqualIID(id, kGlyphonDispatchId) ? S_OK : S_FALSE;
}

STDMETHODIMP GlyphonObject::GetPages(CAUUID* pages) {
  if (pages == nullptr) return E_POINTER;
  pages->pElems = static_cast<GUID*>(CoTaskMemAlloc(sizeof(GUID)));
  if (pages->pElems == nullptr) {
    pages->cElems = 0;
    return E_OUTOFMEMORY;
  }
  pages->cElems = 1;
  pages->pElems[0] = kGeneralPageClassId;
  return S_OK;
}

// ---- What the control tells its container ------------------------------------------------------

void GlyphonObject::OnPropertyChanged(std::string_view name) {
  dirty_ = true;
  const MemberInfo* member = FindMember(name, MemberKind::Property);
  if (member == nullptr) return;
  for (const ComPtr<IUnknown>& sink : propertyNotify_.Sinks()) {
    ComPtr<IPropertyNotifySink> notify;
    if (SUCCEEDED(sink.As(&notify))) notify->OnChanged(member->dispId);
  }
}

void GlyphonObject::OnAccessKeysChanged() {
  if (IOleControlSite* controlSite = site_.ControlSiteObject()) {
    controlSite->OnControlInfoChanged();
  }
}

// Taking the focus (by a click, Tab or an access key) makes the control the active one.
void GlyphonObject::OnFocusChanged(bool focused) {
  if (focused) ActivateUserInterface();
  if (IOleControlSite* controlSite = site_.ControlSiteObject()) {
    controlSite->OnFocus(focused ? TRUE : FALSE);
  }
}

}  // namespace glyphon::activex
