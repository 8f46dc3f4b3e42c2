#include "host/AutomationError.h"

#include "platform/Bstr.h"

namespace quorbel {

namespace {

struct Mapping {
    HRESULT code;
    int number;
};

// VB's numbers for the failures a dispatch call reports without a number of its own.
constexpr Mapping kVbNumbers[] = {
    {E_INVALIDARG, vb::err::kInvalidCall},
    {DISP_E_OVERFLOW, vb::err::kOverflow},
    {E_OUTOFMEMORY, 7},  // Out of memory
    {DISP_E_BADINDEX, vb::err::kSubscriptOutOfRange},
    {DISP_E_DIVBYZERO, 11},  // Division by zero
    {DISP_E_TYPEMISMATCH, vb::err::kTypeMismatch},
    {DISP_E_MEMBERNOTFOUND, vb::err::kNoSuchMember},
    {DISP_E_UNKNOWNNAME, vb::err::kNoSuchMember},
    {DISP_E_NONAMEDARGS, 446},       // Object doesn't support named arguments
    {DISP_E_PARAMNOTFOUND, 448},     // Named argument not found
    {DISP_E_PARAMNOTOPTIONAL, 449},  // Argument not optional
    {DISP_E_BADPARAMCOUNT, 450},     // Wrong number of arguments or invalid property assignment
    {DISP_E_BADVARTYPE, 458},        // Variable uses an Automation type not supported
};

}  // namespace

int automationErrorNumber(HRESULT code) {
    if (isVbErrorCode(code)) return HRESULT_CODE(code);
    for (const Mapping& m : kVbNumbers)
        if (m.code == code) return m.number;
    return vb::err::kAutomation;
}

vb::RuntimeError automationError(HRESULT hr, EXCEPINFO& excep) {
    int number = automationErrorNumber(hr);
    vb::String description;
    if (hr == DISP_E_EXCEPTION) {
        if (excep.pfnDeferredFillIn) excep.pfnDeferredFillIn(&excep);
        number = excep.wCode ? excep.wCode : automationErrorNumber(excep.scode ? excep.scode : hr);
        description = fromBstr(excep.bstrDescription);
    }
    SysFreeString(excep.bstrSource);
    SysFreeString(excep.bstrDescription);
    SysFreeString(excep.bstrHelpFile);
    excep.bstrSource = excep.bstrDescription = excep.bstrHelpFile = nullptr;
    if (description.empty()) description = vb::standardDescription(number);
    return vb::RuntimeError(number, description);
}

}  // namespace quorbel
