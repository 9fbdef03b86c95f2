// The DLL as a whole: its instance handle and path, and the count of live objects and server
// locks that decides whether it may unload.
#pragma once

#include "activex/windows_api.h"

#include <string>

namespace glyphon::activex {

HINSTANCE ModuleInstance();
// The DLL's own file name, as registration writes it.
std::wstring ModulePath();

// Every live object and every IClassFactory::LockServer(TRUE) holds the module.
void LockModule();
void UnlockModule();
bool ModuleInUse();

}  // namespace glyphon::activex
