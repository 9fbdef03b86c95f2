// One selected control as a property page sees it: properties read and written by name, the way
// an automation client calls a dispatch interface. In-process pages bind a Glyphon directly
// (GlyphonObject); a page inside a component library wraps the dispatch interface its host hands
// it. Both report failures as AutomationError, which the page lets through to its host.
#pragma once

#include <string_view>

#include "control/host/property_bag.h"

namespace glyphon {

class LateBoundObject {
 public:
  virtual ~LateBoundObject() = default;
  virtual PropertyValue GetProperty(std::string_view name) const = 0;
  virtual void SetProperty(std::string_view name, const PropertyValue& value) = 0;
};

}  // namespace glyphon
