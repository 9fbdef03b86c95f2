// The control's container as the control sees it (ControlSite), made of the COM container's
// parts. The window, its messages and the delegated properties are a form host's usual ones
// (WindowSite); ambient properties come from the client site, the extender from the control
// site, and events go to the events connection point.
#pragma once

#include <functional>

#include "activex/connection_point.h"
#include "activex/container_dispatch.h"
#include "activex/event_raiser.h"
#include "activex/windows_api.h"
#include "control/host/window_site.h"

namespace glyphon::activex {

class SiteAdapter final : public WindowSite {
 public:
  struct Notifications {
    // A persisted property changed (by its name).
    std::function<void(std::string_view)> propertyChanged;
    // The control's access keys changed.
    std::function<void()> accessKeysChanged;
    // The control's window gained or lost the focus.
    std::function<void(bool)> focusChanged;
  };

  // The window starts as a child of parent (the parking window).
  SiteAdapter(HWND parent, const ConnectionPoint& events, Notifications notifications);

  HWND Window() const { return reinterpret_cast<HWND>(hWnd()); }

  // Null detaches from the container.
  void AttachClientSite(IOleClientSite* site);
  IOleClientSite* ClientSite() const { return clientSite_.Get(); }
  IOleControlSite* ControlSiteObject() const { return controlSite_.Get(); }

  // Until StopRedirect, the control paints into hdc, of that size, instead of its window.
  void RedirectDrawing(HDC hdc, int width, int height);
  void StopRedirect();

  // ---- ControlSite ----
  win::HDC hDC() const override;
  // The window's client size as the container placed it.
  double ScaleWidth() const override;
  double ScaleHeight() const override;
  void PropertyChanged(std::string_view name) override;
  void SetAccessKeys(std::string_view keys) override;
  const AmbientProperties& Ambient() const override { return ambient_; }
  Extender* GetExtender() override;
  GlyphonEvents& Events() override { return events_; }

 protected:
  void OnFocusChanged() override;

 private:
  SIZE ClientSize() const;

  HDC redirectDc_ = nullptr;
  SIZE redirectSize_{};
  Notifications notifications_;

  ComPtr<IOleClientSite> clientSite_;
  ComPtr<IOleControlSite> controlSite_;
  AmbientDispatch ambient_;
  ExtenderDispatch extender_;
  EventRaiser events_;
};

}  // namespace glyphon::activex
