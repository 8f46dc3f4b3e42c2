#include "SimDispatch.h"

#include <set>

#include "com/ComArgs.h"
#include "platform/Bstr.h"
#include "vb/Errors.h"
#include "vb/Strings.h"

namespace hostdriver {

using quorbel::fromBstr;
using quorbel::storeBstr;
using quorbel::toBstr;
using quorbel::vbErrorCode;

namespace {

std::set<const SimDispatch*>& liveObjects() {
    static std::set<const SimDispatch*> objects;
    return objects;
}

VARTYPE typeOf(Shape shape) {
    switch (shape) {
        case Shape::SessionRef:
            return VT_I4 | VT_BYREF;
        case Shape::Long:
            return VT_I4;
        case Shape::Int:
            return VT_I2;
        case Shape::Bool:
            return VT_BOOL;
        case Shape::Str:
            return VT_BSTR;
        case Shape::StrRef:
            break;
    }
    return VT_BSTR | VT_BYREF;
}

bool fits(const VARIANT& v, Shape shape) {
    if (V_VT(&v) != typeOf(shape)) return false;
    if (shape == Shape::SessionRef && !V_I4REF(&v)) return false;
    if (shape == Shape::StrRef && !V_BSTRREF(&v)) return false;
    // OLE booleans are -1 and 0, nothing else.
    if (shape == Shape::Bool) return V_BOOL(&v) == VARIANT_TRUE || V_BOOL(&v) == VARIANT_FALSE;
    return true;
}

HRESULT raise(EXCEPINFO* excep, int number, const vb::String& description) {
    const HRESULT code = vbErrorCode(number);
    if (!excep) return code;
    *excep = EXCEPINFO{};
    excep->bstrSource = SysAllocString(L"Pelmora");
    excep->bstrDescription = toBstr(description);
    excep->scode = code;
    return DISP_E_EXCEPTION;
}

}  // namespace

int mismatchedArgument(const DISPPARAMS& params, const std::vector<Shape>& shapes) {
    const size_t n = shapes.size();
    for (size_t i = 0; i < n; ++i) {
        if (!fits(params.rgvarg[n - 1 - i], shapes[i])) return static_cast<int>(n - 1 - i);
    }
    return -1;
}

CallArgs::CallArgs(DISPPARAMS& params) : params_(params), strings_(params.cArgs) {
    for (size_t i = 0; i < params.cArgs; ++i) {
        const VARIANT& v = arg(i);
        if (V_VT(&v) == VT_BSTR) strings_[i] = fromBstr(V_BSTR(&v));
        if (V_VT(&v) == (VT_BSTR | VT_BYREF)) strings_[i] = fromBstr(*V_BSTRREF(&v));
    }
}

CallArgs::~CallArgs() {
    for (size_t i = 0; i < params_.cArgs; ++i) {
        VARIANT& v = arg(i);
        if (V_VT(&v) != (VT_BSTR | VT_BYREF)) continue;
        storeBstr(V_BSTRREF(&v), strings_[i]);
    }
}

VARIANT& CallArgs::arg(size_t i) const {
    return params_.rgvarg[params_.cArgs - 1 - i];
}
int32_t& CallArgs::session(size_t i) {
    return *reinterpret_cast<int32_t*>(V_I4REF(&arg(i)));
}
int32_t CallArgs::i4(size_t i) const {
    return V_I4(&arg(i));
}
int16_t CallArgs::i2(size_t i) const {
    return V_I2(&arg(i));
}
bool CallArgs::boolean(size_t i) const {
    return V_BOOL(&arg(i)) != VARIANT_FALSE;
}

SimDispatch::SimDispatch(std::wstring progId, std::shared_ptr<host::HostObject> owner,
                         std::vector<ServedMember> members)
    : progId_(std::move(progId)), owner_(std::move(owner)), members_(std::move(members)) {
    liveObjects().insert(this);
}

SimDispatch::~SimDispatch() {
    liveObjects().erase(this);
}

STDMETHODIMP SimDispatch::QueryInterface(REFIID riid, void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (riid != IID_IUnknown && riid != IID_IDispatch) return E_NOINTERFACE;
    *out = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) SimDispatch::AddRef() {
    return InterlockedIncrement(&refs_);
}

STDMETHODIMP_(ULONG) SimDispatch::Release() {
    const ULONG n = InterlockedDecrement(&refs_);
    if (n == 0) delete this;
    return n;
}

STDMETHODIMP SimDispatch::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

STDMETHODIMP SimDispatch::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (info) *info = nullptr;
    return DISP_E_BADINDEX;
}

STDMETHODIMP SimDispatch::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    if (!names || !ids || count == 0) return E_INVALIDARG;
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    const vb::String wanted(reinterpret_cast<const char16_t*>(names[0]));
    for (size_t m = 0; m < members_.size(); ++m) {
        const vb::String name(reinterpret_cast<const char16_t*>(members_[m].name));
        if (!vb::equalText(name, wanted)) continue;
        ids[0] = static_cast<DISPID>(m + 1);
        return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;  // the members take no named arguments
    }
    return DISP_E_UNKNOWNNAME;
}

STDMETHODIMP SimDispatch::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params,
                                 VARIANT* result, EXCEPINFO* excep, UINT* argErr) {
    if (id < 1 || static_cast<size_t>(id) > members_.size()) return DISP_E_MEMBERNOTFOUND;
    if (!(flags & DISPATCH_METHOD) || !params) return DISP_E_MEMBERNOTFOUND;
    if (params->cNamedArgs != 0) return DISP_E_NONAMEDARGS;
    const ServedMember& member = members_[static_cast<size_t>(id - 1)];
    if (params->cArgs != member.shapes.size()) return DISP_E_BADPARAMCOUNT;
    const int bad = mismatchedArgument(*params, member.shapes);
    if (bad >= 0) {
        if (argErr) *argErr = static_cast<UINT>(bad);
        return DISP_E_TYPEMISMATCH;
    }
    try {
        vb::Variant answer;
        {
            CallArgs args(*params);
            answer = member.call(args);
        }
        if (result) quorbel::toVariant(answer, result);
        return S_OK;
    } catch (const vb::RuntimeError& e) {
        return raise(excep, e.number(), e.description());
    } catch (const std::exception&) {
        return raise(excep, vb::err::kAutomation, u"Automation error");
    }
}

std::wstring progIdOf(IDispatch* object) {
    if (!object) return {};
    IUnknown* identity = nullptr;
    if (FAILED(object->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&identity))))
        return {};
    identity->Release();
    for (const SimDispatch* live : liveObjects()) {
        if (static_cast<IUnknown*>(const_cast<SimDispatch*>(live)) == identity)
            return live->progId();
    }
    return {};
}

}  // namespace hostdriver
