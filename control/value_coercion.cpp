#include "control/value_coercion.h"

#include <cctype>
#include <charconv>
#include <limits>
#include <string_view>

#include "control/ascii_case.h"

namespace glyphon {

namespace {

std::string_view Trim(std::string_view text) {
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front()))) text.remove_prefix(1);
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back()))) text.remove_suffix(1);
  return text;
}

// Whole numbers in decimal, or hexadecimal with a "&H" or "0x" prefix (the form colours are
// usually written in). Hexadecimal keeps its 32-bit pattern, so &H8000000F reads as a colour.
std::optional<std::int64_t> ParseInteger(std::string_view text) {
  text = Trim(text);
  if (EqualsIgnoringCase(text, "true")) return -1;
  if (EqualsIgnoringCase(text, "false")) return 0;

  int base = 10;
  if (text.size() > 2 && (text.starts_with("&H") || text.starts_with("&h") ||
                          text.starts_with("0x") || text.starts_with("0X"))) {
    base = 16;
    text.remove_prefix(2);
    if (!text.empty() && text.back() == '&') text.remove_suffix(1);
  }
  if (text.starts_with('+')) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;

  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  if (base == 16) {
    if (number < 0 || number > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
  }
  return number;
}

std::optional<std::int64_t> ToInteger(const PropertyValue& value) {
  if (const auto* v = std::get_if<std::int32_t>(&value)) return *v;
  if (const auto* v = std::get_if<std::int16_t>(&value)) return *v;
  if (const auto* v = std::get_if<bool>(&value)) return *v ? -1 : 0;
  if (const auto* v = std::get_if<std::string>(&value)) return ParseInteger(*v);
  return std::nullopt;
}

template <class T>
std::optional<T> Narrow(std::optional<std::int64_t> number) {
  if (!number || *number < std::numeric_limits<T>::min() || *number > std::numeric_limits<T>::max()) {
    return std::nullopt;
  }
  return static_cast<T>(*number);
}

}  // namespace

std::optional<std::int32_t> ToInt32(const PropertyValue& value) {
  return Narrow<std::int32_t>(ToInteger(value));
}

std::optional<std::int16_t> ToInt16(const PropertyValue& value) {
  return Narrow<std::int16_t>(ToInteger(value));
}

std::optional<bool> ToBool(const PropertyValue& value) {
  if (const auto* v = std::get_if<bool>(&value)) return *v;
  const auto number = ToInteger(value);
  if (!number) return std::nullopt;
  return *number != 0;
}

std::optional<std::string> ToText(const PropertyValue& value) {
  if (const auto* v = std::get_if<std::string>(&value)) return *v;
  if (const auto* v = std::get_if<bool>(&value)) return std::string(*v ? "True" : "False");
  if (const auto* v = std::get_if<std::int32_t>(&value)) return std::to_string(*v);
  if (const auto* v = std::get_if<std::int16_t>(&value)) return std::to_string(*v);
  return std::nullopt;
}

std::optional<StdFont> ToFont(const PropertyValue& value) {
  if (const auto* v = std::get_if<StdFont>(&value)) return *v;
  return std::nullopt;
}

std::optional<StdPicture> ToPicture(const PropertyValue& value) {
  if (std::holds_alternative<std::monostate>(value)) return StdPicture{};
  if (const auto* v = std::get_if<StdPicture>(&value)) return *v;
  return std::nullopt;
}

std::optional<win::OLE_COLOR> ToColor(const PropertyValue& value) {
  const auto number = ToInt32(value);
  if (!number) return std::nullopt;
  return static_cast<win::OLE_COLOR>(*number);
}

PropertyValue PictureValue(const StdPicture& picture) {
  if (picture.IsNothing()) return std::monostate{};
  return picture;
}

}  // namespace glyphon
