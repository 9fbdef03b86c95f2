// The caption's access key: the character after the first "&". There is no escape, so "A&&B"
// displays "A&B" and its key is "&".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace glyphon {

struct AccessKeyParse {
  std::string displayCaption;
  // 1-based position of the "&", 0 when the caption has none.
  std::int16_t position = 0;
  // The host's new access keys; nullopt when there is no "&" (the old keys stay registered).
  std::optional<std::string> keys;
};

AccessKeyParse ParseAccessKey(std::string_view caption);

}  // namespace glyphon
