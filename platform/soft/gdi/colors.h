// Colour values as GDI reads them from a DC: an explicit RGB, a palette-relative RGB (0x02 in the
// top byte, plain RGB on a true-colour device) or a palette index (0x01) into the DC's palette.
#pragma once

#include "platform/soft/gdi_objects.h"
#include "platform/win32_types.h"

namespace glyphon::win::soft {

class SoftEngine;

// The plain RGB a COLORREF shows in this DC. An index past the palette's end takes entry 0.
COLORREF ResolveDcColor(const SoftEngine& engine, const DcObject& dc, COLORREF color);

}  // namespace glyphon::win::soft
