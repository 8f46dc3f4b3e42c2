// The four exports of the in-process server and the class factory of Plugin and Wizard.
#include <initguid.h>
#include <windows.h>

#include <new>

#include "Quorbel_h.h"
#include "com/ComPlugin.h"
#include "com/ComWizard.h"
#include "com/Module.h"
#include "com/Registration.h"

namespace quorbel {

class ClassFactory : public IClassFactory {
  public:
    explicit ClassFactory(REFCLSID clsid) : clsid_(clsid) { objectCreated(); }
    virtual ~ClassFactory() { objectDestroyed(); }

    STDMETHODIMP QueryInterface(REFIID riid, void** out) override {
        if (!out) return E_POINTER;
        if (riid == IID_IUnknown || riid == IID_IClassFactory) {
            *out = static_cast<IClassFactory*>(this);
            AddRef();
            return S_OK;
        }
        *out = nullptr;
        return E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return InterlockedIncrement(&refs_); }
    STDMETHODIMP_(ULONG) Release() override {
        ULONG n = InterlockedDecrement(&refs_);
        if (n == 0) delete this;
        return n;
    }
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID riid, void** out) override {
        if (!out) return E_POINTER;
        *out = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        return clsid_ == CLSID_Plugin ? make<ComPlugin>(riid, out) : make<ComWizard>(riid, out);
    }
    STDMETHODIMP LockServer(BOOL lock) override {
        lock ? objectCreated() : objectDestroyed();
        return S_OK;
    }

  private:
    // The instance's members (platform, view, handlers) may fail to construct: nothing of that
    // may leave CreateInstance.
    template <class T>
    static HRESULT make(REFIID riid, void** out) noexcept {
        T* object = nullptr;
        try {
            object = new T();
        } catch (const std::bad_alloc&) {
            return E_OUTOFMEMORY;
        } catch (...) {
            return E_UNEXPECTED;
        }
        HRESULT hr = object->init();
        if (SUCCEEDED(hr)) hr = object->QueryInterface(riid, out);
        object->Release();
        return hr;
    }
    LONG refs_ = 1;
    CLSID clsid_;
};

}  // namespace quorbel

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID riid, void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (clsid != CLSID_Plugin && clsid != CLSID_Wizard) return CLASS_E_CLASSNOTAVAILABLE;
    auto* factory = new (std::nothrow) quorbel::ClassFactory(clsid);
    if (!factory) return E_OUTOFMEMORY;
    HRESULT hr = factory->QueryInterface(riid, out);
    factory->Release();
    return hr;
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow() {
    return quorbel::liveObjects() == 0 ? S_OK : S_FALSE;
}

// Registration builds its key paths as strings: a failed allocation is reported, not thrown.
extern "C" HRESULT STDAPICALLTYPE DllRegisterServer() {
    try {
        return quorbel::registerServer();
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

extern "C" HRESULT STDAPICALLTYPE DllUnregisterServer() {
    try {
        return quorbel::unregisterServer();
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}
