// The keyed store a host keeps a control's properties in. Every entry is written with a default
// (the bag keeps only values that differ from it) and read with one (a missing key yields it).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "platform/ole/std_font.h"
#include "platform/ole/std_picture.h"

namespace glyphon {

// std::monostate is "no object" (an absent font or picture default).
using PropertyValue =
    std::variant<std::monostate, bool, std::int16_t, std::int32_t, std::string, StdFont, StdPicture>;

class PropertyBag {
 public:
  virtual ~PropertyBag() = default;
  virtual PropertyValue ReadProperty(std::string_view name, const PropertyValue& defaultValue) = 0;
  virtual void WriteProperty(std::string_view name, const PropertyValue& value,
                             const PropertyValue& defaultValue) = 0;
};

}  // namespace glyphon
