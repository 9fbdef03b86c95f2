// The colour tables GDI gives DIBs of 1, 4 and 8 bits per pixel that come without one. The 8-bit
// table is also the halftone palette GDI makes for a true-colour screen.
#pragma once

#include <span>

#include "platform/win32_types.h"

namespace glyphon::win::soft {

// Empty above 8 bits per pixel.
std::span<const RGBQUAD> DefaultColorTable(int bitsPerPixel);

}  // namespace glyphon::win::soft
