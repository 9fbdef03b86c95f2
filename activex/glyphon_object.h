// The COM object of the control class: the Glyphon control hosted in a COM container. It keeps
// the control's window, the adapter that gives the control its container, and the two
// connection points (events and property-change notifications), and implements the
// interfaces a container and an automation client use.
#pragma once

#include <memory>

#include "activex/connection_point.h"
#include "activex/parking_window.h"
#include "activex/site_adapter.h"
#include "activex/windows_api.h"

namespace glyphon::activex {

HRESULT CreateGlyphonObject(REFIID id, void** object);

class GlyphonObject final : public IDispatch,
                            public IConnectionPointContainer,
                            public IProvideClassInfo2,
                            public IPersistPropertyBag,
                            public IPersistStreamInit,
                            public IOleObject,
                            public IOleInPlaceObject,
                            public IOleInPlaceActiveObject,
                            public IOleControl,
                            public IViewObject2,
                            public ISupportErrorInfo,
                            public ISpecifyPropertyPages {
 public:
  GlyphonObject();
  ~GlyphonObject();
  GlyphonObject(const GlyphonObject&) = delete;
  GlyphonObject& operator=(const GlyphonObject&) = delete;

  // ---- IUnknown ----
  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;

  // ---- IDispatch ----
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID id, REFIID interfaceId, LCID locale, WORD flags,
                      DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                      UINT* argumentError) override;

  // ---- IConnectionPointContainer ----
  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override;
  STDMETHODIMP FindConnectionPoint(REFIID id, IConnectionPoint** point) override;

  // ---- IProvideClassInfo2 ----
  STDMETHODIMP GetClassInfo(ITypeInfo** info) override;
  STDMETHODIMP GetGUID(DWORD kind, GUID* guid) override;

  // ---- IPersist, IPersistPropertyBag, IPersistStreamInit ----
  STDMETHODIMP GetClassID(CLSID* classId) override;
  STDMETHODIMP InitNew() override;
  STDMETHODIMP Load(IPropertyBag* bag, IErrorLog* errorLog) override;
  STDMETHODIMP Save(IPropertyBag* bag, BOOL clearDirty, BOOL saveAll) override;
  STDMETHODIMP IsDirty() override;
  STDMETHODIMP Load(LPSTREAM stream) override;
  STDMETHODIMP Save(LPSTREAM stream, BOOL clearDirty) override;
  STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) override;

  // ---- IOleObject ----
  STDMETHODIMP SetClientSite(IOleClientSite* site) override;
  STDMETHODIMP GetClientSite(IOleClientSite** site) override;
  STDMETHODIMP SetHostNames(LPCOLESTR application, LPCOLESTR document) override;
  STDMETHODIMP Close(DWORD saveOption) override;
  STDMETHODIMP SetMoniker(DWORD which, IMoniker* moniker) override;
  STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
  STDMETHODIMP InitFromData(IDataObject* data, BOOL creation, DWORD reserved) override;
  STDMETHODIMP GetClipboardData(DWORD reserved, IDataObject** data) override;
  STDMETHODIMP DoVerb(LONG verb, LPMSG message, IOleClientSite* site, LONG index, HWND parent,
                      LPCRECT position) override;
  STDMETHODIMP EnumVerbs(IEnumOLEVERB** verbs) override;
  STDMETHODIMP Update() override;
  STDMETHODIMP IsUpToDate() override;
  STDMETHODIMP GetUserClassID(CLSID* classId) override;
  STDMETHODIMP GetUserType(DWORD form, LPOLESTR* name) override;
  STDMETHODIMP SetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP GetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP Advise(IAdviseSink* sink, DWORD* connection) override;
  STDMETHODIMP Unadvise(DWORD connection) override;
  STDMETHODIMP EnumAdvise(IEnumSTATDATA** advise) override;
  STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) override;
  STDMETHODIMP SetColorScheme(LOGPALETTE* palette) override;

  // ---- IOleWindow, IOleInPlaceObject, IOleInPlaceActiveObject ----
  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL enter) override;
  STDMETHODIMP InPlaceDeactivate() override;
  STDMETHODIMP UIDeactivate() override;
  STDMETHODIMP SetObjectRects(LPCRECT position, LPCRECT clip) override;
  STDMETHODIMP ReactivateAndUndo() override;
  STDMETHODIMP TranslateAccelerator(LPMSG message) override;
  STDMETHODIMP OnFrameWindowActivate(BOOL activate) override;
  STDMETHODIMP OnDocWindowActivate(BOOL activate) override;
  STDMETHODIMP ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, BOOL frame) override;
  STDMETHODIMP EnableModeless(BOOL enable) override;

  // ---- IOleControl ----
  STDMETHODIMP GetControlInfo(CONTROLINFO* info) override;
  STDMETHODIMP OnMnemonic(LPMSG message) override;
  STDMETHODIMP OnAmbientPropertyChange(DISPID id) override;
  STDMETHODIMP FreezeEvents(BOOL freeze) override;

  // ---- IViewObject, IViewObject2 ----
  STDMETHODIMP Draw(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device,
                    HDC targetDc, HDC drawDc, LPCRECTL bounds, LPCRECTL windowBounds,
                    BOOL(STDMETHODCALLTYPE* shouldContinue)(ULONG_PTR),
                    ULONG_PTR continueArgument) override;
  STDMETHODIMP GetColorSet(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device,
                           HDC targetDc, LOGPALETTE** colors) override;
  STDMETHODIMP Freeze(DWORD aspect, LONG index, void* aspectInfo, DWORD* freeze) override;
  STDMETHODIMP Unfreeze(DWORD freeze) override;
  STDMETHODIMP SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
  STDMETHODIMP GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
  STDMETHODIMP GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* device, LPSIZEL size) override;

  // ---- ISupportErrorInfo, ISpecifyPropertyPages ----
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) override;
  STDMETHODIMP GetPages(CAUUID* pages) override;

 private:
  // Persistence: a second load or a load after InitNew is refused, as containers expect.
  HRESULT LoadFrom(PropertyBag& bag);
  void OnPropertyChanged(std::string_view name);
  void OnAccessKeysChanged();
  void OnFocusChanged(bool focused);

  // Activation, focus and access keys.
  HRESULT ActivateInPlace(bool uiActivate);
  void ActivateUserInterface();
  // Moves the window in its parent and tells the control its new size.
  void PlaceWindow(const RECT& position);

  // Late binding.
  HRESULT InvokeMember(const MemberInfo& member, WORD flags, DISPPARAMS& parameters,
                       VARIANT* result, UINT* argumentError);

  ULONG references_ = 1;
  ParkingLease parking_;
  ConnectionPoint events_;
  ConnectionPoint propertyNotify_;
  SiteAdapter site_;
  std::unique_ptr<Glyphon> control_;

  ComPtr<IOleInPlaceSite> inPlaceSite_;
  ComPtr<IOleAdviseHolder> adviseHolder_;
  ComPtr<IAdviseSink> viewSink_;
  DWORD viewAspects_ = 0;
  DWORD viewAdviseFlags_ = 0;
  HACCEL accelerators_ = nullptr;
  SIZEL extent_{};
  bool loaded_ = false;
  bool dirty_ = false;
  bool inPlaceActive_ = false;
  bool uiActive_ = false;
};

}  // namespace glyphon::activex
