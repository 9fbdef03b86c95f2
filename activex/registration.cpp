// DllRegisterServer and DllUnregisterServer: the control class, its programmatic identifier, its
// property page and the type library, which is made from the metadata table and written beside
// the DLL.
#include "activex/registration.h"

#include <string>

#include "activex/com_error.h"
#include "activex/guids.h"
#include "activex/module.h"
#include "activex/text.h"
#include "activex/type_library.h"
#include "control/glyphon_metadata.h"

namespace glyphon::activex {

namespace {

// Containers list controls by this category.
constexpr const wchar_t* kControlCategory = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";

std::wstring GuidText(REFGUID guid) {
  wchar_t text[40] = {};
  StringFromGUID2(guid, text, 40);
  return text;
}

void SetValue(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  HKEY handle = nullptr;
  const LSTATUS created = RegCreateKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, 0,
                                          KEY_WRITE, nullptr, &handle, nullptr);
  if (created != ERROR_SUCCESS) throw ComFailure(HRESULT_FROM_WIN32(created));
  const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
  const LSTATUS set = RegSetValueExW(handle, name, 0, REG_SZ,
                                     reinterpret_cast<const BYTE*>(value.c_str()), bytes);
  RegCloseKey(handle);
  if (set != ERROR_SUCCESS) throw ComFailure(HRESULT_FROM_WIN32(set));
}

void DeleteTree(const std::wstring& key) { RegDeleteTreeW(HKEY_CLASSES_ROOT, key.c_str()); }

std::wstring ClassKey(REFCLSID classId) { return L"CLSID\\" + GuidText(classId); }

// A class served by this DLL; everything runs on the thread of the host's user interface.
void RegisterInprocClass(const std::wstring& key, const wchar_t* typeName) {
  SetValue(key, nullptr, typeName);
  SetValue(key + L"\\InprocServer32", nullptr, ModulePath());
  SetValue(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
}

std::wstring TypeLibraryPath() {
  std::wstring path = ModulePath();
  const std::size_t dot = path.find_last_of(L'.');
  if (dot != std::wstring::npos && dot > path.find_last_of(L"\\/") + 1) path.resize(dot);
  return path + L".tlb";
}

void RegisterTypeLibrary() {
  const std::wstring path = TypeLibraryPath();
  ThrowIfFailed(BuildTypeLibrary(path)->SaveAllChanges());
  ComPtr<ITypeLib> library;
  ThrowIfFailed(LoadTypeLibEx(path.c_str(), REGKIND_REGISTER, library.GetAddressOf()));
}

void RegisterControlClass() {
  const std::wstring classId = GuidText(kGlyphonClassId);
  const std::wstring progId = Widen(kProgId);
  SetValue(progId, nullptr, kUserTypeName);
  SetValue(progId + L"\\CLSID", nullptr, classId);

  const std::wstring key = ClassKey(kGlyphonClassId);
  RegisterInprocClass(key, kUserTypeName);
  SetValue(key + L"\\ProgID", nullptr, progId);
  SetValue(key + L"\\Control", nullptr, L"");
  SetValue(key + L"\\MiscStatus", nullptr, L"0");
  SetValue(key + L"\\MiscStatus\\1", nullptr, std::to_wstring(kMiscStatus));
  SetValue(key + L"\\TypeLib", nullptr, GuidText(kLibraryId));
  SetValue(key + L"\\Version", nullptr,
           std::to_wstring(kLibraryMajorVersion) + L"." + std::to_wstring(kLibraryMinorVersion));
  SetValue(key + L"\\Implemented Categories\\" + kControlCategory, nullptr, L"");
}

}  // namespace

}  // namespace glyphon::activex

using namespace glyphon::activex;

extern "C" HRESULT __stdcall DllRegisterServer() {
  return Guarded([] {
    RegisterTypeLibrary();
    RegisterControlClass();
    RegisterInprocClass(ClassKey(kGeneralPageClassId), kGeneralPageTypeName);
    return S_OK;
  });
}

// Removes everything registration wrote; parts already gone are no error.
extern "C" HRESULT __stdcall DllUnregisterServer() {
  return Guarded([] {
    DeleteTree(Widen(glyphon::kProgId));
    DeleteTree(ClassKey(kGlyphonClassId));
    DeleteTree(ClassKey(kGeneralPageClassId));
    UnRegisterTypeLib(kLibraryId, kLibraryMajorVersion, kLibraryMinorVersion, LOCALE_NEUTRAL,
                      kTypeLibrarySystem);
    DeleteFileW(TypeLibraryPath().c_str());
    return S_OK;
  });
}
