// A container kept in memory, for tests and headless use. It owns a form window and, inside it,
// the control's window, whose messages it turns into the control's notifications as a form host
// does (mouse, keys, access keys, focus, paint). It records, in order, every event raised, every
// property-changed notification and every repaint with its state:
//
//   "MouseMove(0,0,5,5)", "MouseDown(1,0,5,5)", "Click", "MouseOver", "KeyPress(97)", ...
//   "changed Caption"
//   "paint Hot", "paint Down", "paint Up"
//
// Ambient properties are settable, the extender's members can be made missing, and tests may
// install event handlers that change by-reference parameters.
//
// Create the host, then the control on it, then Attach the control; end the control first.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "control/host/control_site.h"
#include "control/host/hosted_control.h"
#include "control/host/memory_extender.h"

namespace glyphon {

struct MemoryHostOptions {
  // The control window's place in the form's client area, and its client size.
  int left = 10;
  int top = 10;
  double width = 81;
  double height = 25;
  bool userMode = true;
  // Headless users that only render switch the log off.
  bool record = true;
};

struct MemoryEventHandlers {
  std::function<void()> click;
  std::function<void(std::int16_t&, std::int16_t&, float&, float&)> mouseMove;
  std::function<void(std::int16_t&, std::int16_t&, float&, float&)> mouseDown;
  std::function<void(std::int16_t&, std::int16_t&, float&, float&)> mouseUp;
  std::function<void(std::int16_t&, std::int16_t&)> keyDown;
  std::function<void(std::int16_t&)> keyPress;
  std::function<void(std::int16_t&, std::int16_t&)> keyUp;
  std::function<void()> mouseOver;
  std::function<void()> mouseOut;
};

struct MemoryAmbient final : AmbientProperties {
  bool userMode = true;
  bool displayAsDefault = false;
  StdFont font;
  win::OLE_COLOR backColor = 0x8000000F;

  bool UserMode() const override { return userMode; }
  bool DisplayAsDefault() const override { return displayAsDefault; }
  StdFont Font() const override { return font; }
  win::OLE_COLOR BackColor() const override { return backColor; }
};

class MemoryHost final : public ControlSite, private GlyphonEvents {
 public:
  explicit MemoryHost(const MemoryHostOptions& options = {});
  ~MemoryHost() override;
  MemoryHost(const MemoryHost&) = delete;
  MemoryHost& operator=(const MemoryHost&) = delete;

  // The control the window's input goes to; null detaches it.
  void Attach(HostedControl* control) { control_ = control; }

  // ---- ControlSite ----
  win::HWND hWnd() const override { return window_; }
  win::HDC hDC() const override { return hdc_; }
  double ScaleWidth() const override { return width_; }
  double ScaleHeight() const override { return height_; }
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
  void SetAccessKeys(std::string_view keys) override { accessKeys_ = std::string(keys); }
  void Repainted(std::int32_t drawState) override;
  const AmbientProperties& Ambient() const override { return ambient_; }
  Extender* GetExtender() override { return hasExtender_ ? &extender_ : nullptr; }
  GlyphonEvents& Events() override { return *this; }

  // ---- The container's side, for tests ----

  win::HWND FormWindow() const { return form_; }
  // Resizes the control window (to the nearest whole pixels) and tells the control.
  void SetClientSize(double width, double height);
  // Ambient values; changing them tells the control nothing until AmbientChanged is called.
  MemoryAmbient& AmbientValues() { return ambient_; }
  // Changes an ambient value the way a container does: sets it, then tells the control.
  void SetDisplayAsDefault(bool displayAsDefault);
  MemoryExtender& ExtenderObject() { return extender_; }
  // Without an extender, GetExtender returns null.
  void SetHasExtender(bool hasExtender) { hasExtender_ = hasExtender; }
  const std::string& AccessKeys() const { return accessKeys_; }
  // The container's handling of Alt+key: when key is one of the control's access keys (case
  // does not matter), the control window takes the focus and the control is told. False if not.
  bool PressAccessKey(char key);

  MemoryEventHandlers& Handlers() { return handlers_; }
  const std::vector<std::string>& Log() const { return log_; }
  void ClearLog() { log_.clear(); }
  // The log so far, which is cleared.
  std::vector<std::string> TakeLog();

  // What the control window's procedure does with a message; false passes it to the default.
  bool HandleControlMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam);

 private:
  // ---- GlyphonEvents: recorded, then handed to the test's handler ----
  void Click() override;
  void MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
  void MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
  void MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
  void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;
  void KeyPress(std::int16_t& keyAscii) override;
  void KeyUp(std::int16_t& keyCode, std::int16_t& shift) override;
  void MouseOver() override;
  void MouseOut() override;

  void Record(std::string entry);

  win::HWND form_ = nullptr;
  win::HWND window_ = nullptr;
  win::HDC hdc_ = nullptr;
  HostedControl* control_ = nullptr;
  bool record_;
  int left_;
  int top_;
  double width_;
  double height_;

  bool enabled_ = true;
  std::optional<StdFont> font_;
  StdPicture mouseIcon_;
  std::int16_t mousePointer_ = 0;
  bool rightToLeft_ = false;
  std::string tag_;
  std::string accessKeys_;

  MemoryAmbient ambient_;
  MemoryExtender extender_;
  bool hasExtender_ = true;

  MemoryEventHandlers handlers_;
  std::vector<std::string> log_;
};

}  // namespace glyphon
