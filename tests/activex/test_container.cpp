#include "tests/activex/test_container.h"

#include <cstdio>
#include <stdexcept>
#include <utility>

#include "control/glyphon_metadata.h"

namespace glyphon::activex::testing {

namespace {

constexpr RECT kControlPosition{10, 10, 91, 35};
constexpr OLE_COLOR kFormBackColor = 0x00C0C0C0;

void Check(HRESULT result, const char* what) {
  if (FAILED(result)) {
    char text[128];
    std::snprintf(text, sizeof text, "%s failed: 0x%08lX", what,
                  static_cast<unsigned long>(result));
    throw std::runtime_error(text);
  }
}

DISPID IdOf(IDispatch* object, const wchar_t* name) {
  DISPID id = DISPID_UNKNOWN;
  auto* names = const_cast<LPOLESTR>(name);
  Check(object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id), "GetIDsOfNames");
  return id;
}

std::string NameOf(DISPID id, MemberKind kind) {
  for (const MemberInfo& member : GlyphonMembers()) {
    if (member.kind == kind && member.dispId == id) return std::string(member.name);
  }
  // Appended rather than added: GCC 12 warns wrongly about a literal plus a temporary string.
  std::string unknown("?");
  unknown += std::to_string(id);
  return unknown;
}

// IUnknown for the container's objects; Derived::Find answers which interfaces it has.
template <class Derived, class... Interfaces>
class Unknown : public Interfaces... {
 public:
  virtual ~Unknown() = default;
  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = static_cast<Derived*>(this)->Find(id);
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete static_cast<Derived*>(this);
    return left;
  }

 private:
  ULONG references_ = 1;
};

// IDispatch without type information, for every late-bound object here; names are the
// derived class's business, or not known at all.
template <class Derived, class... Others>
class Dispatch : public Unknown<Derived, IDispatch, Others...> {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
};

// A dispatch object with IDispatch alone.
template <class Derived>
class SimpleDispatch : public Dispatch<Derived> {
 public:
  void* Find(REFIID id) {
    if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch)) {
      return static_cast<IDispatch*>(this);
    }
    return nullptr;
  }
};

// The form as the extender's Container.
class FormObject final : public SimpleDispatch<FormObject> {
 public:
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
    ids[0] = _wcsicmp(names[0], L"BackColor") == 0 ? 1 : DISPID_UNKNOWN;
    return ids[0] == 1 ? S_OK : DISP_E_UNKNOWNNAME;
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                      UINT*) override {
    if (id != 1) return DISP_E_MEMBERNOTFOUND;
    *result = LongValue(static_cast<long>(kFormBackColor));
    return S_OK;
  }
};

class ExtenderObject final : public SimpleDispatch<ExtenderObject> {
 public:
  explicit ExtenderObject(ContainerState& state) : state_(state) {}

  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
    static const wchar_t* const kNames[] = {L"Name", L"TabStop", L"Default", L"ToolTipText",
                                            L"Container"};
    ids[0] = DISPID_UNKNOWN;
    for (int i = 0; i < 5; ++i) {
      if (_wcsicmp(names[0], kNames[i]) == 0) ids[0] = i + 1;
    }
    // A container may keep no tooltip text for its controls.
    if (ids[0] == 4 && !state_.extenderToolTipText) ids[0] = DISPID_UNKNOWN;
    return ids[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
  }

  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO*, UINT*) override {
    if ((flags & DISPATCH_PROPERTYPUT) != 0) {
      const bool value = parameters->rgvarg[0].boolVal != VARIANT_FALSE;
      if (id == 2) state_.extenderTabStop = value;
      if (id == 3) state_.extenderDefault = value;
      return id == 2 || id == 3 ? S_OK : DISP_E_MEMBERNOTFOUND;
    }
    switch (id) {
      case 1:
        *result = TextValue(state_.extenderName);
        return S_OK;
      case 2:
        *result = BoolValue(state_.extenderTabStop);
        return S_OK;
      case 3:
        *result = BoolValue(state_.extenderDefault);
        return S_OK;
      case 4:
        *result = TextValue(state_.extenderToolTipText.value_or(L""));
        return S_OK;
      case 5: {
        VariantInit(result);
        result->vt = VT_DISPATCH;
        result->pdispVal = new FormObject();
        return S_OK;
      }
      default:
        return DISP_E_MEMBERNOTFOUND;
    }
  }

 private:
  ContainerState& state_;
};

