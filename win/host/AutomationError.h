#pragma once
// A failed late-bound call (IDispatch::Invoke) as the runtime error VB raises for it: one
// mapping for the plug-in's calls into the host (DispatchCaller) and for the test host's calls
// into the plug-in (hostdriver).
#include <oaidl.h>
#include <windows.h>

#include "vb/Errors.h"

namespace quorbel {

// The VB error number of a failure code: the number a FACILITY_CONTROL code carries (what VB
// components return), VB's number for the standard dispatch and COM failures, 440 (Automation
// error) for any other.
int automationErrorNumber(HRESULT code);

// The error for a failed Invoke: with DISP_E_EXCEPTION the EXCEPINFO tells it (its wCode, else
// its scode; its description, else the number's standard one), otherwise the HRESULT does.
// Fills a deferred EXCEPINFO first and frees its strings.
vb::RuntimeError automationError(HRESULT hr, EXCEPINFO& excep);

}  // namespace quorbel
