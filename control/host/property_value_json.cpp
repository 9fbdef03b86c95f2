#include "control/host/property_value_json.h"

#include <cmath>
#include <limits>
#include <stdexcept>

#include "control/host/base64.h"
#include "platform/codec/picture_error.h"
#include "platform/codec/picture_file.h"

namespace glyphon {

namespace {

using Json = nlohmann::ordered_json;

// The JSON writer refuses text that is not UTF-8; such text travels as bytes instead. The rules
// are the writer's: no overlong forms, no surrogates, nothing above U+10FFFF.
bool IsValidUtf8(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size()) {
    const auto lead = static_cast<unsigned char>(text[i]);
    std::size_t length = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead < 0x80) {
      ++i;
      continue;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
      length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
      length = 3;
      if (lead == 0xE0) low = 0xA0;
      if (lead == 0xED) high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
      length = 4;
      if (lead == 0xF0) low = 0x90;
      if (lead == 0xF4) high = 0x8F;
    } else {
      return false;
    }
    if (text.size() - i < length) return false;
    for (std::size_t k = 1; k < length; ++k) {
      const auto next = static_cast<unsigned char>(text[i + k]);
      if (next < (k == 1 ? low : 0x80) || next > (k == 1 ? high : 0xBF)) return false;
    }
    i += length;
  }
  return true;
}

const char* PictureTypeName(win::UINT type) {
  switch (type) {
    case win::PICTYPE_NONE: return "none";
    case win::PICTYPE_BITMAP: return "bitmap";
    case win::PICTYPE_ICON: return "icon";
    default: return nullptr;
  }
}

Json TextToJson(const std::string& text) {
  if (IsValidUtf8(text)) return text;
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  return Json{{"bytes", EncodeBase64({bytes, text.size()})}};
}

Json FontToJson(const StdFont& font) {
  const auto tenThousandths = font.SizeTenThousandths();
  if (std::abs(static_cast<double>(tenThousandths)) > kMaxFontPoints * 10000) {
    throw std::invalid_argument("font size out of range");
  }
  return Json{{"name", TextToJson(font.Name())},
              {"size", static_cast<double>(tenThousandths) / 10000},
              {"weight", font.Weight()},
              {"italic", font.Italic()},
              {"underline", font.Underline()},
              {"strikethrough", font.Strikethrough()},
              {"charset", font.Charset()}};
}

Json PictureToJson(const StdPicture& picture) {
  if (picture.IsNothing()) return nullptr;
  const char* type = PictureTypeName(picture.Type());
  if (type == nullptr) throw PictureError("metafile pictures cannot be saved");
  Json json{{"type", type}};
  if (picture.Type() != win::PICTYPE_NONE) json["data"] = EncodeBase64(SavePictureData(picture));
  return json;
}

// ---- Reading ----

std::string Describe(const Json& json) {
  switch (json.type()) {
    case Json::value_t::null: return "null";
    case Json::value_t::boolean: return "a Boolean";
    case Json::value_t::number_float: return "a fraction";
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned: return "a number";
    case Json::value_t::string: return "text";
    case Json::value_t::array: return "a list";
    default: return "an object";
  }
}

// A whole number within [low, high]; fractions with nothing after the point count as whole.
std::optional<std::int64_t> WholeNumber(const Json& json, std::int64_t low, std::int64_t high) {
  if (json.is_number_integer()) {
    if (json.is_number_unsigned()) {
      const auto value = json.get<std::uint64_t>();
      if (value > static_cast<std::uint64_t>(high)) return std::nullopt;
      return static_cast<std::int64_t>(value);
    }
    const auto value = json.get<std::int64_t>();
    if (value < low || value > high) return std::nullopt;
    return value;
  }
  if (json.is_number_float()) {
    const double value = json.get<double>();
    if (!(value >= static_cast<double>(low) && value <= static_cast<double>(high)) ||
        std::trunc(value) != value) {
      return std::nullopt;
    }
    return static_cast<std::int64_t>(value);
  }
  return std::nullopt;
}

