// Raises the control's events to every sink connected to the events connection point, through
// the sinks' IDispatch with the event's dispatch identifier. Parameters go by reference, so a
// sink's changes reach the control.
#pragma once

#include "activex/connection_point.h"
#include "activex/windows_api.h"

namespace glyphon::activex {

class EventRaiser final : public GlyphonEvents {
 public:
  explicit EventRaiser(const ConnectionPoint& events) : events_(events) {}

  void Click() override;
  void MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
  void MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
  void MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
  void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;
  void KeyPress(std::int16_t& keyAscii) override;
  void KeyUp(std::int16_t& keyCode, std::int16_t& shift) override;
  void MouseOver() override;
  void MouseOut() override;

 private:
  // arguments in the event's own order.
  void Raise(std::string_view name, std::initializer_list<VARIANT> arguments);
  void RaiseMouse(std::string_view name, std::int16_t& button, std::int16_t& shift, float& x,
                  float& y);
  void RaiseKey(std::string_view name, std::int16_t& keyCode, std::int16_t& shift);

  const ConnectionPoint& events_;
};

}  // namespace glyphon::activex
