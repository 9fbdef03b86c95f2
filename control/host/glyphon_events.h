// The nine events of the button. Parameters are by reference: a handler may change them and the
// control goes on with the changed values.
#pragma once

#include <cstdint>

namespace glyphon {

class GlyphonEvents {
 public:
  virtual ~GlyphonEvents() = default;
  virtual void Click() {}
  virtual void MouseMove(std::int16_t& /*button*/, std::int16_t& /*shift*/, float& /*x*/,
                         float& /*y*/) {}
  virtual void MouseDown(std::int16_t& /*button*/, std::int16_t& /*shift*/, float& /*x*/,
                         float& /*y*/) {}
  virtual void MouseUp(std::int16_t& /*button*/, std::int16_t& /*shift*/, float& /*x*/,
                       float& /*y*/) {}
  virtual void KeyDown(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
  virtual void KeyPress(std::int16_t& /*keyAscii*/) {}
  virtual void KeyUp(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
  virtual void MouseOver() {}
  virtual void MouseOut() {}
};

}  // namespace glyphon
