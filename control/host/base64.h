// Base64 (the standard alphabet, with padding) for binary data inside text files.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace glyphon {

std::string EncodeBase64(std::span<const std::uint8_t> bytes);

// Nothing for text that is not strict base64: a character outside the alphabet, a length that is
// not a multiple of four, misplaced padding, or padding bits that are not zero. Strictness keeps
// one encoding per byte string, so a decoded value writes back as the same text.
std::optional<std::vector<std::uint8_t>> DecodeBase64(std::string_view text);

}  // namespace glyphon
