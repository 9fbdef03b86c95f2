// A selected object as the General page reads and writes it: properties by name through the
// object's IDispatch (GetIDsOfNames, then Invoke), the way an automation client binds late.
// An exception the object raises becomes the AutomationError with its number, source and
// description; other failures become the automation errors a client would see for them.
#pragma once

#include "activex/windows_api.h"

#include <utility>

namespace glyphon::activex {

class DispatchObject final : public LateBoundObject {
 public:
  explicit DispatchObject(ComPtr<IDispatch> object) : object_(std::move(object)) {}

  PropertyValue GetProperty(std::string_view name) const override;
  void SetProperty(std::string_view name, const PropertyValue& value) override;

 private:
  DISPID IdOf(std::string_view name) const;
  void Invoke(std::string_view name, WORD flags, DISPPARAMS& parameters, VARIANT* result) const;

  ComPtr<IDispatch> object_;
};

}  // namespace glyphon::activex
