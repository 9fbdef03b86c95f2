// The container's ambient properties as the control sees them.
#pragma once

#include "platform/ole/std_font.h"
#include "platform/win32_types.h"

namespace glyphon {

class AmbientProperties {
 public:
  virtual ~AmbientProperties() = default;
  // False while the form is being designed.
  virtual bool UserMode() const = 0;
  // True when the container shows this control as its default button.
  virtual bool DisplayAsDefault() const = 0;
  virtual StdFont Font() const = 0;
  virtual win::OLE_COLOR BackColor() const = 0;
};

}  // namespace glyphon
