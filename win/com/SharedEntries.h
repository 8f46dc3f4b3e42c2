#pragma once
// What the creatable classes Plugin and Wizard have in common, written once over their core
// class: the Shell each instance owns, the core object over it, the forwarders of the event
// methods, and the members both interfaces share (the rule initialisers and modeloValido).
#include "com/ComArgs.h"
#include "com/DispatchObject.h"
#include "com/Shell.h"

namespace quorbel {

template <class Interface, class Core>
class SharedEntries : public DispatchObject<Interface>, protected Shell {
  public:
    STDMETHODIMP OnObjectPlaceAfter(long b, VARIANT_BOOL* r) override {
        return event(&Core::OnObjectPlaceAfter, b, r);
    }
    STDMETHODIMP OnObjectComponentsBefore(long b, VARIANT_BOOL* r) override {
        return event(&Core::OnObjectComponentsBefore, b, r);
    }
    STDMETHODIMP ObjectWizard(long b, VARIANT_BOOL* r) override {
        return event(&Core::ObjectWizard, b, r);
    }
    STDMETHODIMP InicEsp() override {
        return entry([&] { core_.InicEsp(); });
    }
    STDMETHODIMP InicEspMod2() override {
        return entry([&] { core_.InicEspMod2(); });
    }
    STDMETHODIMP InicEspMod(long* miSessionId, IDispatch** miCatalog) override {
        return withCatalog(&Core::InicEspMod, miSessionId, miCatalog);
    }
    STDMETHODIMP GenModEsp(long* miSessionId, IDispatch** miAppli, IDispatch** miScene,
                           IDispatch** miCatalog) override {
        return withHost(&Core::GenModEsp, miSessionId, miAppli, miScene, miCatalog);
    }
    STDMETHODIMP GenExcepciones(long* miSessionId, IDispatch** miAppli, IDispatch** miScene,
                                IDispatch** miCatalog) override {
        return withHost(&Core::GenExcepciones, miSessionId, miAppli, miScene, miCatalog);
    }
    STDMETHODIMP modeloValido(BSTR* refer, BSTR* code, BSTR* script,
                              VARIANT_BOOL* result) override {
        if (anyNull({refer, code, script, result})) return E_POINTER;
        return entry([&] {
            RefStr r(refer), c(code), s(script);
            *result = asBool(core_.modeloValido(r.value, c.value, s.value));
        });
    }

  protected:
    using Event = bool (Core::*)(int32_t);
    using WithCatalog = void (Core::*)(int32_t&, host::CatalogRef&);
    using WithHost = void (Core::*)(int32_t&, host::AppliRef&, host::SceneRef&, host::CatalogRef&);

    // An event method: the call-parameter block in, the handler's boolean out.
    HRESULT event(Event handler, long block, VARIANT_BOOL* result) {
        if (!result) return E_POINTER;
        return entry([&] { *result = asBool((core_.*handler)(block)); });
    }
    // A member taking the session and the catalogue object by reference.
    HRESULT withCatalog(WithCatalog member, long* miSessionId, IDispatch** miCatalog) {
        if (anyNull({miSessionId, miCatalog})) return E_POINTER;
        return entry([&] {
            RefCatalog c(miCatalog);
            (core_.*member)(asLong(miSessionId), c.value);
        });
    }
    // A member taking the session and the three host objects by reference.
    HRESULT withHost(WithHost member, long* miSessionId, IDispatch** miAppli, IDispatch** miScene,
                     IDispatch** miCatalog) {
        if (anyNull({miSessionId, miAppli, miScene, miCatalog})) return E_POINTER;
        return entry([&] {
            RefAppli a(miAppli);
            RefScene s(miScene);
            RefCatalog c(miCatalog);
            (core_.*member)(asLong(miSessionId), a.value, s.value, c.value);
        });
    }

    Core core_{env_};
};

}  // namespace quorbel
