#pragma once
// Shared IUnknown / IDispatch / ISupportErrorInfo plumbing for the two creatable classes:
// calls are dispatched through the embedded type library's description of the dual interface.
#include <oaidl.h>
#include <windows.h>

#include <vector>

#include "com/Module.h"

namespace quorbel {

// Script hosts pass by-reference arguments as VT_VARIANT|VT_BYREF; the type-library dispatcher
// wants the inner variant's own by-reference storage.
void unwrapVariantRefs(DISPPARAMS* params);

template <class Interface>
class DispatchObject : public Interface, public ISupportErrorInfo {
  public:
    DispatchObject() { objectCreated(); }
    virtual ~DispatchObject() {
        if (typeInfo_) typeInfo_->Release();
        objectDestroyed();
    }

    HRESULT init() { return loadTypeInfo(__uuidof(Interface), &typeInfo_); }

    STDMETHODIMP QueryInterface(REFIID riid, void** out) override {
        if (!out) return E_POINTER;
        if (riid == IID_IUnknown || riid == IID_IDispatch || riid == __uuidof(Interface)) {
            *out = static_cast<Interface*>(this);
        } else if (riid == IID_ISupportErrorInfo) {
            *out = static_cast<ISupportErrorInfo*>(this);
        } else {
            *out = nullptr;
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return InterlockedIncrement(&refs_); }
    STDMETHODIMP_(ULONG) Release() override {
        ULONG n = InterlockedDecrement(&refs_);
        if (n == 0) delete this;
        return n;
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 1;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
        if (!info) return E_POINTER;
        if (index != 0) return DISP_E_BADINDEX;
        typeInfo_->AddRef();
        *info = typeInfo_;
        return S_OK;
    }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        return DispGetIDsOfNames(typeInfo_, names, count, ids);
    }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                        EXCEPINFO* excep, UINT* argErr) override {
        if (params) unwrapVariantRefs(params);
        return DispInvoke(static_cast<Interface*>(this), typeInfo_, id, flags, params, result,
                          excep, argErr);
    }

    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID riid) override {
        return riid == __uuidof(Interface) ? S_OK : S_FALSE;
    }

  private:
    LONG refs_ = 1;
    ITypeInfo* typeInfo_ = nullptr;
};

}  // namespace quorbel
