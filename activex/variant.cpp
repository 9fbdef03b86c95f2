#include "activex/variant.h"

namespace glyphon::activex {

namespace {

bool FindDispatchId(IDispatch* object, const wchar_t* name, DISPID& id) {
  if (object == nullptr) return false;
  auto* names = const_cast<LPOLESTR>(name);
  return SUCCEEDED(object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id));
}

}  // namespace

bool GetDispatchProperty(IDispatch* object, DISPID id, Variant& value) {
  if (object == nullptr) return false;
  value.Clear();
  DISPPARAMS none{};
  return SUCCEEDED(object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                                  &value, nullptr, nullptr));
}

bool GetDispatchProperty(IDispatch* object, const wchar_t* name, Variant& value) {
  DISPID id = 0;
  return FindDispatchId(object, name, id) && GetDispatchProperty(object, id, value);
}

bool PutDispatchProperty(IDispatch* object, const wchar_t* name, const VARIANT& value) {
  DISPID id = 0;
  if (!FindDispatchId(object, name, id)) return false;
  VARIANT argument = value;
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&argument, &named, 1, 1};
  return SUCCEEDED(object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT,
                                  &parameters, nullptr, nullptr, nullptr));
}

bool ChangeVariantType(const VARIANT& value, VARTYPE type, Variant& converted) {
  converted.Clear();
  return SUCCEEDED(VariantChangeType(&converted, const_cast<VARIANT*>(&value), 0, type));
}

}  // namespace glyphon::activex
