#pragma once
// The scenario's `args` as the VARIANTs a late-bound caller passes: each converted by VB rules
// to the type the method's type information gives its parameter, by reference where the
// parameter is; objects are host objects created by ProgID. After the call the by-reference
// values are read back and written as the native runner writes them.
#include <oaidl.h>

#include <vector>

#include "sim/Json.h"

namespace hostdriver {

// A parameter's type: the VARTYPE it points to or holds, and whether it is by reference.
struct ParamType {
    VARTYPE vt = VT_VARIANT;
    bool byRef = false;
};

// The parameters of member `id` of `object` (the retval left out); empty when unknown.
std::vector<ParamType> paramTypes(IDispatch* object, DISPID id);

class ComArguments {
  public:
    // Raises vb::RuntimeError as the conversions do (13, 6, 429). With a count that does not
    // match the parameters, the values go as they are and the method itself refuses them.
    ComArguments(const sim::Json& given, const std::vector<ParamType>& types);
    ~ComArguments();
    ComArguments(const ComArguments&) = delete;
    ComArguments& operator=(const ComArguments&) = delete;

    DISPPARAMS params();  // last argument first, as IDispatch takes them
    sim::Json readBack() const;

  private:
    struct Slot {
        VARIANT value;  // the storage by-reference arguments point into
        bool byRef = false;
    };
    std::vector<Slot> slots_;
    std::vector<VARIANT> passed_;
};

}  // namespace hostdriver
