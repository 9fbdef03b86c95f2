#include "control/host/base64.h"

#include <array>

namespace glyphon {

namespace {

constexpr std::string_view kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t kInvalid = 0xFF;

constexpr std::array<std::uint8_t, 256> MakeDecodeTable() {
  std::array<std::uint8_t, 256> table{};
  table.fill(kInvalid);
  for (std::size_t i = 0; i < kAlphabet.size(); ++i) {
    table[static_cast<unsigned char>(kAlphabet[i])] = static_cast<std::uint8_t>(i);
  }
  return table;
}

constexpr std::array<std::uint8_t, 256> kDecodeTable = MakeDecodeTable();

}  // namespace

std::string EncodeBase64(std::span<const std::uint8_t> bytes) {
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  std::size_t i = 0;
  for (; i + 3 <= bytes.size(); i += 3) {
    const std::uint32_t group = (std::uint32_t{bytes[i]} << 16) |
                                (std::uint32_t{bytes[i + 1]} << 8) | bytes[i + 2];
    for (int shift = 18; shift >= 0; shift -= 6) text += kAlphabet[(group >> shift) & 0x3F];
  }
  const std::size_t rest = bytes.size() - i;
  if (rest > 0) {
    std::uint32_t group = std::uint32_t{bytes[i]} << 16;
    if (rest == 2) group |= std::uint32_t{bytes[i + 1]} << 8;
    text += kAlphabet[(group >> 18) & 0x3F];
    text += kAlphabet[(group >> 12) & 0x3F];
    text += rest == 2 ? kAlphabet[(group >> 6) & 0x3F] : '=';
    text += '=';
  }
  return text;
}

std::optional<std::vector<std::uint8_t>> DecodeBase64(std::string_view text) {
  if (text.size() % 4 != 0) return std::nullopt;
  std::vector<std::uint8_t> bytes;
  bytes.reserve(text.size() / 4 * 3);
  for (std::size_t i = 0; i < text.size(); i += 4) {
    const bool last = i + 4 == text.size();
    const int padding = !last ? 0 : text[i + 3] != '=' ? 0 : text[i + 2] != '=' ? 1 : 2;
    std::uint32_t group = 0;
    for (int k = 0; k < 4 - padding; ++k) {
      const std::uint8_t value = kDecodeTable[static_cast<unsigned char>(text[i + k])];
      if (value == kInvalid) return std::nullopt;
      group |= std::uint32_t{value} << (18 - 6 * k);
    }
    // Bits below the last whole byte must be zero, or two texts would decode alike.
    if ((padding == 1 && (group & 0xFF) != 0) || (padding == 2 && (group & 0xFFFF) != 0)) {
      return std::nullopt;
    }
    bytes.push_back(static_cast<std::uint8_t>(group >> 16));
    if (padding < 2) bytes.push_back(static_cast<std::uint8_t>(group >> 8));
    if (padding < 1) bytes.push_back(static_cast<std::uint8_t>(group));
  }
  return bytes;
}

}  // namespace glyphon