// Records the control's events and property-change notifications.
class EventSink final : public Dispatch<EventSink, IPropertyNotifySink> {
 public:
  EventSink(ContainerState& state, REFIID eventsId) : state_(state), eventsId_(eventsId) {}

  void* Find(REFIID id) {
    if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch) ||
        IsEqualIID(id, eventsId_)) {
      return static_cast<IDispatch*>(this);
    }
    if (IsEqualIID(id, IID_IPropertyNotifySink)) return static_cast<IPropertyNotifySink*>(this);
    return nullptr;
  }

  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    std::string entry = NameOf(id, MemberKind::Event);
    if (parameters->cArgs > 0) {
      entry += "(";
      for (UINT i = parameters->cArgs; i-- > 0;) {
        const VARIANT& argument = parameters->rgvarg[i];
        char text[32];
        if (argument.vt == (VT_BYREF | VT_I2)) {
          std::snprintf(text, sizeof text, "%d", *argument.piVal);
        } else if (argument.vt == (VT_BYREF | VT_R4)) {
          std::snprintf(text, sizeof text, "%g", static_cast<double>(*argument.pfltVal));
        } else {
          std::snprintf(text, sizeof text, "vt%d", argument.vt);
        }
        entry += text;
        entry += i > 0 ? "," : ")";
      }
    }
    state_.log.push_back(entry);
    // A handler may change a by-reference parameter.
    if (entry.rfind("KeyPress(", 0) == 0 && state_.replaceKeyAscii) {
      *parameters->rgvarg[0].piVal = *state_.replaceKeyAscii;
    }
    return S_OK;
  }

  STDMETHODIMP OnChanged(DISPID id) override {
    std::string entry("changed ");
    entry += NameOf(id, MemberKind::Property);
    state_.log.push_back(entry);
    return S_OK;
  }
  STDMETHODIMP OnRequestEdit(DISPID) override { return S_OK; }

 private:
  ContainerState& state_;
  IID eventsId_;
};

}  // namespace

VARIANT BoolValue(bool value) {
  VARIANT result;
  VariantInit(&result);
  result.vt = VT_BOOL;
  result.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  return result;
}

VARIANT LongValue(long value) {
  VARIANT result;
  VariantInit(&result);
  result.vt = VT_I4;
  result.lVal = value;
  return result;
}

VARIANT TextValue(const std::wstring& value) {
  VARIANT result;
  VariantInit(&result);
  result.vt = VT_BSTR;
  result.bstrVal = SysAllocString(value.c_str());
  return result;
}

ComPtr<IOleObject> NewGlyphon() {
  CLSID classId{};
  Check(CLSIDFromProgID(L"zonGlyphon.Glyphon", &classId), "CLSIDFromProgID");
  ComPtr<IOleObject> object;
  Check(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object)),
        "CoCreateInstance");
  return object;
}

VARIANT GetByName(IDispatch* object, const wchar_t* name) {
  VARIANT result;
  VariantInit(&result);
  DISPPARAMS none{};
  Check(object->Invoke(IdOf(object, name), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                       &none, &result, nullptr, nullptr),
        "property get");
  return result;
}

class Site final : public Dispatch<Site, IOleClientSite, IOleInPlaceSite, IOleControlSite> {
 public:
  Site(HWND form, const ContainerState& initial) : form_(form), state_(initial) {
    extender_.Attach(new ExtenderObject(state_));
  }

  ContainerState& State() { return state_; }

