#include "propertypage/picture_spacing_text.h"

#include <cctype>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include "control/glyphon_errors.h"

namespace glyphon {

namespace {

constexpr std::int16_t kBackspace = 8;
constexpr std::int16_t kCopy = 3;
constexpr std::int16_t kPaste = 22;
constexpr std::int16_t kCut = 24;
constexpr std::int16_t kUndo = 26;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

bool IsSpacingKey(std::int16_t keyAscii) {
  switch (keyAscii) {
    case kBackspace:
    case kCopy:
    case kPaste:
    case kCut:
    case kUndo: return true;
    default: return keyAscii >= '0' && keyAscii <= '9';
  }
}

std::int32_t LeadingNumber(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && std::isspace(static_cast<unsigned char>(text[i]))) ++i;
  const std::size_t start = i;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  const std::size_t digitsStart = i;
  while (i < text.size() && IsDigit(text[i])) ++i;
  if (i < text.size() && text[i] == '.') {
    ++i;
    while (i < text.size() && IsDigit(text[i])) ++i;
  }
  if (i == digitsStart) return 0;
  const std::string number(text.substr(start, i - start));
  // Rounds half to even in the default rounding mode.
  const double rounded = std::nearbyint(std::strtod(number.c_str(), nullptr));
  if (rounded < std::numeric_limits<std::int32_t>::min() ||
      rounded > std::numeric_limits<std::int32_t>::max()) {
    RaiseError(kOverflowNumber, "PictureSpacing", kOverflowMessage);
  }
  return static_cast<std::int32_t>(rounded);
}

}  // namespace glyphon
