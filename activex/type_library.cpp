#include "activex/type_library.h"

#include <string_view>
#include <vector>

#include "activex/com_error.h"
#include "activex/guids.h"
#include "activex/text.h"
#include "control/glyphon_metadata.h"

namespace glyphon::activex {

namespace {

// Enumeration constants take identifiers from this base upwards, as IDL compilers number them.
constexpr MEMBERID kFirstConstantId = 0x40000000;

// Types of the standard OLE library that the interface refers to.
struct StandardTypes {
  ComPtr<ITypeInfo> dispatch;
  ComPtr<ITypeInfo> fontDisp;
  ComPtr<ITypeInfo> pictureDisp;
  ComPtr<ITypeInfo> color;
  ComPtr<ITypeInfo> handle;
};

ComPtr<ITypeInfo> FindAlias(ITypeLib& library, const wchar_t* name) {
  std::wstring buffer(name);
  ComPtr<ITypeInfo> info;
  MEMBERID memberId = 0;
  USHORT found = 1;
  ThrowIfFailed(library.FindName(buffer.data(), 0, info.GetAddressOf(), &memberId, &found));
  if (found == 0) throw ComFailure(TYPE_E_ELEMENTNOTFOUND);
  return info;
}

StandardTypes LoadStandardTypes() {
  ComPtr<ITypeLib> stdole;
  ThrowIfFailed(LoadRegTypeLib(IID_StdOle, STDOLE2_MAJORVERNUM, STDOLE2_MINORVERNUM, STDOLE2_LCID,
                               stdole.GetAddressOf()));
  StandardTypes types;
  ThrowIfFailed(stdole->GetTypeInfoOfGuid(IID_IDispatch, types.dispatch.GetAddressOf()));
  ThrowIfFailed(stdole->GetTypeInfoOfGuid(IID_IFontDisp, types.fontDisp.GetAddressOf()));
  ThrowIfFailed(stdole->GetTypeInfoOfGuid(IID_IPictureDisp, types.pictureDisp.GetAddressOf()));
  types.color = FindAlias(*stdole.Get(), L"OLE_COLOR");
  types.handle = FindAlias(*stdole.Get(), L"OLE_HANDLE");
  return types;
}

// A parameter or result type. Object types are pointers to their interface, so the description
// keeps the pointed-to part alive beside the outer one.
struct TypeDescription {
  TYPEDESC outer{};
  TYPEDESC inner{};

  TypeDescription() = default;
  TypeDescription(const TypeDescription&) = delete;
  TypeDescription& operator=(const TypeDescription&) = delete;

  void Simple(VARTYPE type) { outer.vt = type; }
  void UserDefined(HREFTYPE reference) {
    outer.vt = VT_USERDEFINED;
    outer.hreftype = reference;
  }
  void PointerTo(VARTYPE type) {
    inner.vt = type;
    outer.vt = VT_PTR;
    outer.lptdesc = &inner;
  }
  void PointerToUserDefined(HREFTYPE reference) {
    inner.vt = VT_USERDEFINED;
    inner.hreftype = reference;
    outer.vt = VT_PTR;
    outer.lptdesc = &inner;
  }
};

class InterfaceBuilder {
 public:
  InterfaceBuilder(ICreateTypeInfo& info, const StandardTypes& types,
                   const std::vector<std::pair<std::string_view, ComPtr<ITypeInfo>>>& enumerations)
      : info_(info), types_(types), enumerations_(enumerations) {}

  void AddProperty(const MemberInfo& member) {
    if ((member.access & kAccessGet) != 0) AddFunction(member, INVOKE_PROPERTYGET);
    if ((member.access & (kAccessLet | kAccessLetByRef)) != 0) {
      AddFunction(member, INVOKE_PROPERTYPUT);
    }
    if ((member.access & kAccessSet) != 0) AddFunction(member, INVOKE_PROPERTYPUTREF);
  }

  void AddMethod(const MemberInfo& member) { AddFunction(member, INVOKE_FUNC); }

 private:
  void Describe(TypeDescription& description, MemberType type, std::string_view enumeration) {
    switch (type) {
      case MemberType::None:
        description.Simple(VT_VOID);
        break;
      case MemberType::Boolean:
        description.Simple(VT_BOOL);
        break;
      case MemberType::Integer:
        description.Simple(VT_I2);
        break;
      case MemberType::Long:
        description.Simple(VT_I4);
        break;
      case MemberType::Single:
        description.Simple(VT_R4);
        break;
      case MemberType::Color:
        description.UserDefined(Reference(*types_.color.Get()));
        break;
      case MemberType::String:
        description.Simple(VT_BSTR);
        break;
      case MemberType::Font:
        description.PointerToUserDefined(Reference(*types_.fontDisp.Get()));
        break;
      case MemberType::Picture:
        description.PointerToUserDefined(Reference(*types_.pictureDisp.Get()));
        break;
      case MemberType::Handle:
        description.UserDefined(Reference(*types_.handle.Get()));
        break;
      case MemberType::Enumeration:
        description.UserDefined(Reference(*EnumerationInfo(enumeration)));
        break;
    }
  }

