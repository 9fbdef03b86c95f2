// The picture-spacing box takes unsigned whole numbers as typed text, and its text becomes the
// property's value by reading the number it starts with.
#pragma once

#include <cstdint>
#include <string_view>

namespace glyphon {

// Digits and the editing keys (backspace and the copy, paste, cut and undo control characters).
bool IsSpacingKey(std::int16_t keyAscii);

// The number at the start of text after any blanks: an optional sign, digits and an optional
// fraction, rounded to the nearest whole number with halves to even; 0 when there is none
// ("12px" is 12, "" and "px" are 0). Throws AutomationError (overflow) when the number does not
// fit 32 bits.
std::int32_t LeadingNumber(std::string_view text);

}  // namespace glyphon
