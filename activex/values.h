// The control's values (property-bag values, late-bound property values) as VARIANTs, and back.
#pragma once

#include <optional>

#include "activex/windows_api.h"

namespace glyphon::activex {

// Numbers keep their width, Booleans are VT_BOOL, text a BSTR, fonts and pictures their
// objects (no object is a null VT_DISPATCH).
void ValueToVariant(const PropertyValue& value, VARIANT& result);

// References are followed; integers keep their width (unsigned ones their bit pattern), other
// numbers convert to 32-bit integers the way automation rounds, null objects are no object.
// Nullopt for a value of no type the control holds.
std::optional<PropertyValue> ValueFromVariant(const VARIANT& value);

}  // namespace glyphon::activex
