// The arithmetic of the faded and greyed pictures, one channel or pixel at a time. Rounding is to
// the nearest whole number with halves to even.
#pragma once

#include <cstdint>

#include "platform/win32_types.h"

namespace glyphon {

// numerator / denominator to the nearest whole number, halves to even (denominator > 0).
constexpr int DivideHalfEven(int numerator, int denominator) {
  int quotient = numerator / denominator;
  int remainder = numerator % denominator;
  if (remainder < 0) {
    remainder += denominator;
    --quotient;
  }
  const int twice = 2 * remainder;
  if (twice > denominator || (twice == denominator && quotient % 2 != 0)) ++quotient;
  return quotient;
}

// Luminance with the per-thousand weights 222 red, 707 green and 71 blue.
constexpr std::uint8_t GreyLevel(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  return static_cast<std::uint8_t>(DivideHalfEven(707 * green + 222 * red + 71 * blue, 1000));
}

// The effect over the background with `strength` per cent of the effect, kept to a byte.
constexpr std::uint8_t MixLevel(std::uint8_t background, std::uint8_t effect, int strength) {
  const int mixed = DivideHalfEven((100 - strength) * background + strength * effect, 100);
  return static_cast<std::uint8_t>(mixed < 0 ? 0 : (mixed > 255 ? 255 : mixed));
}

// A grey pixel (blue, green, red in place) after a tint: pure red, green or blue keep only that
// channel; any other tint leaves it grey.
void TintGrey(std::uint8_t* pixel, std::uint8_t grey, win::COLORREF tint);

}  // namespace glyphon
