// The type library, made from the control's metadata table (control/glyphon_metadata.h), the one
// description of the automation interface: the six enumerations, the default dispatch interface
// with every property and method, the source dispatch interface with the nine events, and the
// creatable control class. Registration writes it beside the DLL and registers it; the objects
// read the registered copy.
#pragma once

#include "activex/windows_api.h"

#include <string>

namespace glyphon::activex {

// Builds the library into a file (written by SaveAllChanges on the result).
ComPtr<ICreateTypeLib2> BuildTypeLibrary(const std::wstring& file);

// The registered library, loaded once per process; null when it is not registered.
ITypeLib* GlyphonTypeLibrary();
// Drops the cached library (when the DLL may unload).
void ReleaseTypeLibrary();

// The type information of the library's class or interface with that identity, AddRef'ed.
HRESULT GetGlyphonTypeInfo(REFGUID guid, ITypeInfo** info);

}  // namespace glyphon::activex