  ITypeInfo* EnumerationInfo(std::string_view name) const {
    for (const auto& [enumerationName, info] : enumerations_) {
      if (enumerationName == name) return info.Get();
    }
    throw ComFailure(TYPE_E_ELEMENTNOTFOUND);
  }

  HREFTYPE Reference(ITypeInfo& referenced) {
    HREFTYPE reference = 0;
    ThrowIfFailed(info_.AddRefTypeInfo(&referenced, &reference));
    return reference;
  }

  void AddFunction(const MemberInfo& member, INVOKEKIND kind) {
    const bool isPut = kind == INVOKE_PROPERTYPUT || kind == INVOKE_PROPERTYPUTREF;
    TypeDescription result;
    Describe(result, kind == INVOKE_PROPERTYGET ? member.type : MemberType::None,
             member.enumeration);

    std::vector<ParameterInfo> parameters(member.parameters.begin(), member.parameters.end());
    if (isPut) parameters.push_back(ParameterInfo{"", member.type, false});
    std::vector<TypeDescription> parameterTypes(parameters.size());
    std::vector<ELEMDESC> elements(parameters.size());
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      TypeDescription& description = parameterTypes[i];
      if (parameters[i].byRef) {
        // Events hand their scalars by reference, so a handler may change them.
        TypeDescription scalar;
        Describe(scalar, parameters[i].type, {});
        description.PointerTo(scalar.outer.vt);
      } else {
        Describe(description, parameters[i].type, member.enumeration);
      }
      elements[i].tdesc = description.outer;
      elements[i].paramdesc.wParamFlags =
          parameters[i].byRef ? PARAMFLAG_FIN | PARAMFLAG_FOUT : PARAMFLAG_FIN;
    }

    FUNCDESC function{};
    function.memid = member.dispId;
    function.funckind = FUNC_DISPATCH;
    function.invkind = kind;
    function.callconv = CC_STDCALL;
    function.cParams = static_cast<SHORT>(elements.size());
    function.lprgelemdescParam = elements.empty() ? nullptr : elements.data();
    function.elemdescFunc.tdesc = result.outer;
    const UINT index = count_++;
    ThrowIfFailed(info_.AddFuncDesc(index, &function));

    // A property's put takes its value unnamed; methods and events name every parameter.
    std::vector<std::wstring> names{Widen(member.name)};
    if (!isPut) {
      for (const ParameterInfo& parameter : member.parameters) {
        names.push_back(Widen(parameter.name));
      }
    }
    std::vector<LPOLESTR> namePointers;
    for (std::wstring& name : names) namePointers.push_back(name.data());
    ThrowIfFailed(info_.SetFuncAndParamNames(index, namePointers.data(),
                                             static_cast<UINT>(namePointers.size())));
    if (!member.helpString.empty()) {
      std::wstring help = Widen(member.helpString);
      ThrowIfFailed(info_.SetFuncDocString(index, help.data()));
    }
  }