  void* Find(REFIID id) {
    if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IOleClientSite)) {
      return static_cast<IOleClientSite*>(this);
    }
    if (IsEqualIID(id, IID_IOleWindow) || IsEqualIID(id, IID_IOleInPlaceSite)) {
      return static_cast<IOleInPlaceSite*>(this);
    }
    if (IsEqualIID(id, IID_IOleControlSite)) return static_cast<IOleControlSite*>(this);
    if (IsEqualIID(id, IID_IDispatch)) return static_cast<IDispatch*>(this);
    return nullptr;
  }

  // ---- IOleClientSite ----
  STDMETHODIMP SaveObject() override { return S_OK; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  STDMETHODIMP GetContainer(IOleContainer** container) override {
    *container = nullptr;
    return E_NOINTERFACE;
  }
  STDMETHODIMP ShowObject() override { return S_OK; }
  STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
  STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

  // ---- IOleInPlaceSite ----
  STDMETHODIMP GetWindow(HWND* window) override {
    *window = form_;
    return S_OK;
  }
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnUIActivate() override { return S_OK; }
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                LPRECT position, LPRECT clip, LPOLEINPLACEFRAMEINFO info) override {
    *frame = nullptr;
    *document = nullptr;
    *position = kControlPosition;
    *clip = kControlPosition;
    info->fMDIApp = FALSE;
    info->hwndFrame = form_;
    info->haccel = nullptr;
    info->cAccelEntries = 0;
    return S_OK;
  }
  STDMETHODIMP Scroll(SIZE) override { return S_OK; }
  STDMETHODIMP OnUIDeactivate(BOOL) override { return S_OK; }
  STDMETHODIMP OnInPlaceDeactivate() override { return S_OK; }
  STDMETHODIMP DiscardUndoState() override { return S_OK; }
  STDMETHODIMP DeactivateAndUndo() override { return S_OK; }
  STDMETHODIMP OnPosRectChange(LPCRECT) override { return S_OK; }

  // ---- IOleControlSite ----
  STDMETHODIMP OnControlInfoChanged() override {
    ++state_.controlInfoChanges;
    return S_OK;
  }
  STDMETHODIMP LockInPlaceActive(BOOL) override { return S_OK; }
  STDMETHODIMP GetExtendedControl(IDispatch** extended) override {
    *extended = extender_.Get();
    extender_->AddRef();
    return S_OK;
  }
  STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP TranslateAccelerator(MSG*, DWORD) override { return S_FALSE; }
  STDMETHODIMP OnFocus(BOOL) override { return S_OK; }
  STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }

  // ---- IDispatch: the ambient properties ----
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                      UINT*) override {
    switch (id) {
      case DISPID_AMBIENT_USERMODE:
        *result = BoolValue(state_.userMode);
        return S_OK;
      case DISPID_AMBIENT_DISPLAYASDEFAULT:
        *result = BoolValue(state_.displayAsDefault);
        return S_OK;
      case DISPID_AMBIENT_FONT: {
        auto* name = const_cast<LPOLESTR>(state_.ambientFontName.c_str());
        FONTDESC description{sizeof(FONTDESC), name,  CY{},  FW_NORMAL,
                             ANSI_CHARSET,     FALSE, FALSE, FALSE};
        description.cySize.int64 = 90000;
        VariantInit(result);
        result->vt = VT_DISPATCH;
        return OleCreateFontIndirect(&description, IID_IDispatch,
                                     reinterpret_cast<void**>(&result->pdispVal));
      }
      default:
        return DISP_E_MEMBERNOTFOUND;
    }
  }

 private:
  HWND form_;
  ContainerState state_;
  ComPtr<IDispatch> extender_;
};

// ---- MemoryBag ----------------------------------------------------------------------------------

MemoryBag::~MemoryBag() {
  for (auto& [name, value] : values_) VariantClear(&value);
}

