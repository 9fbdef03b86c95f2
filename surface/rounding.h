// Conversions from real numbers to whole device units round to nearest with halves to even, the
// rounding of the automation runtime the drawing arithmetic was written for (12.5 -> 12, 13.5 -> 14).
#pragma once

#include <cmath>

namespace glyphon {

// Relies on the default floating-point rounding mode (to nearest, ties to even), which nothing in
// the system changes.
inline int RoundHalfEven(double value) { return static_cast<int>(std::nearbyint(value)); }

}  // namespace glyphon
