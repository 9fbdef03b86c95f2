// A property bag kept in memory, for tests and headless use. It keeps a value only when it
// differs from the default it is written with, and records the keys in the order they were read
// and written.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "control/host/property_bag.h"

namespace glyphon {

class MemoryPropertyBag final : public PropertyBag {
 public:
  PropertyValue ReadProperty(std::string_view name, const PropertyValue& defaultValue) override;
  void WriteProperty(std::string_view name, const PropertyValue& value,
                     const PropertyValue& defaultValue) override;

  // Stores a value as a saved form would hold it (whatever its type), without recording a write.
  void Store(std::string_view name, PropertyValue value);
  // The stored value, or null when the key is absent.
  const PropertyValue* Find(std::string_view name) const;
  std::size_t Size() const { return values_.size(); }

  const std::vector<std::string>& ReadKeys() const { return readKeys_; }
  const std::vector<std::string>& WrittenKeys() const { return writtenKeys_; }
  void ClearKeyLog();

 private:
  std::map<std::string, PropertyValue, std::less<>> values_;
  std::vector<std::string> readKeys_;
  std::vector<std::string> writtenKeys_;
};

// Whether a written value equals its default, as a host compares them: numbers and Booleans by
// value whatever their width, objects by identity.
bool SameStoredValue(const PropertyValue& a, const PropertyValue& b);

}  // namespace glyphon
