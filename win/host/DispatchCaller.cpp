#include "host/DispatchCaller.h"

#include <algorithm>

#include "host/AutomationError.h"
#include "platform/Bstr.h"
#include "vb/Errors.h"

namespace quorbel {

Arg Arg::sessionRef(int32_t& id) {
    Arg a;
    V_VT(&a.v_) = VT_I4 | VT_BYREF;
    V_I4REF(&a.v_) = reinterpret_cast<LONG*>(&id);
    return a;
}
Arg Arg::i2(int16_t v) {
    Arg a;
    V_VT(&a.v_) = VT_I2;
    V_I2(&a.v_) = v;
    return a;
}
Arg Arg::i4(int32_t v) {
    Arg a;
    V_VT(&a.v_) = VT_I4;
    V_I4(&a.v_) = v;
    return a;
}
Arg Arg::boolean(bool v) {
    Arg a;
    V_VT(&a.v_) = VT_BOOL;
    V_BOOL(&a.v_) = v ? VARIANT_TRUE : VARIANT_FALSE;
    return a;
}
Arg Arg::str(const vb::String& v) {
    Arg a;
    V_VT(&a.v_) = VT_BSTR;
    V_BSTR(&a.v_) = newBstr(v);
    return a;
}
Arg Arg::strRef(vb::String& v) {
    Arg a;
    a.refStr_ = newBstr(v);
    a.target_ = &v;
    V_VT(&a.v_) = VT_BSTR | VT_BYREF;
    V_BSTRREF(&a.v_) = &a.refStr_;
    return a;
}
Arg::Arg(Arg&& o) noexcept : v_(o.v_), refStr_(o.refStr_), target_(o.target_) {
    if (target_) V_BSTRREF(&v_) = &refStr_;  // points at this argument's own storage
    V_VT(&o.v_) = VT_EMPTY;
    o.refStr_ = nullptr;
    o.target_ = nullptr;
}
Arg::~Arg() {
    // A destructor must not raise: when the copy cannot be made the string keeps its value.
    try {
        if (target_) *target_ = fromBstr(refStr_);
    } catch (...) {
    }
    SysFreeString(refStr_);
    if (!(V_VT(&v_) & VT_BYREF)) VariantClear(&v_);
}

DispatchCaller::DispatchCaller(IDispatch* object) : object_(object) {
    object_->AddRef();
}
DispatchCaller::~DispatchCaller() {
    object_->Release();
}

DISPID DispatchCaller::dispid(const wchar_t* member) {
    auto it = ids_.find(member);
    if (it != ids_.end()) return it->second;
    DISPID id = DISPID_UNKNOWN;
    LPOLESTR name = const_cast<LPOLESTR>(member);
    if (FAILED(object_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id)))
        throw vb::RuntimeError(vb::err::kNoSuchMember);
    ids_[member] = id;
    return id;
}

vb::Variant fromVariant(const VARIANT& in) {
    VARIANT v;
    VariantInit(&v);
    if (FAILED(VariantCopyInd(&v, const_cast<VARIANT*>(&in))))
        throw vb::RuntimeError(vb::err::kTypeMismatch);
    vb::Variant out;
    switch (V_VT(&v)) {
        case VT_EMPTY:
            break;
        case VT_NULL:
            out = vb::Variant::null();
            break;
        case VT_BOOL:
            out = vb::Variant(V_BOOL(&v) != VARIANT_FALSE);
            break;
        case VT_I2:
            out = vb::Variant(static_cast<int16_t>(V_I2(&v)));
            break;
        case VT_UI1:
            out = vb::Variant(static_cast<int16_t>(V_UI1(&v)));
            break;
        case VT_I4:
            out = vb::Variant(static_cast<int32_t>(V_I4(&v)));
            break;
        case VT_R8:
            out = vb::Variant(V_R8(&v));
            break;
        case VT_R4:
            out = vb::Variant(static_cast<double>(V_R4(&v)));
            break;
        case VT_BSTR:
            out = vb::Variant(fromBstr(V_BSTR(&v)));
            break;
        default:
            if (SUCCEEDED(VariantChangeType(&v, &v, 0, VT_BSTR)))
                out = vb::Variant(fromBstr(V_BSTR(&v)));
            else {
                VariantClear(&v);
                throw vb::RuntimeError(vb::err::kTypeMismatch);
            }
    }
    VariantClear(&v);
    return out;
}

vb::Variant DispatchCaller::call(const wchar_t* member, std::vector<Arg>& args) {
    DISPID id = dispid(member);
    std::vector<VARIANT> reversed;  // IDispatch takes arguments last first
    for (auto it = args.rbegin(); it != args.rend(); ++it) reversed.push_back(it->get());
    DISPPARAMS params{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    VARIANT result;
    VariantInit(&result);
    EXCEPINFO excep{};
    UINT argErr = 0;
    HRESULT hr = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params,
                                 &result, &excep, &argErr);
    if (FAILED(hr)) throw automationError(hr, excep);
    vb::Variant out = fromVariant(result);
    VariantClear(&result);
    return out;
}

}  // namespace quorbel
