#include "control/host/memory_property_bag.h"

#include <optional>

namespace glyphon {

namespace {

std::optional<std::int32_t> Number(const PropertyValue& value) {
  if (const auto* v = std::get_if<bool>(&value)) return *v ? -1 : 0;
  if (const auto* v = std::get_if<std::int16_t>(&value)) return *v;
  if (const auto* v = std::get_if<std::int32_t>(&value)) return *v;
  return std::nullopt;
}

}  // namespace

bool SameStoredValue(const PropertyValue& a, const PropertyValue& b) {
  const auto numberA = Number(a);
  const auto numberB = Number(b);
  if (numberA || numberB) return numberA == numberB;
  return a == b;
}

PropertyValue MemoryPropertyBag::ReadProperty(std::string_view name,
                                              const PropertyValue& defaultValue) {
  readKeys_.emplace_back(name);
  const auto it = values_.find(name);
  return it != values_.end() ? it->second : defaultValue;
}

void MemoryPropertyBag::WriteProperty(std::string_view name, const PropertyValue& value,
                                      const PropertyValue& defaultValue) {
  writtenKeys_.emplace_back(name);
  if (SameStoredValue(value, defaultValue)) {
    if (const auto it = values_.find(name); it != values_.end()) values_.erase(it);
    return;
  }
  values_.insert_or_assign(std::string(name), value);
}

void MemoryPropertyBag::Store(std::string_view name, PropertyValue value) {
  values_.insert_or_assign(std::string(name), std::move(value));
}

const PropertyValue* MemoryPropertyBag::Find(std::string_view name) const {
  const auto it = values_.find(name);
  return it != values_.end() ? &it->second : nullptr;
}

void MemoryPropertyBag::ClearKeyLog() {
  readKeys_.clear();
  writtenKeys_.clear();
}

}  // namespace glyphon
