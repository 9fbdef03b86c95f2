// The Windows and OLE headers of the ActiveX layer. The control's and the property page's headers
// come first: windows.h defines macros (TRUE, FW_BOLD, RGB, ...) that would rewrite the
// platform's declarations and inline code of the same names, so every activex file includes
// Windows through this header.
#pragma once

#include "control/glyphon.h"
#include "control/glyphon_metadata.h"
#include "control/host/control_site.h"
#include "control/host/hosted_control.h"
#include "control/host/property_bag.h"
#include "propertypage/general_page.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// clang-format off
#include <ole2.h>
#include <oaidl.h>
#include <ocidl.h>
#include <olectl.h>
#include <wrl/client.h>
// clang-format on

namespace glyphon::activex {

using Microsoft::WRL::ComPtr;

#ifdef _WIN64
inline constexpr SYSKIND kTypeLibrarySystem = SYS_WIN64;
#else
inline constexpr SYSKIND kTypeLibrarySystem = SYS_WIN32;
#endif

}  // namespace glyphon::activex
