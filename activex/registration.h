// What registration tells the system about the control class and its property page.
#pragma once

#include "activex/windows_api.h"

namespace glyphon::activex {

// How containers should treat the control: site it before loading, activate it when visible
// (in its own window, inside-out), and treat it as a button.
inline constexpr DWORD kMiscStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE |
                                     OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE |
                                     OLEMISC_SETCLIENTSITEFIRST | OLEMISC_ACTSLIKEBUTTON;

inline constexpr const wchar_t* kUserTypeName = L"Glyphon Control";
inline constexpr const wchar_t* kGeneralPageTypeName = L"Glyphon General Property Page";

}  // namespace glyphon::activex
