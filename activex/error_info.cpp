#include "activex/error_info.h"

#include <string>

#include "activex/text.h"

namespace glyphon::activex {

void SetThreadErrorInfo(const AutomationError& error, REFGUID interfaceId) {
  ComPtr<ICreateErrorInfo> created;
  if (FAILED(CreateErrorInfo(created.GetAddressOf()))) return;
  const std::wstring source = Widen(error.Source());
  const std::wstring description = Widen(error.Description());
  created->SetGUID(interfaceId);
  created->SetSource(const_cast<LPOLESTR>(source.c_str()));
  created->SetDescription(const_cast<LPOLESTR>(description.c_str()));
  ComPtr<IErrorInfo> info;
  if (SUCCEEDED(created.As(&info))) ::SetErrorInfo(0, info.Get());
}

HRESULT ReportError(const AutomationError& error, REFGUID interfaceId) {
  SetThreadErrorInfo(error, interfaceId);
  // Automation error numbers are failing HRESULTs; anything else still fails the call.
  return FAILED(error.Number()) ? static_cast<HRESULT>(error.Number()) : E_FAIL;
}

}  // namespace glyphon::activex
