#include "propertypage/glyphon_object.h"

#include "control/property_access.h"

namespace glyphon {

PropertyValue GlyphonObject::GetProperty(std::string_view name) const {
  return GetPropertyByName(button_, name);
}

void GlyphonObject::SetProperty(std::string_view name, const PropertyValue& value) {
  SetPropertyByName(button_, name, value);
}

}  // namespace glyphon
