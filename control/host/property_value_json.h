// One property-bag value as JSON, and back. Every value type keeps its identity:
//
//   no object           null                      Boolean        true / false
//   32-bit integer      -2147483633               16-bit integer {"int16": 5}
//   text                "OK" (valid UTF-8), else {"bytes": "<base64>"}, so any byte string survives
//   font                {"font": {"name": "Tahoma", "size": 8.25, "weight": 400, "italic": false,
//                                 "underline": false, "strikethrough": false, "charset": 0}}
//   picture             {"picture": null} (a picture reference holding nothing),
//                       {"picture": {"type": "none"}} (an empty picture),
//                       {"picture": {"type": "bitmap" or "icon", "data": "<base64>"}}, the data being
//                       what the picture writers make of it (BMP or ICO; PNG reads too)
//
// Reading checks every value: a wrong type, a number out of range, oversized text or data, or a
// picture that does not decode is skipped with a note saying where and why. A font keeps the
// members that read and takes a new font's values for the rest.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "control/host/property_bag.h"

namespace glyphon {

inline constexpr std::size_t kMaxTextBytes = 64 * 1024;
inline constexpr std::size_t kMaxPictureDataBytes = 16 * 1024 * 1024;
// Sizes up to a billion points survive the trip through a decimal number exactly.
inline constexpr double kMaxFontPoints = 1e9;

// Where a value sits, for notes: "Command1: Caption".
struct ValueNotes {
  std::string where;
  std::vector<std::string>& notes;

  void Add(std::string_view what) const;
};

// Throws PictureError for a picture that cannot be saved (a metafile, a stale handle) and
// std::invalid_argument for a font size beyond kMaxFontPoints.
nlohmann::ordered_json PropertyValueToJson(const PropertyValue& value);

// Nothing, with a note, when the value cannot be read.
std::optional<PropertyValue> PropertyValueFromJson(const nlohmann::ordered_json& json,
                                                   const ValueNotes& notes);

}  // namespace glyphon
