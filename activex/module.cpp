#include "activex/module.h"

#include <atomic>

#include "activex/class_factory.h"
#include "activex/page/page_view.h"
#include "activex/parking_window.h"
#include "activex/type_library.h"
#include "control/host/host_windows.h"
#include "platform/native/native_engine.h"

namespace glyphon::activex {

namespace {

HINSTANCE moduleInstance = nullptr;
std::atomic<long> moduleLocks = 0;

}  // namespace

HINSTANCE ModuleInstance() { return moduleInstance; }

std::wstring ModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        GetModuleFileNameW(moduleInstance, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

void LockModule() { ++moduleLocks; }
void UnlockModule() { --moduleLocks; }
bool ModuleInUse() { return moduleLocks.load() != 0; }

}  // namespace glyphon::activex

using namespace glyphon::activex;

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) {
    moduleInstance = instance;
    // The control draws and handles windows on its host's threads through the real API.
    glyphon::win::SetDefaultEngine(glyphon::win::native::TheNativeEngine());
  }
  return TRUE;
}

extern "C" HRESULT __stdcall DllGetClassObject(REFCLSID classId, REFIID interfaceId,
                                                void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  IClassFactory* factory = FindClassFactory(classId);
  if (factory == nullptr) return CLASS_E_CLASSNOTAVAILABLE;
  return factory->QueryInterface(interfaceId, object);
}

extern "C" HRESULT __stdcall DllCanUnloadNow() {
  if (ModuleInUse()) return S_FALSE;
  ReleaseTypeLibrary();
  UnregisterParkingWindowClass();
  UnregisterPageWindowClass();
  glyphon::UnregisterHostWindowClasses();
  return S_OK;
}
