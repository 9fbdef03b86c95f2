// The class factory of the control class: one static object whose references do not count; only
// LockServer holds the module.
#pragma once

#include "activex/windows_api.h"

namespace glyphon::activex {

IClassFactory& GlyphonClassFactory();

}  // namespace glyphon::activex