STDMETHODIMP MemoryBag::QueryInterface(REFIID id, void** object) {
  if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IPropertyBag)) {
    *object = static_cast<IPropertyBag*>(this);
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

STDMETHODIMP MemoryBag::Read(LPCOLESTR name, VARIANT* value, IErrorLog*) {
  const auto found = values_.find(name);
  if (found == values_.end()) return E_INVALIDARG;
  return VariantCopy(value, &found->second);
}

STDMETHODIMP MemoryBag::Write(LPCOLESTR name, VARIANT* value) {
  Store(name, *value);
  return S_OK;
}

const VARIANT* MemoryBag::Find(const std::wstring& name) const {
  const auto found = values_.find(name);
  return found != values_.end() ? &found->second : nullptr;
}

void MemoryBag::Store(const std::wstring& name, const VARIANT& value) {
  VARIANT& slot = values_[name];
  VariantClear(&slot);
  VariantCopy(&slot, const_cast<VARIANT*>(&value));
}

// ---- HostedGlyphon ------------------------------------------------------------------------------

HostedGlyphon::HostedGlyphon(HWND form, const ContainerState& initial, MemoryBag* bag) {
  site_.Attach(new Site(form, initial));
  object_ = NewGlyphon();
  Check(object_.As(&dispatch_), "IDispatch");

  ComPtr<IConnectionPointContainer> points;
  Check(object_.As(&points), "IConnectionPointContainer");
  ComPtr<IProvideClassInfo2> classInfo;
  Check(object_.As(&classInfo), "IProvideClassInfo2");
  Check(classInfo->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &eventsId_), "GetGUID");
  ComPtr<EventSink> sink;
  sink.Attach(new EventSink(site_->State(), eventsId_));
  ComPtr<IConnectionPoint> events;
  Check(points->FindConnectionPoint(eventsId_, &events), "events connection point");
  Check(events->Advise(static_cast<IDispatch*>(sink.Get()), &eventsCookie_), "Advise events");
  ComPtr<IConnectionPoint> notify;
  Check(points->FindConnectionPoint(IID_IPropertyNotifySink, &notify), "notify point");
  Check(notify->Advise(static_cast<IDispatch*>(sink.Get()), &notifyCookie_), "Advise notify");

  Check(object_->SetClientSite(static_cast<IOleClientSite*>(site_.Get())), "SetClientSite");
  ComPtr<IPersistPropertyBag> persist;
  Check(object_.As(&persist), "IPersistPropertyBag");
  Check(bag != nullptr ? persist->Load(bag, nullptr) : persist->InitNew(), "load");
  Check(object_->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site_.Get(), 0, form, &kControlPosition),
        "DoVerb");
  ComPtr<IOleWindow> oleWindow;
  Check(object_.As(&oleWindow), "IOleWindow");
  Check(oleWindow->GetWindow(&window_), "GetWindow");
  site_->State().log.clear();
}

HostedGlyphon::~HostedGlyphon() {
  object_->Close(OLECLOSE_NOSAVE);
  ComPtr<IConnectionPointContainer> points;
  object_.As(&points);
  ComPtr<IConnectionPoint> point;
  if (SUCCEEDED(points->FindConnectionPoint(eventsId_, &point))) point->Unadvise(eventsCookie_);
  if (SUCCEEDED(points->FindConnectionPoint(IID_IPropertyNotifySink, &point))) {
    point->Unadvise(notifyCookie_);
  }
  object_->SetClientSite(nullptr);
}

ContainerState& HostedGlyphon::State() { return site_->State(); }

std::vector<std::string> HostedGlyphon::TakeLog() { return std::exchange(State().log, {}); }

VARIANT HostedGlyphon::Get(const wchar_t* name) { return GetByName(dispatch_.Get(), name); }

HRESULT HostedGlyphon::Assign(const wchar_t* name, WORD flags, VARIANT& value,
                              EXCEPINFO* exception) {
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&value, &named, 1, 1};
  return dispatch_->Invoke(IdOf(dispatch_.Get(), name), IID_NULL, LOCALE_USER_DEFAULT, flags,
                           &parameters, nullptr, exception, nullptr);
}

