#include "activex/site_adapter.h"

#include <utility>

namespace glyphon::activex {

SiteAdapter::SiteAdapter(HWND window, const ConnectionPoint& events, Notifications notifications)
    : window_(window),
      windowDc_(GetDC(window)),
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

win::HWND SiteAdapter::hWnd() const { return reinterpret_cast<win::HWND>(window_); }

win::HDC SiteAdapter::hDC() const {
  return reinterpret_cast<win::HDC>(redirectDc_ != nullptr ? redirectDc_ : windowDc_);
}

SIZE SiteAdapter::ClientSize() const {
  if (redirectDc_ != nullptr) return redirectSize_;
  RECT client{};
  GetClientRect(window_, &client);
  return SIZE{client.right - client.left, client.bottom - client.top};
}

double SiteAdapter::ScaleWidth() const { return ClientSize().cx; }

double SiteAdapter::ScaleHeight() const { return ClientSize().cy; }

void SiteAdapter::SetEnabled(bool enabled) {
  enabled_ = enabled;
  EnableWindow(window_, enabled ? TRUE : FALSE);
}

void SiteAdapter::PropertyChanged(std::string_view name) {
  if (notifications_.propertyChanged) notifications_.propertyChanged(name);
}

void SiteAdapter::SetAccessKeys(std::string_view keys) {
  accessKeys_ = std::string(keys);
  if (notifications_.accessKeysChanged) notifications_.accessKeysChanged();
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
