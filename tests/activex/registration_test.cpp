// regsvr32 registered the DLL before these tests ran (scripts/windows-tests.sh); unregistration
// runs regsvr32 again and registers the DLL back.
#include <gtest/gtest.h>
#include <windows.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <string>

#include "control/glyphon_metadata.h"

namespace glyphon::activex::testing {
namespace {

using Microsoft::WRL::ComPtr;

// The General property page's class, which saved forms and the control's page list name.
constexpr const wchar_t* kGeneralPageKey = L"CLSID\\{1DE2C4EE-CD7D-4981-9676-5F2C66DC6652}";

std::wstring ClassIdText() {
  CLSID classId{};
  if (FAILED(CLSIDFromProgID(L"zonGlyphon.Glyphon", &classId))) return {};
  wchar_t text[40] = {};
  StringFromGUID2(classId, text, 40);
  return text;
}

std::wstring ReadValue(const std::wstring& key, const wchar_t* name = nullptr) {
  wchar_t buffer[1024] = {};
  DWORD size = sizeof buffer;
  if (RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), name, RRF_RT_REG_SZ, nullptr, buffer, &size) !=
      ERROR_SUCCESS) {
    return L"<missing>";
  }
  return buffer;
}

bool KeyExists(const std::wstring& key) {
  HKEY handle = nullptr;
  if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ, &handle) != ERROR_SUCCESS) {
    return false;
  }
  RegCloseKey(handle);
  return true;
}

std::wstring Widen(std::string_view text) { return std::wstring(text.begin(), text.end()); }

ComPtr<ITypeInfo> TypeInfoNamed(ITypeLib& library, const wchar_t* name) {
  std::wstring buffer(name);
  ComPtr<ITypeInfo> info;
  MEMBERID id = 0;
  USHORT found = 1;
  library.FindName(buffer.data(), 0, info.GetAddressOf(), &id, &found);
  return found == 1 ? info : nullptr;
}

