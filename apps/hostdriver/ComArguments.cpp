#include "ComArguments.h"

#include <string>

#include "SimDispatch.h"
#include "com/ComArgs.h"
#include "host/DispatchCaller.h"
#include "sim/ArgCodec.h"
#include "vb/Conversions.h"
#include "vb/Errors.h"
#include "vb/Strings.h"

namespace hostdriver {

namespace {

class NoFactory : public host::Factory {
  public:
    std::shared_ptr<host::HostObject> CreateObject(const vb::String&) override {
        throw vb::RuntimeError(vb::err::kCantCreateObject);
    }
};

IDispatch* hostObject(const sim::Json& arg) {
    if (arg.is_null()) return nullptr;
    if (!arg.is_string()) throw vb::RuntimeError(vb::err::kTypeMismatch);
    const vb::String progId = sim::fromJsonText(arg);
    const bool known = vb::equalText(progId, host::kProgIdAppli) ||
                       vb::equalText(progId, host::kProgIdScene) ||
                       vb::equalText(progId, host::kProgIdCatalog);
    const std::wstring name(progId.begin(), progId.end());
    CLSID clsid;
    IDispatch* object = nullptr;
    if (!known || FAILED(CLSIDFromProgID(name.c_str(), &clsid)) ||
        FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_ALL, IID_IDispatch,
                                reinterpret_cast<void**>(&object))))
        throw vb::RuntimeError(vb::err::kCantCreateObject);
    return object;
}

// The value of one argument, converted to the parameter's type.
VARIANT converted(const sim::Json& arg, VARTYPE vt) {
    NoFactory none;
    VARIANT v;
    VariantInit(&v);
    switch (vt) {
        case VT_BSTR:
            quorbel::toVariant(vb::Variant(sim::ArgCodec<vb::String>::in(arg, none)), &v);
            break;
        case VT_I4:
            quorbel::toVariant(vb::Variant(sim::ArgCodec<int32_t>::in(arg, none)), &v);
            break;
        case VT_I2:
            quorbel::toVariant(vb::Variant(sim::ArgCodec<int16_t>::in(arg, none)), &v);
            break;
        case VT_BOOL:
            quorbel::toVariant(vb::Variant(sim::ArgCodec<bool>::in(arg, none)), &v);
            break;
        case VT_DISPATCH:
            V_VT(&v) = VT_DISPATCH;
            V_DISPATCH(&v) = hostObject(arg);
            break;
        default:
            quorbel::toVariant(sim::argVariant(arg), &v);
    }
    return v;
}

sim::Json slotJson(const VARIANT& v) {
    if (V_VT(&v) != VT_DISPATCH) return sim::variantJson(quorbel::fromVariant(v));
    if (!V_DISPATCH(&v)) return nullptr;
    const std::wstring progId = progIdOf(V_DISPATCH(&v));
    if (progId.empty()) return "Object";
    return sim::toJsonText(vb::String(progId.begin(), progId.end()));
}

}  // namespace

std::vector<ParamType> paramTypes(IDispatch* object, DISPID id) {
    std::vector<ParamType> types;
    ITypeInfo* info = nullptr;
    if (FAILED(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, &info)) || !info) return types;
    TYPEATTR* attr = nullptr;
    if (SUCCEEDED(info->GetTypeAttr(&attr))) {
        for (UINT f = 0; f < attr->cFuncs; ++f) {
            FUNCDESC* func = nullptr;
            if (FAILED(info->GetFuncDesc(f, &func))) continue;
            for (SHORT p = 0; func->memid == id && p < func->cParams; ++p) {
                const ELEMDESC& e = func->lprgelemdescParam[p];
                if (e.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) continue;
                const bool byRef = e.tdesc.vt == VT_PTR;
                types.push_back({byRef ? e.tdesc.lptdesc->vt : e.tdesc.vt, byRef});
            }
            info->ReleaseFuncDesc(func);
        }
        info->ReleaseTypeAttr(attr);
    }
    info->Release();
    return types;
}

ComArguments::ComArguments(const sim::Json& given, const std::vector<ParamType>& types) {
    const bool typed = given.size() == types.size();
    slots_.reserve(given.size());
    try {
        for (size_t i = 0; i < given.size(); ++i) {
            const ParamType type = typed ? types[i] : ParamType{};
            slots_.push_back({converted(given[i], type.vt), type.byRef});
        }
    } catch (...) {
        for (auto& slot : slots_) VariantClear(&slot.value);
        throw;
    }
}

ComArguments::~ComArguments() {
    for (auto& slot : slots_) VariantClear(&slot.value);
}

DISPPARAMS ComArguments::params() {
    passed_.clear();
    for (auto it = slots_.rbegin(); it != slots_.rend(); ++it) {
        VARIANT v;
        VariantInit(&v);
        if (it->byRef) {
            V_VT(&v) = V_VT(&it->value) | VT_BYREF;
            V_BYREF(&v) = &it->value.bVal;  // the slot's own storage
        } else {
            v = it->value;
        }
        passed_.push_back(v);
    }
    return DISPPARAMS{passed_.data(), nullptr, static_cast<UINT>(passed_.size()), 0};
}

sim::Json ComArguments::readBack() const {
    sim::Json values = sim::Json::array();
    for (const auto& slot : slots_) values.push_back(slotJson(slot.value));
    return values;
}

}  // namespace hostdriver