  ICreateTypeInfo& info_;
  const StandardTypes& types_;
  const std::vector<std::pair<std::string_view, ComPtr<ITypeInfo>>>& enumerations_;
  UINT count_ = 0;
};

ComPtr<ICreateTypeInfo> CreateInfo(ICreateTypeLib2& library, std::string_view name, TYPEKIND kind) {
  std::wstring wideName = Widen(name);
  ComPtr<ICreateTypeInfo> info;
  ThrowIfFailed(library.CreateTypeInfo(wideName.data(), kind, info.GetAddressOf()));
  return info;
}

ComPtr<ITypeInfo> AsTypeInfo(ICreateTypeInfo& info) {
  ComPtr<ITypeInfo> typeInfo;
  ThrowIfFailed(info.QueryInterface(IID_PPV_ARGS(typeInfo.GetAddressOf())));
  return typeInfo;
}

ComPtr<ITypeInfo> AddEnumeration(ICreateTypeLib2& library, const EnumInfo& enumeration) {
  ComPtr<ICreateTypeInfo> info = CreateInfo(library, enumeration.name, TKIND_ENUM);
  UINT index = 0;
  for (const EnumMemberInfo& constant : enumeration.members) {
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_I4;
    value.lVal = constant.value;
    VARDESC description{};
    description.memid = kFirstConstantId + static_cast<MEMBERID>(index);
    description.lpvarValue = &value;
    description.elemdescVar.tdesc.vt = VT_I4;
    description.varkind = VAR_CONST;
    ThrowIfFailed(info->AddVarDesc(index, &description));
    std::wstring name = Widen(constant.name);
    ThrowIfFailed(info->SetVarName(index, name.data()));
    ++index;
  }
  ThrowIfFailed(info->LayOut());
  return AsTypeInfo(*info.Get());
}

// A dispatch interface holding the members of one kind group: properties and methods, or events.
ComPtr<ITypeInfo> AddDispatchInterface(
    ICreateTypeLib2& library, std::string_view name, REFIID id, bool events,
    const StandardTypes& types,
    const std::vector<std::pair<std::string_view, ComPtr<ITypeInfo>>>& enumerations) {
  ComPtr<ICreateTypeInfo> info = CreateInfo(library, name, TKIND_DISPATCH);
  ThrowIfFailed(info->SetGuid(id));
  ThrowIfFailed(info->SetTypeFlags(TYPEFLAG_FHIDDEN | TYPEFLAG_FDISPATCHABLE));
  HREFTYPE dispatch = 0;
  ThrowIfFailed(info->AddRefTypeInfo(types.dispatch.Get(), &dispatch));
  ThrowIfFailed(info->AddImplType(0, dispatch));
  InterfaceBuilder builder(*info.Get(), types, enumerations);
  for (const MemberInfo& member : GlyphonMembers()) {
    if (events) {
      if (member.kind == MemberKind::Event) builder.AddMethod(member);
    } else if (member.kind == MemberKind::Property) {
      builder.AddProperty(member);
    } else if (member.kind == MemberKind::Method) {
      builder.AddMethod(member);
    }
  }
  ThrowIfFailed(info->LayOut());
  return AsTypeInfo(*info.Get());
}

void AddClass(ICreateTypeLib2& library, ITypeInfo& dispatch, ITypeInfo& events) {
  ComPtr<ICreateTypeInfo> info = CreateInfo(library, kClassName, TKIND_COCLASS);
  ThrowIfFailed(info->SetGuid(kGlyphonClassId));
  ThrowIfFailed(info->SetTypeFlags(TYPEFLAG_FCANCREATE | TYPEFLAG_FCONTROL));
  HREFTYPE reference = 0;
  ThrowIfFailed(info->AddRefTypeInfo(&dispatch, &reference));
  ThrowIfFailed(info->AddImplType(0, reference));
  ThrowIfFailed(info->SetImplTypeFlags(0, IMPLTYPEFLAG_FDEFAULT));
  ThrowIfFailed(info->AddRefTypeInfo(&events, &reference));
  ThrowIfFailed(info->AddImplType(1, reference));
  ThrowIfFailed(info->SetImplTypeFlags(1, IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE));
  ThrowIfFailed(info->LayOut());
}

ITypeLib*& CachedLibrary() {
  static ITypeLib* library = nullptr;
  return library;
}

}  // namespace

ComPtr<ICreateTypeLib2> BuildTypeLibrary(const std::wstring& file) {
  ComPtr<ICreateTypeLib2> library;
  ThrowIfFailed(CreateTypeLib2(kTypeLibrarySystem, file.c_str(), library.GetAddressOf()));
  std::wstring name = Widen(kLibraryName);
  ThrowIfFailed(library->SetName(name.data()));
  ThrowIfFailed(library->SetGuid(kLibraryId));
  ThrowIfFailed(library->SetVersion(kLibraryMajorVersion, kLibraryMinorVersion));
  ThrowIfFailed(library->SetLcid(LOCALE_NEUTRAL));
  std::wstring documentation = L"Glyphon push button control";
  ThrowIfFailed(library->SetDocString(documentation.data()));

  const StandardTypes types = LoadStandardTypes();
  std::vector<std::pair<std::string_view, ComPtr<ITypeInfo>>> enumerations;
  for (const EnumInfo& enumeration : GlyphonEnumerations()) {
    enumerations.emplace_back(enumeration.name, AddEnumeration(*library.Get(), enumeration));
  }
  const ComPtr<ITypeInfo> dispatch = AddDispatchInterface(
      *library.Get(), "_Glyphon", kGlyphonDispatchId, false, types, enumerations);
  const ComPtr<ITypeInfo> events = AddDispatchInterface(
      *library.Get(), "_GlyphonEvents", kGlyphonEventsId, true, types, enumerations);
  AddClass(*library.Get(), *dispatch.Get(), *events.Get());
  return library;
}

ITypeLib* GlyphonTypeLibrary() {
  ITypeLib*& library = CachedLibrary();
  if (library == nullptr) {
    LoadRegTypeLib(kLibraryId, kLibraryMajorVersion, kLibraryMinorVersion, LOCALE_NEUTRAL,
                   &library);
  }
  return library;
}

void ReleaseTypeLibrary() {
  ITypeLib*& library = CachedLibrary();
  if (library != nullptr) library->Release();
  library = nullptr;
}

HRESULT GetGlyphonTypeInfo(REFGUID guid, ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  ITypeLib* library = GlyphonTypeLibrary();
  if (library == nullptr) return TYPE_E_LIBNOTREGISTERED;
  return library->GetTypeInfoOfGuid(guid, info);
}

}  // namespace glyphon::activex
