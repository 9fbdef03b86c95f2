// The control's errors as COM callers read them: the thread's error object, and an HRESULT.
#pragma once

#include "activex/windows_api.h"
#include "platform/automation_error.h"

namespace glyphon::activex {

// Makes the error the thread's error object (its source and description), raised through the
// interface interfaceId.
void SetThreadErrorInfo(const AutomationError& error, REFGUID interfaceId);

// Sets the error object and gives the error's number as the failing HRESULT of a call.
HRESULT ReportError(const AutomationError& error, REFGUID interfaceId);

}  // namespace glyphon::activex
