// The part of a container that every host of ours shares: one control window placed on a parent,
// its device context, the properties the container keeps for the control (delegated properties),
// its access keys, and the translation of the window's messages into the control's notifications.
// Hosts derive from it and supply the ambient properties, the extender and the event sink.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "control/host/control_site.h"
#include "control/host/event_recorder.h"
#include "control/host/host_windows.h"
#include "control/host/hosted_control.h"

namespace glyphon {

struct SiteRect {
  // The control window's place in its parent's client area, and its client size (the container
  // reports it as real numbers; the window holds the whole of it).
  int left = 10;
  int top = 10;
  double width = 81;
  double height = 25;
};

class WindowSite : public ControlSite, protected HostWindowHandler {
 public:
  WindowSite(win::HWND parent, const SiteRect& rect, bool record);
  ~WindowSite() override;
  WindowSite(const WindowSite&) = delete;
  WindowSite& operator=(const WindowSite&) = delete;

  // The control the window's input goes to; null detaches it.
  void Attach(HostedControl* control) { control_ = control; }
  HostedControl* Control() const { return control_; }

  // ---- ControlSite ----
  win::HWND hWnd() const override { return window_; }
  win::HDC hDC() const override { return hdc_; }
  double ScaleWidth() const override { return rect_.width; }
  double ScaleHeight() const override { return rect_.height; }
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
  void PropertyChanged(std::string_view name) override { recorder_.PropertyChanged(name); }
  void SetAccessKeys(std::string_view keys) override { accessKeys_ = std::string(keys); }
  void Repainted(std::int32_t drawState) override { recorder_.Repainted(drawState); }
  GlyphonEvents& Events() override { return recorder_; }

  // ---- The container's side ----

  const SiteRect& Rect() const { return rect_; }
  // Resizes the control window (to whole pixels) and tells the control.
  void SetClientSize(double width, double height);
  const std::string& AccessKeys() const { return accessKeys_; }
  bool HasAccessKey(char key) const;
  // Alt+key for this control: when key is one of its access keys (case does not matter) and it is
  // enabled, its window takes the focus and the control is told. False if not.
  bool PressAccessKey(char key);
  // Events, property-changed notifications and repaints, in order.
  EventRecorder& Recorder() { return recorder_; }
  const EventRecorder& Recorder() const { return recorder_; }

 protected:
  // Alt+key pressed in the control window; the form may look further than this control.
  virtual bool OnAccessKey(char key) { return PressAccessKey(key); }
  // A key the form takes before the control sees it (Tab, for instance).
  virtual bool OnNavigationKey(win::UINT /*message*/, win::WPARAM /*key*/) { return false; }
  // After the control has been told of a focus change.
  virtual void OnFocusChanged() {}

  bool HandleWindowMessage(win::HWND hwnd, win::UINT message, win::WPARAM wParam,
                           win::LPARAM lParam) override;

 private:
  bool DeliverMouse(win::UINT message, win::WPARAM wParam, float x, float y);
  bool DeliverKey(win::UINT message, win::WPARAM wParam);

  win::HWND window_ = nullptr;
  win::HDC hdc_ = nullptr;
  HostedControl* control_ = nullptr;
  SiteRect rect_;
  EventRecorder recorder_;

  bool enabled_ = true;
  std::optional<StdFont> font_;
  StdPicture mouseIcon_;
  std::int16_t mousePointer_ = 0;
  bool rightToLeft_ = false;
  std::string tag_;
  std::string accessKeys_;
};

}  // namespace glyphon
