// A VARIANT that clears itself, and calls on another object's IDispatch by name.
#pragma once

#include "activex/windows_api.h"

namespace glyphon::activex {

class Variant : public VARIANT {
 public:
  Variant() { VariantInit(this); }
  ~Variant() { VariantClear(this); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  void Clear() { VariantClear(this); }
};

// A property of another object; false when the object has no such member or the call fails.
bool GetDispatchProperty(IDispatch* object, DISPID id, Variant& value);
bool GetDispatchProperty(IDispatch* object, const wchar_t* name, Variant& value);
bool PutDispatchProperty(IDispatch* object, const wchar_t* name, const VARIANT& value);

// The value converted to the type, or false when it does not convert.
bool ChangeVariantType(const VARIANT& value, VARTYPE type, Variant& converted);

}  // namespace glyphon::activex
