// Late binding: names and dispatch identifiers come from the metadata table, and the members run
// through the control's own getters and setters. The control's errors reach the client as
// DISP_E_EXCEPTION with their number, source and description.
#include "activex/com_error.h"
#include "activex/error_info.h"
#include "activex/glyphon_object.h"
#include "activex/guids.h"
#include "activex/text.h"
#include "activex/type_library.h"
#include "activex/values.h"
#include "control/ascii_case.h"
#include "platform/automation_error.h"
#include "control/property_access.h"

namespace glyphon::activex {

namespace {

const MemberInfo* FindInterfaceMember(DISPID id) {
  for (const MemberInfo& member : GlyphonMembers()) {
    if (member.kind != MemberKind::Event && member.dispId == id) return &member;
  }
  return nullptr;
}

bool Writable(const MemberInfo& member) {
  return (member.access & (kAccessLet | kAccessLetByRef | kAccessSet)) != 0;
}

// Fills the client's exception record and the thread's error object.
HRESULT ReportException(const AutomationError& error, EXCEPINFO* exception) {
  if (exception != nullptr) {
    *exception = EXCEPINFO{};
    exception->bstrSource = MakeBstr(error.Source());
    exception->bstrDescription = MakeBstr(error.Description());
    exception->scode = error.Number();
  }
  SetThreadErrorInfo(error, kGlyphonDispatchId);
  return DISP_E_EXCEPTION;
}

}  // namespace

STDMETHODIMP GlyphonObject::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

STDMETHODIMP GlyphonObject::GetTypeInfo(UINT index, LCID /*locale*/, ITypeInfo** info) {
  if (index != 0) return DISP_E_BADINDEX;
  return GetGlyphonTypeInfo(kGlyphonDispatchId, info);
}

STDMETHODIMP GlyphonObject::GetIDsOfNames(REFIID /*id*/, LPOLESTR* names, UINT count,
                                          LCID /*locale*/, DISPID* ids) {
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  const std::string name = Narrow(names[0]);
  const MemberInfo* member = FindMember(name, MemberKind::Property);
  if (member == nullptr) member = FindMember(name, MemberKind::Method);
  ids[0] = member != nullptr ? member->dispId : DISPID_UNKNOWN;
  // No member takes named parameters.
  for (UINT i = 1; i < count; ++i) ids[i] = DISPID_UNKNOWN;
  return member != nullptr && count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

STDMETHODIMP GlyphonObject::Invoke(DISPID id, REFIID interfaceId, LCID /*locale*/, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* argumentError) {
  if (!IsEqualIID(interfaceId, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  if (parameters == nullptr) return E_INVALIDARG;
  const MemberInfo* member = FindInterfaceMember(id);
  if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
  if (result != nullptr) VariantInit(result);
  return Guarded([&] {
    try {
      return InvokeMember(*member, flags, *parameters, result, argumentError);
    } catch (const AutomationError& error) {
      return ReportException(error, exception);
    }
  });
}

HRESULT GlyphonObject::InvokeMember(const MemberInfo& member, WORD flags, DISPPARAMS& parameters,
                                    VARIANT* result, UINT* argumentError) {
  if (member.kind == MemberKind::Method) {
    if ((flags & DISPATCH_METHOD) == 0) return DISP_E_MEMBERNOTFOUND;
    if (parameters.cArgs != 0) return DISP_E_BADPARAMCOUNT;
    if (EqualsIgnoringCase(member.name, "About")) {
      control_->About();
    } else {
      control_->Refresh();
    }
    return S_OK;
  }

  if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
    if (!Writable(member)) return DISP_E_MEMBERNOTFOUND;
    if (parameters.cArgs != 1) return DISP_E_BADPARAMCOUNT;
    if (parameters.cNamedArgs != 1 || parameters.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT) {
      return DISP_E_PARAMNOTOPTIONAL;
    }
    const std::optional<PropertyValue> value = ValueFromVariant(parameters.rgvarg[0]);
    if (!value) {
      if (argumentError != nullptr) *argumentError = 0;
      return DISP_E_TYPEMISMATCH;
    }
    SetPropertyByName(*control_, member.name, *value);
    return S_OK;
  }

  if ((flags & (DISPATCH_PROPERTYGET | DISPATCH_METHOD)) == 0) return DISP_E_MEMBERNOTFOUND;
  if (parameters.cArgs != 0) return DISP_E_BADPARAMCOUNT;
  const PropertyValue value = GetPropertyByName(*control_, member.name);
  if (result != nullptr) ValueToVariant(value, *result);
  return S_OK;
}

}  // namespace glyphon::activex
