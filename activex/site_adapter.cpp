#include "activex/site_adapter.h"

#include <utility>

namespace glyphon::activex {

SiteAdapter::SiteAdapter(HWND parent, const ConnectionPoint& events, Notifications notifications)
    : WindowSite(reinterpret_cast<win::HWND>(parent), SiteRect{0, 0, 81, 25}, false),
      notifications_(std::move(notifications)),
      events_(events) {}

void SiteAdapter::AttachClientSite(IOleClientSite* site) {
  clientSite_ = site;
  controlSite_.Reset();
  ComPtr<IDispatch> ambient;
  if (site != nullptr) {
    site->QueryInterface(IID_PPV_ARGS(ambient.GetAddressOf()));
    site->QueryInterface(IID_PPV_ARGS(controlSite_.GetAddressOf()));
  }
  ambient_.Attach(ambient.Get());
  extender_.Attach(nullptr);
}

void SiteAdapter::RedirectDrawing(HDC hdc, int width, int height) {
  redirectDc_ = hdc;
  redirectSize_ = SIZE{width, height};
}

void SiteAdapter::StopRedirect() { redirectDc_ = nullptr; }

win::HDC SiteAdapter::hDC() const {
  return redirectDc_ != nullptr ? reinterpret_cast<win::HDC>(redirectDc_) : WindowSite::hDC();
}

SIZE SiteAdapter::ClientSize() const {
  if (redirectDc_ != nullptr) return redirectSize_;
  RECT client{};
  GetClientRect(Window(), &client);
  return SIZE{client.right - client.left, client.bottom - client.top};
}

double SiteAdapter::ScaleWidth() const { return ClientSize().cx; }

double SiteAdapter::ScaleHeight() const { return ClientSize().cy; }

void SiteAdapter::PropertyChanged(std::string_view name) {
  if (notifications_.propertyChanged) notifications_.propertyChanged(name);
}

void SiteAdapter::SetAccessKeys(std::string_view keys) {
  WindowSite::SetAccessKeys(keys);
  if (notifications_.accessKeysChanged) notifications_.accessKeysChanged();
}

void SiteAdapter::OnFocusChanged() {
  if (notifications_.focusChanged) notifications_.focusChanged(GetFocus() == Window());
}

// The extender is asked for when first needed: a container may make it only once the control
// sits on a form.
Extender* SiteAdapter::GetExtender() {
  if (!extender_.Attached() && controlSite_ != nullptr) {
    ComPtr<IDispatch> extended;
    if (SUCCEEDED(controlSite_->GetExtendedControl(extended.GetAddressOf()))) {
      extender_.Attach(extended.Get());
    }
  }
  return extender_.Attached() ? &extender_ : nullptr;
}

}  // namespace glyphon::activex
