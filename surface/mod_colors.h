// Colour arithmetic of the button: system colours, component split, conversion between RGB and
// hue/luminance/saturation on the 0-240 scale of the platform's colour dialog, and the derivation
// of the shadow, border and highlight colours from a background colour.
//
// The functions keep the arithmetic of the original module exactly: 32-bit floats, signed 32-bit
// colour values (a system colour is negative), truncation where colours are rebuilt and rounding
// half to even where the derived luminance is chosen. Results by reference follow that module too.
#pragma once

#include <cstdint>

#include "platform/win32_types.h"

namespace glyphon::modColors {

// True when the top byte is 0x80 (a system colour index in the low byte); only that byte counts.
bool IsSystemColor(win::OLE_COLOR color);

// Components by truncating division with a remainder that follows the dividend's sign. The value
// is not translated, so a system colour yields negative components.
void SplitRGB(std::int32_t color, std::int32_t& red, std::int32_t& green, std::int32_t& blue);

// a when a >= b, else b (and the reverse for MinSingle); a NaN in a picks b.
float MaxSingle(float a, float b);
float MinSingle(float a, float b);

// Hue, saturation and luminance of an RGB value, each 0-240 (hue 0 red, 80 green, 160 blue).
void RGBToHLS(std::int32_t rgb, float& h, float& s, float& l);

// The RGB value of a hue/saturation/luminance triple (0-240 each); channels are truncated.
win::COLORREF HLSToRGB(float h, float s, float l);

// One channel of HLSToRGB. Wraps t into range in place, so the caller's t changes.
float HueToRGB(float& p, float& q, float& t);

// Shadow (two thirds of the luminance), border (black) and highlight (half-way to white) of a
// background OLE colour; system colours are resolved at the time of the call.
void DeriveButtonColors(win::OLE_COLOR color, win::COLORREF& shadow, win::COLORREF& border,
                        win::COLORREF& highlight);

}  // namespace glyphon::modColors
