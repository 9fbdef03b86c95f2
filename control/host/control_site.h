// What the control needs from the container that hosts it: its window and surface, the properties
// the container keeps for it (delegated properties), notifications, ambient state, extender and
// event sink. Implemented by the in-memory host, the demo's form host and the ActiveX adapter.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "control/host/ambient_properties.h"
#include "control/host/extender.h"
#include "control/host/glyphon_events.h"
#include "platform/ole/std_font.h"
#include "platform/ole/std_picture.h"
#include "platform/win32_types.h"

namespace glyphon {

class ControlSite {
 public:
  virtual ~ControlSite() = default;

  // The control's own window and a device context for its client area.
  virtual win::HWND hWnd() const = 0;
  virtual win::HDC hDC() const = 0;
  // Client size in pixels, as the container reports it (possibly fractional).
  virtual double ScaleWidth() const = 0;
  virtual double ScaleHeight() const = 0;

  // Delegated properties: the container keeps the values; enabling also enables the window.
  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  virtual std::optional<StdFont> Font() const = 0;
  virtual void SetFont(const StdFont& font) = 0;
  virtual StdPicture MouseIcon() const = 0;
  virtual void SetMouseIcon(const StdPicture& icon) = 0;
  virtual std::int16_t MousePointer() const = 0;
  virtual void SetMousePointer(std::int16_t pointer) = 0;
  virtual bool RightToLeft() const = 0;
  virtual void SetRightToLeft(bool rightToLeft) = 0;
  virtual std::string Tag() const = 0;
  virtual void SetTag(std::string_view tag) = 0;

  // Tells the container that a persisted property changed, so it marks the form dirty.
  virtual void PropertyChanged(std::string_view name) = 0;
  // The characters that, pressed with Alt, reach the control's AccessKeyPress.
  virtual void SetAccessKeys(std::string_view keys) = 0;
  // Told after each repaint of the control's surface, with the state painted. Hosts that record
  // or mirror the surface use it; others ignore it.
  virtual void Repainted(std::int32_t /*drawState*/) {}

  virtual const AmbientProperties& Ambient() const = 0;
  // Null when the container has no extender object.
  virtual Extender* GetExtender() = 0;
  virtual GlyphonEvents& Events() = 0;
};

}  // namespace glyphon
