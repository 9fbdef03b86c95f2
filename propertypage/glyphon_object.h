// A Glyphon bound late, through its member table and real setters (control/property_access.h).
#pragma once

#include "control/glyphon.h"
#include "propertypage/late_bound_object.h"

namespace glyphon {

class GlyphonObject final : public LateBoundObject {
 public:
  explicit GlyphonObject(Glyphon& button) : button_(button) {}

  PropertyValue GetProperty(std::string_view name) const override;
  void SetProperty(std::string_view name, const PropertyValue& value) override;

 private:
  Glyphon& button_;
};

}  // namespace glyphon