TEST(Registration, ClassProgIdControlThreadingAndPageKeys) {
  const std::wstring classId = ClassIdText();
  ASSERT_FALSE(classId.empty()) << "zonGlyphon.Glyphon is not registered";
  const std::wstring key = L"CLSID\\" + classId;
  EXPECT_NE(ReadValue(key + L"\\InprocServer32").find(L"zonGlyphon.dll"), std::wstring::npos);
  EXPECT_EQ(ReadValue(key + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
  EXPECT_EQ(ReadValue(key + L"\\ProgID"), L"zonGlyphon.Glyphon");
  EXPECT_TRUE(KeyExists(key + L"\\Control"));
  EXPECT_NE(ReadValue(key + L"\\MiscStatus\\1"), L"<missing>");
  EXPECT_EQ(ReadValue(L"zonGlyphon.Glyphon\\CLSID"), classId);

  EXPECT_EQ(ReadValue(std::wstring(kGeneralPageKey) + L"\\InprocServer32"),
            ReadValue(key + L"\\InprocServer32"));
  EXPECT_EQ(ReadValue(std::wstring(kGeneralPageKey) + L"\\InprocServer32", L"ThreadingModel"),
            L"Apartment");
}

// The registered type library says what the metadata table says, member by member (the table's
// own tests check its standard identifiers).
TEST(Registration, TypeLibraryDescribesEveryMemberOfTheTable) {
  const std::wstring libraryId = ReadValue(L"CLSID\\" + ClassIdText() + L"\\TypeLib");
  GUID id{};
  ASSERT_HRESULT_SUCCEEDED(CLSIDFromString(libraryId.c_str(), &id));
  ComPtr<ITypeLib> library;
  ASSERT_HRESULT_SUCCEEDED(LoadRegTypeLib(id, 1, 0, 0, library.GetAddressOf()));

  const ComPtr<ITypeInfo> dispatch = TypeInfoNamed(*library.Get(), L"_Glyphon");
  const ComPtr<ITypeInfo> events = TypeInfoNamed(*library.Get(), L"_GlyphonEvents");
  ASSERT_TRUE(dispatch && events);
  int eventCount = 0;
  for (const MemberInfo& member : GlyphonMembers()) {
    ITypeInfo& owner = *(member.kind == MemberKind::Event ? events : dispatch).Get();
    std::wstring name = Widen(member.name);
    LPOLESTR names = name.data();
    MEMBERID memberId = 0;
    ASSERT_HRESULT_SUCCEEDED(owner.GetIDsOfNames(&names, 1, &memberId)) << member.name;
    EXPECT_EQ(memberId, member.dispId) << member.name;
    BSTR help = nullptr;
    ASSERT_HRESULT_SUCCEEDED(owner.GetDocumentation(memberId, nullptr, &help, nullptr, nullptr));
    EXPECT_EQ(std::wstring(help != nullptr ? help : L""), Widen(member.helpString)) << member.name;
    SysFreeString(help);
    if (member.kind == MemberKind::Event) ++eventCount;
  }
  EXPECT_EQ(eventCount, 9);

  for (const EnumInfo& enumeration : GlyphonEnumerations()) {
    const ComPtr<ITypeInfo> info = TypeInfoNamed(*library.Get(), Widen(enumeration.name).c_str());
    ASSERT_TRUE(info) << enumeration.name;
    TYPEATTR* attributes = nullptr;
    ASSERT_HRESULT_SUCCEEDED(info->GetTypeAttr(&attributes));
    EXPECT_EQ(attributes->typekind, TKIND_ENUM);
    ASSERT_EQ(attributes->cVars, enumeration.members.size());
    info->ReleaseTypeAttr(attributes);
    for (UINT i = 0; i < enumeration.members.size(); ++i) {
      VARDESC* variable = nullptr;
      ASSERT_HRESULT_SUCCEEDED(info->GetVarDesc(i, &variable));
      BSTR constant = nullptr;
      UINT count = 0;
      info->GetNames(variable->memid, &constant, 1, &count);
      EXPECT_EQ(std::wstring(constant), Widen(enumeration.members[i].name));
      EXPECT_EQ(variable->lpvarValue->lVal, enumeration.members[i].value);
      SysFreeString(constant);
      info->ReleaseVarDesc(variable);
    }
  }
}

int RunRegsvr32(const std::wstring& arguments) {
  std::wstring command = L"regsvr32.exe /s " + arguments;
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &startup, &process)) {
    return -1;
  }
  WaitForSingleObject(process.hProcess, 60000);
  DWORD code = 1;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(code);
}

TEST(Registration, UnregistrationRemovesTheClassesAndTheLibrary) {
  const std::wstring classId = ClassIdText();
  ASSERT_FALSE(classId.empty());
  const std::wstring dll = ReadValue(L"CLSID\\" + classId + L"\\InprocServer32");
  const std::wstring libraryKey = L"TypeLib\\" + ReadValue(L"CLSID\\" + classId + L"\\TypeLib");
  ASSERT_TRUE(KeyExists(libraryKey));

  ASSERT_EQ(RunRegsvr32(L"/u \"" + dll + L"\""), 0);
  EXPECT_FALSE(KeyExists(L"CLSID\\" + classId));
  EXPECT_FALSE(KeyExists(L"zonGlyphon.Glyphon"));
  EXPECT_FALSE(KeyExists(kGeneralPageKey));
  EXPECT_FALSE(KeyExists(libraryKey));
  CLSID unused{};
  EXPECT_HRESULT_FAILED(CLSIDFromProgID(L"zonGlyphon.Glyphon", &unused));

  // The rest of the run needs the control again.
  ASSERT_EQ(RunRegsvr32(L"\"" + dll + L"\""), 0);
  EXPECT_EQ(ClassIdText(), classId);
  EXPECT_TRUE(KeyExists(kGeneralPageKey));
}

}  // namespace
}  // namespace glyphon::activex::testing
