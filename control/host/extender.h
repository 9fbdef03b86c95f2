// The container's extender object for one control. A host may lack any member: readers return
// nullopt and writers return false then.
#pragma once

#include <optional>
#include <string>

#include "platform/win32_types.h"

namespace glyphon {

class Extender {
 public:
  virtual ~Extender() = default;
  virtual std::optional<std::string> Name() const = 0;
  virtual bool SetTabStop(bool tabStop) = 0;
  virtual bool SetDefault(bool isDefault) = 0;
  // The tooltip text the container keeps for the control.
  virtual std::optional<std::string> ToolTipText() const = 0;
  // The back colour of the form or frame the control sits on.
  virtual std::optional<win::OLE_COLOR> ContainerBackColor() const = 0;
};

}  // namespace glyphon
