#include "control/bag_io.h"

#include "control/value_coercion.h"

namespace glyphon {

namespace {

PropertyValue ReadRaw(PropertyBag& bag, std::string_view key, const PropertyValue& defaultValue) {
  try {
    return bag.ReadProperty(key, defaultValue);
  } catch (...) {
    return defaultValue;
  }
}

std::int32_t ColorBits(win::OLE_COLOR color) { return static_cast<std::int32_t>(color); }

}  // namespace

std::int32_t ReadInt32(PropertyBag& bag, std::string_view key, std::int32_t defaultValue) {
  return ToInt32(ReadRaw(bag, key, defaultValue)).value_or(defaultValue);
}

std::int32_t ReadInt32WithShortDefault(PropertyBag& bag, std::string_view key,
                                       std::int16_t defaultValue) {
  return ToInt32(ReadRaw(bag, key, defaultValue)).value_or(defaultValue);
}

std::int16_t ReadInt16(PropertyBag& bag, std::string_view key, std::int16_t defaultValue) {
  return ToInt16(ReadRaw(bag, key, defaultValue)).value_or(defaultValue);
}

bool ReadBool(PropertyBag& bag, std::string_view key, bool defaultValue) {
  return ToBool(ReadRaw(bag, key, defaultValue)).value_or(defaultValue);
}

win::OLE_COLOR ReadColor(PropertyBag& bag, std::string_view key, win::OLE_COLOR defaultValue) {
  return ToColor(ReadRaw(bag, key, ColorBits(defaultValue))).value_or(defaultValue);
}

std::string ReadText(PropertyBag& bag, std::string_view key, const std::string& defaultValue) {
  return ToText(ReadRaw(bag, key, defaultValue)).value_or(defaultValue);
}

StdFont ReadFont(PropertyBag& bag, std::string_view key, const StdFont& defaultValue) {
  return ToFont(ReadRaw(bag, key, defaultValue)).value_or(defaultValue);
}

StdPicture ReadPicture(PropertyBag& bag, std::string_view key) {
  return ToPicture(ReadRaw(bag, key, std::monostate{})).value_or(StdPicture{});
}

void WriteColor(PropertyBag& bag, std::string_view key, win::OLE_COLOR value,
                win::OLE_COLOR defaultValue) {
  bag.WriteProperty(key, ColorBits(value), ColorBits(defaultValue));
}

void WritePicture(PropertyBag& bag, std::string_view key, const StdPicture& picture) {
  bag.WriteProperty(key, PictureValue(picture), std::monostate{});
}

}  // namespace glyphon
