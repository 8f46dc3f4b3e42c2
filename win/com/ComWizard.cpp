#include "com/ComWizard.h"

#include "com/ComArgs.h"

namespace quorbel {

HRESULT ComWizard::event(Handler h, long block, VARIANT_BOOL* result) {
    if (!result) return E_POINTER;
    return entry([&] { *result = asBool((wizard_.*h)(block)); });
}

STDMETHODIMP ComWizard::casoForma(long b, VARIANT_BOOL* r) {
    return event(&wizard::Wizard::casoForma, b, r);
}
STDMETHODIMP ComWizard::casoXey(long b, VARIANT_BOOL* r) {
    return event(&wizard::Wizard::casoXey, b, r);
}
STDMETHODIMP ComWizard::casoVegasa(long b, VARIANT_BOOL* r) {
    return event(&wizard::Wizard::casoVegasa, b, r);
}
STDMETHODIMP ComWizard::OnObjectPlaceAfter(long b, VARIANT_BOOL* r) {
    return event(&wizard::Wizard::OnObjectPlaceAfter, b, r);
}
STDMETHODIMP ComWizard::OnObjectComponents(long b, VARIANT_BOOL* r) {
    return event(&wizard::Wizard::OnObjectComponents, b, r);
}
STDMETHODIMP ComWizard::OnObjectComponentsBefore(long b, VARIANT_BOOL* r) {
    return event(&wizard::Wizard::OnObjectComponentsBefore, b, r);
}
STDMETHODIMP ComWizard::ObjectWizard(long b, VARIANT_BOOL* r) {
    return event(&wizard::Wizard::ObjectWizard, b, r);
}

STDMETHODIMP ComWizard::InicEsp() {
    return entry([&] { wizard_.InicEsp(); });
}
STDMETHODIMP ComWizard::InicEspMod2() {
    return entry([&] { wizard_.InicEspMod2(); });
}

STDMETHODIMP ComWizard::InicEspMod(long* miSessionId, IDispatch** miCatalog) {
    if (anyNull({miSessionId, miCatalog})) return E_POINTER;
    return entry([&] {
        RefCatalog c(miCatalog);
        wizard_.InicEspMod(asLong(miSessionId), c.value);
    });
}

STDMETHODIMP ComWizard::GenModEsp(long* miSessionId, IDispatch** miAppli, IDispatch** miScene,
                                  IDispatch** miCatalog) {
    if (anyNull({miSessionId, miAppli, miScene, miCatalog})) return E_POINTER;
    return entry([&] {
        RefAppli a(miAppli);
        RefScene s(miScene);
        RefCatalog c(miCatalog);
        wizard_.GenModEsp(asLong(miSessionId), a.value, s.value, c.value);
    });
}

STDMETHODIMP ComWizard::GenExcepciones(long* miSessionId, IDispatch** miAppli, IDispatch** miScene,
                                       IDispatch** miCatalog) {
    if (anyNull({miSessionId, miAppli, miScene, miCatalog})) return E_POINTER;
    return entry([&] {
        RefAppli a(miAppli);
        RefScene s(miScene);
        RefCatalog c(miCatalog);
        wizard_.GenExcepciones(asLong(miSessionId), a.value, s.value, c.value);
    });
}

STDMETHODIMP ComWizard::modeloValido(BSTR* refer, BSTR* code, BSTR* script, VARIANT_BOOL* result) {
    if (anyNull({refer, code, script, result})) return E_POINTER;
    return entry([&] {
        RefStr r(refer), c(code), s(script);
        *result = asBool(wizard_.modeloValido(r.value, c.value, s.value));
    });
}

}  // namespace quorbel
