// The two plain colours the painters and picture effects use by name.
#pragma once

#include "platform/win32_types.h"

namespace glyphon {

inline constexpr win::COLORREF kBlack = win::RGB(0, 0, 0);
inline constexpr win::COLORREF kWhite = win::RGB(255, 255, 255);

}  // namespace glyphon
