// Typed reads and writes of a property bag. A read never fails: a missing key, a value of a type
// that does not convert, or a bag that throws all give the default.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "control/host/property_bag.h"

namespace glyphon {

std::int32_t ReadInt32(PropertyBag& bag, std::string_view key, std::int32_t defaultValue);
// Read with a 16-bit default, as keys whose default was declared 16-bit are.
std::int32_t ReadInt32WithShortDefault(PropertyBag& bag, std::string_view key,
                                       std::int16_t defaultValue);
std::int16_t ReadInt16(PropertyBag& bag, std::string_view key, std::int16_t defaultValue);
bool ReadBool(PropertyBag& bag, std::string_view key, bool defaultValue);
win::OLE_COLOR ReadColor(PropertyBag& bag, std::string_view key, win::OLE_COLOR defaultValue);
std::string ReadText(PropertyBag& bag, std::string_view key, const std::string& defaultValue);
StdFont ReadFont(PropertyBag& bag, std::string_view key, const StdFont& defaultValue);
// No object is the default.
StdPicture ReadPicture(PropertyBag& bag, std::string_view key);

void WriteColor(PropertyBag& bag, std::string_view key, win::OLE_COLOR value,
                win::OLE_COLOR defaultValue);
void WritePicture(PropertyBag& bag, std::string_view key, const StdPicture& picture);

}  // namespace glyphon