HRESULT HostedGlyphon::Put(const wchar_t* name, VARIANT value, EXCEPINFO* exception) {
  const HRESULT result = Assign(name, DISPATCH_PROPERTYPUT, value, exception);
  VariantClear(&value);
  return result;
}

HRESULT HostedGlyphon::PutRef(const wchar_t* name, IDispatch* value, EXCEPINFO* exception) {
  VARIANT argument;
  VariantInit(&argument);
  argument.vt = VT_DISPATCH;
  argument.pdispVal = value;
  return Assign(name, DISPATCH_PROPERTYPUTREF, argument, exception);
}

HRESULT HostedGlyphon::Call(const wchar_t* name) {
  DISPPARAMS none{};
  return dispatch_->Invoke(IdOf(dispatch_.Get(), name), IID_NULL, LOCALE_USER_DEFAULT,
                           DISPATCH_METHOD, &none, nullptr, nullptr, nullptr);
}

long HostedGlyphon::GetLong(const wchar_t* name) {
  VARIANT value = Get(name);
  VARIANT converted;
  VariantInit(&converted);
  Check(VariantChangeType(&converted, &value, 0, VT_I4), "to long");
  VariantClear(&value);
  return converted.lVal;
}

bool HostedGlyphon::GetBool(const wchar_t* name) {
  VARIANT value = Get(name);
  if (value.vt != VT_BOOL) throw std::runtime_error("not a Boolean");
  return value.boolVal != VARIANT_FALSE;
}

std::wstring HostedGlyphon::GetText(const wchar_t* name) {
  VARIANT value = Get(name);
  if (value.vt != VT_BSTR) throw std::runtime_error("not text");
  std::wstring text(value.bstrVal, SysStringLen(value.bstrVal));
  VariantClear(&value);
  return text;
}

void HostedGlyphon::PutLong(const wchar_t* name, long value) {
  Check(Put(name, LongValue(value)), "put");
}

void HostedGlyphon::PutBool(const wchar_t* name, bool value) {
  Check(Put(name, BoolValue(value)), "put");
}

void HostedGlyphon::PutText(const wchar_t* name, const wchar_t* value) {
  Check(Put(name, TextValue(value)), "put");
}

void HostedGlyphon::SetDisplayAsDefault(bool displayAsDefault) {
  State().displayAsDefault = displayAsDefault;
  ComPtr<IOleControl> control;
  Check(object_.As(&control), "IOleControl");
  Check(control->OnAmbientPropertyChange(DISPID_AMBIENT_DISPLAYASDEFAULT), "ambient change");
}

bool HostedGlyphon::FormMnemonic(char key) {
  ComPtr<IOleControl> control;
  Check(object_.As(&control), "IOleControl");
  CONTROLINFO info{};
  info.cb = sizeof info;
  Check(control->GetControlInfo(&info), "GetControlInfo");
  std::vector<ACCEL> entries(info.cAccel);
  if (info.cAccel > 0) CopyAcceleratorTableA(info.hAccel, entries.data(), info.cAccel);
  const WORD virtualKey = LOBYTE(VkKeyScanA(key));
  for (const ACCEL& entry : entries) {
    if ((entry.fVirt & FALT) != 0 && entry.key == virtualKey) {
      MSG message{window_, WM_SYSKEYDOWN, virtualKey, 0, 0, {}};
      return control->OnMnemonic(&message) == S_OK;
    }
  }
  return false;
}

// ---- Form ---------------------------------------------------------------------------------------

Form::Form() {
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = &DefWindowProcW;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = L"GlyphonTestForm";
  RegisterClassW(&windowClass);
  window_ =
      CreateWindowExW(0, L"GlyphonTestForm", L"Form1", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 0,
                      0, 400, 300, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
}

Form::~Form() { DestroyWindow(window_); }

}  // namespace glyphon::activex::testing
