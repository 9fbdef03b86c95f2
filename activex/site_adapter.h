// The control's container as the control sees it (ControlSite), made of the COM container's
// parts: the control's window and its device context, the delegated properties (kept here, as a
// container keeps them for its controls), ambient properties from the client site, the
// extender from the control site, and the events raised to the connection point.
#pragma once

#include <functional>
#include <string>

#include "activex/connection_point.h"
#include "activex/container_dispatch.h"
#include "activex/event_raiser.h"
#include "activex/windows_api.h"

namespace glyphon::activex {

class SiteAdapter final : public ControlSite {
 public:
  struct Notifications {
    // A persisted property changed (by its name).
    std::function<void(std::string_view)> propertyChanged;
    // The control's access keys changed.
    std::function<void()> accessKeysChanged;
  };

  SiteAdapter(HWND window, const ConnectionPoint& events, Notifications notifications);
  SiteAdapter(const SiteAdapter&) = delete;
  SiteAdapter& operator=(const SiteAdapter&) = delete;

  // Null detaches from the container.
  void AttachClientSite(IOleClientSite* site);
  IOleClientSite* ClientSite() const { return clientSite_.Get(); }
  IOleControlSite* ControlSiteObject() const { return controlSite_.Get(); }
  const std::string& AccessKeys() const { return accessKeys_; }

  // Until StopRedirect, the control paints into hdc, of that size, instead of its window.
  void RedirectDrawing(HDC hdc, int width, int height);
  void StopRedirect();

  // ---- ControlSite ----
  win::HWND hWnd() const override;
  win::HDC hDC() const override;
  double ScaleWidth() const override;
  double ScaleHeight() const override;
  bool Enabled() const override { return enabled_; }
  void SetEnabled(bool enabled) override;
  std::optional<StdFont> Font() const override { return font_; }
  void SetFont(const StdFont& font) override { font_ = font; }
  StdPicture MouseIcon() const override { return mouseIcon_; }
  void SetMouseIcon(const StdPicture& icon) override { mouseIcon_ = icon; }
  std::int16_t MousePointer() const override { return mousePointer_; }
  void SetMousePointer(std::int16_t pointer) override { mousePointer_ = pointer; }
  bool RightToLeft() const override { return rightToLeft_; }
  void SetRightToLeft(bool rightToLeft) override { rightToLeft_ = rightToLeft; }
  std::string Tag() const override { return tag_; }
  void SetTag(std::string_view tag) override { tag_ = std::string(tag); }
  void PropertyChanged(std::string_view name) override;
  void SetAccessKeys(std::string_view keys) override;
  const AmbientProperties& Ambient() const override { return ambient_; }
  Extender* GetExtender() override;
  GlyphonEvents& Events() override { return events_; }

 private:
  SIZE ClientSize() const;

  HWND window_;
  // The window's class gives it a device context of its own for its whole life.
  HDC windowDc_;
  HDC redirectDc_ = nullptr;
  SIZE redirectSize_{};
  Notifications notifications_;

  ComPtr<IOleClientSite> clientSite_;
  ComPtr<IOleControlSite> controlSite_;
  AmbientDispatch ambient_;
  ExtenderDispatch extender_;
  EventRaiser events_;

  bool enabled_ = true;
  std::optional<StdFont> font_;
  StdPicture mouseIcon_;
  std::int16_t mousePointer_ = 0;
  bool rightToLeft_ = false;
  std::string tag_;
  std::string accessKeys_;
};

}  // namespace glyphon::activex
