// What a container tells the control it hosts: lifecycle, persistence, painting and the input it
// has turned into notifications. Hosts hold the control through this interface, so the in-memory
// host, the demo's form host and the ActiveX adapter drive any control the same way.
#pragma once

#include <cstdint>
#include <string_view>

#include "control/host/property_bag.h"

namespace glyphon {

class HostedControl {
 public:
  virtual ~HostedControl() = default;

  virtual void InitProperties() = 0;
  virtual void ReadProperties(PropertyBag& bag) = 0;
  virtual void WriteProperties(PropertyBag& bag) = 0;
  virtual void Paint() = 0;
  virtual void Resize() = 0;
  virtual void Terminate() = 0;

  // Mouse input in client pixels; button and shift as the events carry them (1 left, 2 right,
  // 4 middle; 1 shift, 2 control, 4 alt).
  virtual void MouseDown(std::int16_t button, std::int16_t shift, float x, float y) = 0;
  virtual void MouseMove(std::int16_t button, std::int16_t shift, float x, float y) = 0;
  virtual void MouseUp(std::int16_t button, std::int16_t shift, float x, float y) = 0;
  virtual void DblClick() = 0;
  virtual void KeyDown(std::int16_t keyCode, std::int16_t shift) = 0;
  virtual void KeyPress(std::int16_t keyAscii) = 0;
  virtual void KeyUp(std::int16_t keyCode, std::int16_t shift) = 0;
  // One of the characters given to ControlSite::SetAccessKeys was pressed with Alt.
  virtual void AccessKeyPress(std::int16_t keyAscii) = 0;
  virtual void AmbientChanged(std::string_view name) = 0;
  virtual void EnterFocus() = 0;
  virtual void ExitFocus() = 0;
};

}  // namespace glyphon
