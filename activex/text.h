// The control keeps text in the ANSI code page, as its drawing calls take it; COM speaks UTF-16.
#pragma once

#include "activex/windows_api.h"

#include <string>
#include <string_view>

namespace glyphon::activex {

std::wstring Widen(std::string_view text);
std::string Narrow(std::wstring_view text);
// A new BSTR the caller frees (null when out of memory).
BSTR MakeBstr(std::string_view text);
// A BSTR's text; null reads as empty, as automation treats it.
std::string FromBstr(BSTR text);

}  // namespace glyphon::activex
