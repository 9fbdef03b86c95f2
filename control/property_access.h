// Late-bound access to the button's properties by name (case-insensitive), through the real
// getters and setters: the property page and the command line set properties this way.
// Failures are AutomationError: an unknown or read-only name, a value that does not convert, or
// the setter's own error.
#pragma once

#include <string_view>

#include "control/glyphon.h"
#include "control/host/property_bag.h"

namespace glyphon {

PropertyValue GetPropertyByName(const Glyphon& button, std::string_view name);
void SetPropertyByName(Glyphon& button, std::string_view name, const PropertyValue& value);

// Sets from typed text: numbers in decimal or hexadecimal ("&H8000000F", "0x00FF00"), True or
// False, or, for enumerated properties, a constant's name ("zonStyleWinXPBlue").
void SetPropertyFromText(Glyphon& button, std::string_view name, std::string_view text);

}  // namespace glyphon
