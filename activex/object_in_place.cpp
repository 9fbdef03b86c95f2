// In-place activation in the container's window, focus, and IOleControl: control information
// (the access keys as accelerators), mnemonics and ambient changes.
#include <vector>

#include "activex/com_error.h"
#include "activex/glyphon_object.h"

namespace glyphon::activex {

namespace {

// The name the control knows an ambient property by; empty for those it does not read.
std::string_view AmbientName(DISPID id) {
  switch (id) {
    case DISPID_AMBIENT_DISPLAYASDEFAULT:
      return "DisplayAsDefault";
    case DISPID_AMBIENT_USERMODE:
      return "UserMode";
    case DISPID_AMBIENT_FONT:
      return "Font";
    case DISPID_AMBIENT_BACKCOLOR:
      return "BackColor";
    default:
      return {};
  }
}

// The character a mnemonic message carries: WM_SYSCHAR holds it, WM_SYSKEYDOWN a virtual key.
char MnemonicCharacter(const MSG& message) {
  if (message.message == WM_SYSKEYDOWN || message.message == WM_KEYDOWN) {
    return static_cast<char>(MapVirtualKeyA(static_cast<UINT>(message.wParam), MAPVK_VK_TO_CHAR));
  }
  return static_cast<char>(message.wParam);
}

}  // namespace

HRESULT GlyphonObject::ActivateInPlace(bool uiActivate) {
  IOleClientSite* site = site_.ClientSite();
  if (site == nullptr) return E_UNEXPECTED;
  if (!inPlaceActive_) {
    ComPtr<IOleInPlaceSite> inPlaceSite;
    ThrowIfFailed(site->QueryInterface(IID_PPV_ARGS(inPlaceSite.GetAddressOf())));
    if (inPlaceSite->CanInPlaceActivate() != S_OK) return E_FAIL;
    ThrowIfFailed(inPlaceSite->OnInPlaceActivate());
    inPlaceSite_ = inPlaceSite;
    inPlaceActive_ = true;

    HWND parent = nullptr;
    ThrowIfFailed(inPlaceSite_->GetWindow(&parent));
    ComPtr<IOleInPlaceFrame> frame;
    ComPtr<IOleInPlaceUIWindow> document;
    RECT position{};
    RECT clip{};
    OLEINPLACEFRAMEINFO frameInfo{};
    frameInfo.cb = sizeof frameInfo;
    ThrowIfFailed(inPlaceSite_->GetWindowContext(frame.GetAddressOf(), document.GetAddressOf(),
                                                 &position, &clip, &frameInfo));
    SetParent(site_.Window(), parent);
    PlaceWindow(position);
    ShowWindow(site_.Window(), SW_SHOWNA);
  }
  if (uiActivate) {
    ActivateUserInterface();
    if (GetFocus() != site_.Window()) SetFocus(site_.Window());
  }
  return S_OK;
}

void GlyphonObject::ActivateUserInterface() {
  if (uiActive_ || inPlaceSite_ == nullptr) return;
  uiActive_ = true;
  inPlaceSite_->OnUIActivate();
}

void GlyphonObject::PlaceWindow(const RECT& position) {
  MoveWindow(site_.Window(), position.left, position.top, position.right - position.left,
             position.bottom - position.top, FALSE);
  control_->Resize();
}

STDMETHODIMP GlyphonObject::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = site_.Window();
  return S_OK;
}

STDMETHODIMP GlyphonObject::ContextSensitiveHelp(BOOL /*enter*/) { return E_NOTIMPL; }

STDMETHODIMP GlyphonObject::InPlaceDeactivate() {
  if (!inPlaceActive_) return S_OK;
  UIDeactivate();
  inPlaceActive_ = false;
  parking_.Park(site_.Window());
  inPlaceSite_->OnInPlaceDeactivate();
  inPlaceSite_.Reset();
  return S_OK;
}

STDMETHODIMP GlyphonObject::UIDeactivate() {
  if (!uiActive_) return S_OK;
  uiActive_ = false;
  if (inPlaceSite_ != nullptr) inPlaceSite_->OnUIDeactivate(FALSE);
  return S_OK;
}

STDMETHODIMP GlyphonObject::SetObjectRects(LPCRECT position, LPCRECT /*clip*/) {
  if (position == nullptr) return E_POINTER;
  PlaceWindow(*position);
  return S_OK;
}

STDMETHODIMP GlyphonObject::ReactivateAndUndo() { return E_NOTIMPL; }

// Keys reach the control through its window; it has no accelerators of its own to translate.
STDMETHODIMP GlyphonObject::TranslateAccelerator(LPMSG /*message*/) { return S_FALSE; }

STDMETHODIMP GlyphonObject::OnFrameWindowActivate(BOOL /*activate*/) { return S_OK; }

STDMETHODIMP GlyphonObject::OnDocWindowActivate(BOOL /*activate*/) { return S_OK; }

STDMETHODIMP GlyphonObject::ResizeBorder(LPCRECT /*border*/, IOleInPlaceUIWindow* /*window*/,
                                         BOOL /*frame*/) {
  return S_OK;
}

STDMETHODIMP GlyphonObject::EnableModeless(BOOL /*enable*/) { return S_OK; }

// ---- IOleControl --------------------------------------------------------------------------------

// Each access key is Alt with the key's own virtual key, which for letters and digits is the
// upper-case character.
STDMETHODIMP GlyphonObject::GetControlInfo(CONTROLINFO* info) {
  if (info == nullptr) return E_POINTER;
  return Guarded([&] {
    if (accelerators_ != nullptr) DestroyAcceleratorTable(accelerators_);
    accelerators_ = nullptr;
    std::vector<ACCEL> entries;
    for (const char key : site_.AccessKeys()) {
      const SHORT scan = VkKeyScanA(key);
      if (scan == -1) continue;
      entries.push_back(ACCEL{FALT | FVIRTKEY, static_cast<WORD>(scan & 0xFF), 0});
    }
    if (!entries.empty()) {
      accelerators_ = CreateAcceleratorTableA(entries.data(), static_cast<int>(entries.size()));
    }
    info->hAccel = accelerators_;
    info->cAccel = static_cast<USHORT>(accelerators_ != nullptr ? entries.size() : 0);
    // Enter clicks the focused button, so the container must not take it for its default one.
    info->dwFlags = CTRLINFO_EATS_RETURN;
    return S_OK;
  });
}

STDMETHODIMP GlyphonObject::OnMnemonic(LPMSG message) {
  if (message == nullptr) return E_POINTER;
  return site_.PressAccessKey(MnemonicCharacter(*message)) ? S_OK : S_FALSE;
}

STDMETHODIMP GlyphonObject::OnAmbientPropertyChange(DISPID id) {
  if (id == DISPID_UNKNOWN) {
    for (const DISPID each : {DISPID_AMBIENT_DISPLAYASDEFAULT, DISPID_AMBIENT_USERMODE,
                              DISPID_AMBIENT_FONT, DISPID_AMBIENT_BACKCOLOR}) {
      control_->AmbientChanged(AmbientName(each));
    }
  } else if (const std::string_view name = AmbientName(id); !name.empty()) {
    control_->AmbientChanged(name);
  }
  return S_OK;
}

// Events are raised as they happen; a container that freezes them ignores what arrives.
STDMETHODIMP GlyphonObject::FreezeEvents(BOOL /*freeze*/) { return S_OK; }

}  // namespace glyphon::activex
