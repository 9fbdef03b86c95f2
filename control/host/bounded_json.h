// A JSON reader for files that may be damaged or hostile. It builds the document through
// nlohmann-json's event parser and stops at the first syntax error or broken limit, keeping
// everything completed before that point, so a truncated file still gives its first entries.
// Nesting depth and the number of values are bounded, so neither the stack nor the heap grows
// with what an attacker writes beyond the limits (the text itself is bounded by its caller).
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

namespace glyphon {

struct JsonLimits {
  std::size_t maxDepth = 16;
  std::size_t maxValues = 100000;
  // Objects keep their keys in order and look a key up by walking them, so a huge object costs
  // time by the square of its size: bounded too.
  std::size_t maxMembers = 1024;
};

struct BoundedJson {
  // The document as far as it could be read; null when not even its start was.
  nlohmann::ordered_json document;
  // Why reading stopped early; nothing when the whole text was read.
  std::optional<std::string> error;
  // What was read but left out (repeated keys).
  std::vector<std::string> notes;
};

BoundedJson ParseBoundedJson(std::string_view text, const JsonLimits& limits = {});

}  // namespace glyphon
