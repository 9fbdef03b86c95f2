#include "activex/property_bags.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "activex/text.h"
#include "activex/values.h"
#include "activex/variant.h"
#include "control/host/memory_property_bag.h"
#include "control/host/property_value_json.h"

namespace glyphon::activex {

namespace {

// A stream holds a 32-bit byte count and then the JSON text.
constexpr std::uint32_t kMaxStreamTextBytes = 64 * 1024 * 1024;

bool ReadExactly(IStream& stream, void* buffer, ULONG size) {
  ULONG read = 0;
  return SUCCEEDED(stream.Read(buffer, size, &read)) && read == size;
}

}  // namespace

PropertyValue PropertyBagAdapter::ReadProperty(std::string_view name,
                                               const PropertyValue& defaultValue) {
  const std::wstring key = Widen(name);
  Variant value;
  if (FAILED(bag_.Read(key.c_str(), &value, errorLog_))) return defaultValue;
  return ValueFromVariant(value).value_or(defaultValue);
}

void PropertyBagAdapter::WriteProperty(std::string_view name, const PropertyValue& value,
                                       const PropertyValue& defaultValue) {
  if (SameStoredValue(value, defaultValue)) return;
  const std::wstring key = Widen(name);
  Variant stored;
  ValueToVariant(value, stored);
  bag_.Write(key.c_str(), &stored);
}

StreamPropertyBag StreamPropertyBag::Load(IStream& stream) {
  StreamPropertyBag bag;
  std::uint32_t size = 0;
  if (!ReadExactly(stream, &size, sizeof size) || size > kMaxStreamTextBytes) return bag;
  std::string text(size, '\0');
  if (!ReadExactly(stream, text.data(), size)) return bag;
  const auto json = nlohmann::ordered_json::parse(text, nullptr, false);
  if (!json.is_object()) return bag;
  std::vector<std::string> notes;
  for (const auto& [key, stored] : json.items()) {
    if (bag.entries_.size() == kMaxBagEntries) break;
    if (auto value = PropertyValueFromJson(stored, ValueNotes{key, notes})) {
      bag.entries_.push_back(SavedEntry{key, std::move(*value)});
    }
  }
  return bag;
}

PropertyValue StreamPropertyBag::ReadProperty(std::string_view name,
                                              const PropertyValue& defaultValue) {
  const PropertyValue* value = FindSavedEntry(entries_, name);
  return value != nullptr ? *value : defaultValue;
}

void StreamPropertyBag::WriteProperty(std::string_view name, const PropertyValue& value,
                                      const PropertyValue& defaultValue) {
  if (SameStoredValue(value, defaultValue)) return;
  std::erase_if(entries_, [&](const SavedEntry& entry) { return entry.key == name; });
  entries_.push_back(SavedEntry{std::string(name), value});
}

// Values that cannot be saved (a metafile picture) are left out, as the form file leaves them.
std::string StreamPropertyBag::Text() const {
  nlohmann::ordered_json json = nlohmann::ordered_json::object();
  for (const SavedEntry& entry : entries_) {
    try {
      json[entry.key] = PropertyValueToJson(entry.value);
    } catch (const std::exception&) {
      continue;
    }
  }
  return json.dump();
}

HRESULT StreamPropertyBag::Save(IStream& stream) const {
  const std::string text = Text();
  if (text.size() > kMaxStreamTextBytes) return STG_E_MEDIUMFULL;
  const auto size = static_cast<std::uint32_t>(text.size());
  HRESULT result = stream.Write(&size, sizeof size, nullptr);
  if (SUCCEEDED(result)) result = stream.Write(text.data(), size, nullptr);
  return result;
}

ULONGLONG StreamPropertyBag::SizeMax() const { return sizeof(std::uint32_t) + Text().size(); }

}  // namespace glyphon::activex
