// A container kept in memory, for tests and headless use: a form window with one control window
// on it, whose messages it turns into the control's notifications as a form host does (mouse,
// keys, access keys, focus, paint). It records, in order, every event raised, every
// property-changed notification and every repaint with its state (see EventRecorder).
//
// Ambient properties are settable, the extender's members can be made missing, and tests may
// install event handlers that change by-reference parameters.
//
// Create the host, then the control on it, then Attach the control; end the control first.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "control/host/form_window.h"
#include "control/host/memory_extender.h"
#include "control/host/window_site.h"

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

namespace detail {
// The form is a base listed before the site, so that it exists when the site's window is made in
// it and goes after the site's window.
struct MemoryHostForm {
  explicit MemoryHostForm(const MemoryHostOptions& options);
  FormWindow form;
};
}  // namespace detail

class MemoryHost final : private detail::MemoryHostForm, public WindowSite {
 public:
  explicit MemoryHost(const MemoryHostOptions& options = {});

  // ---- ControlSite ----
  const AmbientProperties& Ambient() const override { return ambient_; }
  Extender* GetExtender() override { return hasExtender_ ? &extender_ : nullptr; }

  // ---- The container's side, for tests ----

  win::HWND FormWindow() const { return form.hWnd(); }
  // Ambient values; changing them tells the control nothing until AmbientChanged is called.
  MemoryAmbient& AmbientValues() { return ambient_; }
  // Changes an ambient value the way a container does: sets it, then tells the control.
  void SetDisplayAsDefault(bool displayAsDefault);
  MemoryExtender& ExtenderObject() { return extender_; }
  // Without an extender, GetExtender returns null.
  void SetHasExtender(bool hasExtender) { hasExtender_ = hasExtender; }

  EventHandlers& Handlers() { return Recorder().Handlers(); }
  const std::vector<std::string>& Log() const { return Recorder().Log(); }
  void ClearLog() { Recorder().ClearLog(); }
  // The log so far, which is cleared.
  std::vector<std::string> TakeLog() { return Recorder().TakeLog(); }

 private:
  MemoryAmbient ambient_;
  MemoryExtender extender_;
  bool hasExtender_ = true;
};

}  // namespace glyphon
