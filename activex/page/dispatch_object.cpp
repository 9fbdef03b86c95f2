#include "activex/page/dispatch_object.h"

#include <string>

#include "activex/text.h"
#include "activex/values.h"
#include "activex/variant.h"
#include "control/glyphon_errors.h"

namespace glyphon::activex {

namespace {

// The number a client reports for an exception: its status code, or its error code in the
// control facility, as automation numbers errors.
std::int32_t ExceptionNumber(const EXCEPINFO& exception) {
  if (exception.scode != 0) return exception.scode;
  if (exception.wCode != 0) return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, exception.wCode);
  return DISP_E_EXCEPTION;
}

// Frees the exception's strings whatever becomes of it.
class ExceptionRecord : public EXCEPINFO {
 public:
  ExceptionRecord() : EXCEPINFO{} {}
  ~ExceptionRecord() {
    SysFreeString(bstrSource);
    SysFreeString(bstrDescription);
    SysFreeString(bstrHelpFile);
  }
  ExceptionRecord(const ExceptionRecord&) = delete;
  ExceptionRecord& operator=(const ExceptionRecord&) = delete;

  [[noreturn]] void Raise() {
    if (pfnDeferredFillIn != nullptr) pfnDeferredFillIn(this);
    throw AutomationError(ExceptionNumber(*this), FromBstr(bstrSource),
                          FromBstr(bstrDescription));
  }
};

[[noreturn]] void RaiseFailure(HRESULT result, std::string_view name) {
  switch (result) {
    case DISP_E_UNKNOWNNAME:
    case DISP_E_MEMBERNOTFOUND:
      RaiseError(kNoSuchMemberNumber, name, kNoSuchMemberMessage);
    case DISP_E_TYPEMISMATCH:
      RaiseError(kTypeMismatchNumber, name, kTypeMismatchMessage);
    case DISP_E_OVERFLOW:
      RaiseError(kOverflowNumber, name, kOverflowMessage);
    default:
      RaiseError(result, name, "Automation error");
  }
}

}  // namespace

PropertyValue DispatchObject::GetProperty(std::string_view name) const {
  Variant result;
  DISPPARAMS none{};
  Invoke(name, DISPATCH_PROPERTYGET, none, &result);
  std::optional<PropertyValue> value = ValueFromVariant(result);
  if (!value) RaiseError(kTypeMismatchNumber, name, kTypeMismatchMessage);
  return *std::move(value);
}

void DispatchObject::SetProperty(std::string_view name, const PropertyValue& value) {
  Variant argument;
  ValueToVariant(value, argument);
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&argument, &named, 1, 1};
  // Objects (fonts, pictures) are assigned by reference, everything else by value.
  Invoke(name, argument.vt == VT_DISPATCH ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT,
         parameters, nullptr);
}

DISPID DispatchObject::IdOf(std::string_view name) const {
  std::wstring wide = Widen(name);
  LPOLESTR names = wide.data();
  DISPID id = DISPID_UNKNOWN;
  const HRESULT result = object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(result)) RaiseFailure(result, name);
  return id;
}

void DispatchObject::Invoke(std::string_view name, WORD flags, DISPPARAMS& parameters,
                            VARIANT* result) const {
  ExceptionRecord exception;
  UINT argumentError = 0;
  const HRESULT invoked = object_->Invoke(IdOf(name), IID_NULL, LOCALE_USER_DEFAULT, flags,
                                          &parameters, result, &exception, &argumentError);
  if (invoked == DISP_E_EXCEPTION) exception.Raise();
  if (FAILED(invoked)) RaiseFailure(invoked, name);
}

}  // namespace glyphon::activex
