#include "HostServer.h"

#include <windows.h>

#include <stdexcept>
#include <string>

#include "HostObjects.h"

namespace hostdriver {

namespace {

struct HostClass {
    const wchar_t* progId;
    const wchar_t* clsid;
};

constexpr HostClass kClasses[3] = {
    {L"Pelmora.Appli", L"{8C1D5E60-3B2A-4C7E-9F10-5A2B7C3D9E01}"},
    {L"Pelmora.Scene", L"{8C1D5E60-3B2A-4C7E-9F10-5A2B7C3D9E02}"},
    {L"Pelmora.Catalog", L"{8C1D5E60-3B2A-4C7E-9F10-5A2B7C3D9E03}"},
};

class ClassFactory : public IClassFactory {
  public:
    ClassFactory(const wchar_t* progId, sim::HostState& state) : progId_(progId), state_(state) {}
    virtual ~ClassFactory() = default;

    STDMETHODIMP QueryInterface(REFIID riid, void** out) override {
        if (!out) return E_POINTER;
        *out = nullptr;
        if (riid != IID_IUnknown && riid != IID_IClassFactory) return E_NOINTERFACE;
        *out = static_cast<IClassFactory*>(this);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return InterlockedIncrement(&refs_); }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG n = InterlockedDecrement(&refs_);
        if (n == 0) delete this;
        return n;
    }
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID riid, void** out) override {
        if (!out) return E_POINTER;
        *out = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        // A ProgID the fault plan refuses behaves as a class that is not registered.
        if (state_.faults.refuses(vb::String(progId_.begin(), progId_.end())))
            return REGDB_E_CLASSNOTREG;
        IDispatch* object = nullptr;
        try {
            object = createHostObject(progId_, state_);
        } catch (...) {
            return E_OUTOFMEMORY;  // nothing may leave a COM method
        }
        if (!object) return E_FAIL;
        const HRESULT hr = object->QueryInterface(riid, out);
        object->Release();
        return hr;
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

  private:
    LONG refs_ = 1;
    std::wstring progId_;
    sim::HostState& state_;
};

void setKey(const std::wstring& path, const wchar_t* value) {
    HKEY key = nullptr;
    if (RegCreateKeyExW(HKEY_CLASSES_ROOT, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key,
                        nullptr) != ERROR_SUCCESS)
        throw std::runtime_error("cannot write the registry key of a host class");
    const auto bytes = static_cast<DWORD>((wcslen(value) + 1) * sizeof(wchar_t));
    RegSetValueExW(key, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(value), bytes);
    RegCloseKey(key);
}

}  // namespace

HostServer::HostServer(sim::HostState& state) {
    for (size_t i = 0; i < 3; ++i) {
        const HostClass& c = kClasses[i];
        setKey(std::wstring(c.progId) + L"\\CLSID", c.clsid);
        setKey(std::wstring(L"CLSID\\") + c.clsid + L"\\ProgID", c.progId);
        CLSID clsid;
        CLSIDFromString(const_cast<wchar_t*>(c.clsid), &clsid);
        auto* factory = new ClassFactory(c.progId, state);
        const HRESULT hr = CoRegisterClassObject(clsid, factory, CLSCTX_INPROC_SERVER,
                                                 REGCLS_MULTIPLEUSE, &cookies_[i]);
        factory->Release();  // COM holds it while registered
        if (FAILED(hr)) throw std::runtime_error("cannot register a host class object");
    }
}

HostServer::~HostServer() {
    for (unsigned long cookie : cookies_) {
        if (cookie) CoRevokeClassObject(cookie);
    }
}

}  // namespace hostdriver
