#pragma once
// IDispatch over one simulated host object: members bound by name without regard to case, every
// argument checked against the shape the host contract gives it (a wrong type fails the call
// with DISP_E_TYPEMISMATCH, as a strict host would), answers converted to VARIANTs.
#include <oaidl.h>
#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/Host.h"

namespace hostdriver {

// The VARIANT type each argument must have.
using Shape = host::Shape;

// The checked arguments of one call, in declaration order.
class CallArgs {
  public:
    explicit CallArgs(DISPPARAMS& params);
    ~CallArgs();  // writes by-reference strings back
    CallArgs(const CallArgs&) = delete;
    CallArgs& operator=(const CallArgs&) = delete;

    // The argument of parameter type P (HostMembers.h: one type per shape).
    template <class P>
    P get(size_t i);

    int32_t& session(size_t i);
    int32_t i4(size_t i) const;
    int16_t i2(size_t i) const;
    bool boolean(size_t i) const;
    const vb::String& str(size_t i) const { return strings_[i]; }
    vb::String& strRef(size_t i) { return strings_[i]; }

  private:
    VARIANT& arg(size_t i) const;
    DISPPARAMS& params_;
    std::vector<vb::String> strings_;
};

template <class P>
P CallArgs::get(size_t i) {
    constexpr Shape shape = host::shapeOf<P>();
    if constexpr (shape == Shape::SessionRef) {
        return session(i);
    } else if constexpr (shape == Shape::Long) {
        return i4(i);
    } else if constexpr (shape == Shape::Int) {
        return i2(i);
    } else if constexpr (shape == Shape::Bool) {
        return boolean(i);
    } else if constexpr (shape == Shape::Str) {
        return str(i);
    } else {
        return strRef(i);
    }
}

struct ServedMember {
    const wchar_t* name;
    std::vector<Shape> shapes;
    std::function<vb::Variant(CallArgs&)> call;
};

// Which argument (IDispatch numbering, last first) does not have its shape; -1 when all do.
int mismatchedArgument(const DISPPARAMS& params, const std::vector<Shape>& shapes);

class SimDispatch : public IDispatch {
  public:
    // `owner` keeps the simulated object alive as long as this COM object.
    SimDispatch(std::wstring progId, std::shared_ptr<host::HostObject> owner,
                std::vector<ServedMember> members);
    virtual ~SimDispatch();

    const std::wstring& progId() const { return progId_; }

    STDMETHODIMP QueryInterface(REFIID riid, void** out) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                        EXCEPINFO* excep, UINT* argErr) override;

  private:
    LONG refs_ = 1;
    std::wstring progId_;
    std::shared_ptr<host::HostObject> owner_;
    std::vector<ServedMember> members_;
};

// The ProgID of a simulated host object made here; empty for any other object.
std::wstring progIdOf(IDispatch* object);

}  // namespace hostdriver
