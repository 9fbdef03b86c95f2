// The control's property bag (PropertyBag) over the container's two kinds of storage: a
// container's IPropertyBag (text-like forms), and a stream (binary forms), which holds the same
// keys as JSON. Both keep a value only when it differs from its default.
#pragma once

#include "activex/windows_api.h"
#include "control/host/property_bag_file.h"

namespace glyphon::activex {

class PropertyBagAdapter final : public PropertyBag {
 public:
  PropertyBagAdapter(IPropertyBag& bag, IErrorLog* errorLog) : bag_(bag), errorLog_(errorLog) {}

  // A key the bag lacks, or a value of no type the control holds, reads as the default.
  PropertyValue ReadProperty(std::string_view name, const PropertyValue& defaultValue) override;
  void WriteProperty(std::string_view name, const PropertyValue& value,
                     const PropertyValue& defaultValue) override;

 private:
  IPropertyBag& bag_;
  IErrorLog* errorLog_;
};

class StreamPropertyBag final : public PropertyBag {
 public:
  // The entries a stream holds: what could be read of it, nothing from a damaged one.
  static StreamPropertyBag Load(IStream& stream);
  StreamPropertyBag() = default;

  PropertyValue ReadProperty(std::string_view name, const PropertyValue& defaultValue) override;
  void WriteProperty(std::string_view name, const PropertyValue& value,
                     const PropertyValue& defaultValue) override;

  HRESULT Save(IStream& stream) const;
  // The most bytes Save writes.
  ULONGLONG SizeMax() const;

 private:
  std::string Text() const;

  SavedEntries entries_;
};

}  // namespace glyphon::activex
