// The identities of the library, its class, its two dispatch interfaces and its property page.
// They never change: hosts store them in saved forms and in the registry.
#pragma once

#include "activex/windows_api.h"

namespace glyphon::activex {

extern const GUID kLibraryId;
extern const CLSID kGlyphonClassId;
// The default (properties and methods) and the source (events) dispatch interfaces.
extern const IID kGlyphonDispatchId;
extern const IID kGlyphonEventsId;
// The General property page.
extern const CLSID kGeneralPageClassId;

inline constexpr WORD kLibraryMajorVersion = 1;
inline constexpr WORD kLibraryMinorVersion = 0;

}  // namespace glyphon::activex