std::optional<std::string> TextFromJson(const Json& json, const ValueNotes& notes) {
  std::string text;
  if (json.is_string()) {
    text = json.get<std::string>();
  } else if (json.is_object() && json.size() == 1 && json.contains("bytes") &&
             json["bytes"].is_string()) {
    const auto& encoded = json["bytes"].get_ref<const std::string&>();
    if (encoded.size() > (kMaxTextBytes + 2) / 3 * 4) {
      notes.Add("text longer than " + std::to_string(kMaxTextBytes) + " bytes; skipped");
      return std::nullopt;
    }
    auto bytes = DecodeBase64(encoded);
    if (!bytes) {
      notes.Add("bytes that are not base64; skipped");
      return std::nullopt;
    }
    text.assign(bytes->begin(), bytes->end());
  } else {
    notes.Add(Describe(json) + " where text was expected; skipped");
    return std::nullopt;
  }
  if (text.size() > kMaxTextBytes) {
    notes.Add("text longer than " + std::to_string(kMaxTextBytes) + " bytes; skipped");
    return std::nullopt;
  }
  return text;
}

template <class Int>
std::optional<Int> IntegerFromJson(const Json& json, const ValueNotes& notes) {
  const auto value =
      WholeNumber(json, std::numeric_limits<Int>::min(), std::numeric_limits<Int>::max());
  if (!value) {
    notes.Add(Describe(json) + " that is not a " + std::to_string(sizeof(Int) * 8) +
              "-bit whole number; skipped");
    return std::nullopt;
  }
  return static_cast<Int>(*value);
}

// Colours and other 32-bit values may also be written as their unsigned bit pattern.
std::optional<std::int32_t> Int32FromJson(const Json& json, const ValueNotes& notes) {
  const auto value = WholeNumber(json, std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::uint32_t>::max());
  if (!value) {
    notes.Add(Describe(json) + " that is not a 32-bit whole number; skipped");
    return std::nullopt;
  }
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(*value));
}

std::optional<bool> BoolFromJson(const Json& json, const ValueNotes& notes) {
  if (json.is_boolean()) return json.get<bool>();
  notes.Add(Describe(json) + " where true or false was expected; skipped");
  return std::nullopt;
}

ValueNotes Member(const ValueNotes& notes, std::string_view member) {
  return ValueNotes{notes.where + "." + std::string(member), notes.notes};
}

std::optional<StdFont> FontFromJson(const Json& json, const ValueNotes& notes) {
  if (!json.is_object()) {
    notes.Add(Describe(json) + " where a font was expected; skipped");
    return std::nullopt;
  }
  StdFont font;
  for (const auto& [name, value] : json.items()) {
    const ValueNotes member = Member(notes, name);
    if (name == "name") {
      if (auto text = TextFromJson(value, member)) font.Name(std::move(*text));
    } else if (name == "size") {
      if (value.is_number() && std::abs(value.get<double>()) <= kMaxFontPoints) {
        font.Size(value.get<double>());
      } else {
        member.Add(Describe(value) + " that is not a size in points up to a billion; skipped");
      }
    } else if (name == "weight") {
      if (auto weight = IntegerFromJson<std::int16_t>(value, member)) font.Weight(*weight);
    } else if (name == "bold") {
      // Accepted for hand-written files; the writer keeps the weight, which says more.
      if (auto bold = BoolFromJson(value, member)) font.Bold(*bold);
    } else if (name == "italic") {
      if (auto italic = BoolFromJson(value, member)) font.Italic(*italic);
    } else if (name == "underline") {
      if (auto underline = BoolFromJson(value, member)) font.Underline(*underline);
    } else if (name == "strikethrough") {
      if (auto strike = BoolFromJson(value, member)) font.Strikethrough(*strike);
    } else if (name == "charset") {
      if (auto charset = IntegerFromJson<std::int16_t>(value, member)) font.Charset(*charset);
    } else {
      member.Add("unknown font member; skipped");
    }
  }
  return font;
}

