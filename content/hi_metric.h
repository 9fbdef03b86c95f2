// Picture sizes: HiMetric units (hundredths of a millimetre) to device pixels.
#pragma once

#include "platform/win32.h"
#include "surface/rounding.h"

namespace glyphon {

inline constexpr double kHiMetricPerInch = 2540.0;

// The nearest whole pixel, halves to even, at the context's pixels per inch along one axis
// (LOGPIXELSX or LOGPIXELSY).
inline int HiMetricToPixels(win::HDC hdc, int axis, win::LONG hiMetric) {
  return RoundHalfEven(hiMetric * win::GetDeviceCaps(hdc, axis) / kHiMetricPerInch);
}

}  // namespace glyphon
