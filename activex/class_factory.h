// The class factories of the DLL's classes (the control and its property page): static objects
// whose references do not count; only LockServer holds the module.
#pragma once

#include "activex/windows_api.h"

namespace glyphon::activex {

// Null for a class the DLL does not implement.
IClassFactory* FindClassFactory(REFCLSID classId);

}  // namespace glyphon::activex