std::optional<StdPicture> PictureFromJson(const Json& json, const ValueNotes& notes) {
  if (json.is_null()) return StdPicture{};
  if (!json.is_object() || !json.contains("type") || !json["type"].is_string()) {
    notes.Add(Describe(json) + " where a picture with a type was expected; skipped");
    return std::nullopt;
  }
  const auto& type = json["type"].get_ref<const std::string&>();
  if (type == "none") return StdPicture::Empty();
  const win::UINT expected = type == "bitmap" ? win::PICTYPE_BITMAP
                             : type == "icon" ? win::PICTYPE_ICON
                                              : win::PICTYPE_UNINITIALIZED;
  if (expected == win::PICTYPE_UNINITIALIZED) {
    notes.Add("a picture of unknown type \"" + type + "\"; skipped");
    return std::nullopt;
  }
  if (!json.contains("data") || !json["data"].is_string()) {
    notes.Add("a picture without data; skipped");
    return std::nullopt;
  }
  const auto& encoded = json["data"].get_ref<const std::string&>();
  if (encoded.size() > kMaxPictureDataBytes / 3 * 4) {
    notes.Add("picture data larger than " + std::to_string(kMaxPictureDataBytes) +
              " bytes; skipped");
    return std::nullopt;
  }
  const auto bytes = DecodeBase64(encoded);
  if (!bytes || bytes->empty()) {
    notes.Add(bytes ? "empty picture data; skipped" : "picture data that is not base64; skipped");
    return std::nullopt;
  }
  try {
    StdPicture picture = LoadPictureData(*bytes, notes.where);
    if (picture.Type() == expected) return picture;
    notes.Add("picture data that is not a " + type + "; skipped");
  } catch (const PictureError& error) {
    notes.Add(std::string(error.what()) + "; skipped");
  }
  return std::nullopt;
}

template <class T>
std::optional<PropertyValue> Widen(std::optional<T> value) {
  if (!value) return std::nullopt;
  return PropertyValue(std::move(*value));
}

}  // namespace

void ValueNotes::Add(std::string_view what) const { notes.push_back(where + ": " + std::string(what)); }

Json PropertyValueToJson(const PropertyValue& value) {
  return std::visit(
      [](const auto& v) -> Json {
        using T = std::decay_t<decltype(v)>;
        if constexpr (std::is_same_v<T, std::monostate>) {
          return nullptr;
        } else if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, std::int32_t>) {
          return v;
        } else if constexpr (std::is_same_v<T, std::int16_t>) {
          return Json{{"int16", v}};
        } else if constexpr (std::is_same_v<T, std::string>) {
          return TextToJson(v);
        } else if constexpr (std::is_same_v<T, StdFont>) {
          return Json{{"font", FontToJson(v)}};
        } else {
          return Json{{"picture", PictureToJson(v)}};
        }
      },
      value);
}

std::optional<PropertyValue> PropertyValueFromJson(const Json& json, const ValueNotes& notes) {
  switch (json.type()) {
    case Json::value_t::null: return PropertyValue{};
    case Json::value_t::boolean: return PropertyValue(json.get<bool>());
    case Json::value_t::string: return Widen(TextFromJson(json, notes));
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
    case Json::value_t::number_float: return Widen(Int32FromJson(json, notes));
    case Json::value_t::object:
      if (json.size() == 1) {
        const auto only = json.begin();
        const std::string& kind = only.key();
        const Json& inner = only.value();
        if (kind == "int16") return Widen(IntegerFromJson<std::int16_t>(inner, notes));
        if (kind == "font") return Widen(FontFromJson(inner, notes));
        if (kind == "picture") return Widen(PictureFromJson(inner, notes));
        if (kind == "bytes") return Widen(TextFromJson(json, notes));
      }
      notes.Add("an object that is none of int16, bytes, font or picture; skipped");
      return std::nullopt;
    default:
      notes.Add(Describe(json) + " is no property value; skipped");
      return std::nullopt;
  }
}

}  // namespace glyphon
