// The in-memory host's extender. Each member can be made missing (nullopt), as a container that
// lacks it: reads then give nullopt and writes fail.
#pragma once

#include <optional>
#include <string>

#include "control/host/extender.h"

namespace glyphon {

struct MemoryExtender final : Extender {
  std::optional<std::string> name = "Glyphon1";
  std::optional<bool> tabStop = true;
  std::optional<bool> isDefault = false;
  std::optional<std::string> toolTipText = std::string();
  std::optional<win::OLE_COLOR> containerBackColor = 0x8000000F;

  std::optional<std::string> Name() const override { return name; }
  bool SetTabStop(bool value) override { return Assign(tabStop, value); }
  bool SetDefault(bool value) override { return Assign(isDefault, value); }
  std::optional<std::string> ToolTipText() const override { return toolTipText; }
  std::optional<win::OLE_COLOR> ContainerBackColor() const override { return containerBackColor; }

 private:
  static bool Assign(std::optional<bool>& member, bool value) {
    if (!member) return false;
    member = value;
    return true;
  }
};

}  // namespace glyphon
