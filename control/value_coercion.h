// Conversions of stored or late-bound values to the types the button's properties hold, the way
// an automation host coerces a variant: numbers widen and narrow when they fit, Booleans are
// -1/0, numeric text converts. A value that cannot be converted gives nullopt, and the caller
// falls back (to the default when loading, to a type-mismatch error when setting by name).
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "control/host/property_bag.h"

namespace glyphon {

std::optional<std::int32_t> ToInt32(const PropertyValue& value);
std::optional<std::int16_t> ToInt16(const PropertyValue& value);
std::optional<bool> ToBool(const PropertyValue& value);
std::optional<std::string> ToText(const PropertyValue& value);
std::optional<StdFont> ToFont(const PropertyValue& value);
// No object (std::monostate) converts to a picture that is nothing.
std::optional<StdPicture> ToPicture(const PropertyValue& value);

// Colours travel as 32-bit integers; the bit pattern is the OLE colour.
std::optional<win::OLE_COLOR> ToColor(const PropertyValue& value);

// A picture as a stored value: nothing becomes no object.
PropertyValue PictureValue(const StdPicture& picture);

}  // namespace glyphon
