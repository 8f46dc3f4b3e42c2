#include "com/ComPlugin.h"

namespace quorbel {

STDMETHODIMP ComPlugin::construyeMensaje(VARIANT_BOOL* valAncho, VARIANT_BOOL* valAlto,
                                         VARIANT_BOOL* valFondo, short* tipoFuncion,
                                         VARIANT* result) {
    if (anyNull({valAncho, valAlto, valFondo, tipoFuncion, result})) return E_POINTER;
    return entry([&] {
        RefBool a(valAncho), h(valAlto), f(valFondo);
        toVariant(core_.construyeMensaje(a.value, h.value, f.value, *tipoFuncion), result);
    });
}

STDMETHODIMP ComPlugin::procesaDimension(long* dimension, BSTR* x1, BSTR* x2, BSTR* y1, BSTR* y2,
                                         BSTR* z1, BSTR* z2, BSTR* ref, BSTR* model, long* idPas,
                                         VARIANT_BOOL* result) {
    if (anyNull({dimension, x1, x2, y1, y2, z1, z2, ref, model, idPas, result})) return E_POINTER;
    return entry([&] {
        RefStr a(x1), b(x2), c(y1), d(y2), e(z1), f(z2), r(ref), m(model);
        *result =
            asBool(core_.procesaDimension(asLong(dimension), a.value, b.value, c.value, d.value,
                                          e.value, f.value, r.value, m.value, asLong(idPas)));
    });
}

STDMETHODIMP ComPlugin::procesaObjeto(BSTR* elAncho, BSTR* elAlto, BSTR* elFondo, long* elId,
                                      BSTR* concatenar, short* laFuncion, VARIANT_BOOL* result) {
    if (anyNull({elAncho, elAlto, elFondo, elId, concatenar, laFuncion, result})) return E_POINTER;
    return entry([&] {
        RefStr a(elAncho), h(elAlto), f(elFondo), c(concatenar);
        *result = asBool(
            core_.procesaObjeto(a.value, h.value, f.value, asLong(elId), c.value, *laFuncion));
    });
}

STDMETHODIMP ComPlugin::OnObjectComponentsB(long b, VARIANT_BOOL* r) {
    return event(&handlers::Plugin::OnObjectComponentsB, b, r);
}
STDMETHODIMP ComPlugin::OnObjectAttributsDlgValidation(long b, VARIANT_BOOL* r) {
    return event(&handlers::Plugin::OnObjectAttributsDlgValidation, b, r);
}
STDMETHODIMP ComPlugin::OnObjectFinishesAfter(long b, VARIANT_BOOL* r) {
    return event(&handlers::Plugin::OnObjectFinishesAfter, b, r);
}
STDMETHODIMP ComPlugin::OnSceneGenericFinishesAfter(long b, VARIANT_BOOL* r) {
    return event(&handlers::Plugin::OnSceneGenericFinishesAfter, b, r);
}
STDMETHODIMP ComPlugin::OnAppStartAfter(long b, VARIANT_BOOL* r) {
    return event(&handlers::Plugin::OnAppStartAfter, b, r);
}
STDMETHODIMP ComPlugin::SceneCheck(long b, VARIANT_BOOL* r) {
    return event(&handlers::Plugin::SceneCheck, b, r);
}

STDMETHODIMP ComPlugin::InicEspMod3(long* miSessionId, IDispatch** miCatalog) {
    return withCatalog(&handlers::Plugin::InicEspMod3, miSessionId, miCatalog);
}

STDMETHODIMP ComPlugin::programaST(long* elId, VARIANT* result) {
    if (anyNull({elId, result})) return E_POINTER;
    return entry([&] { toVariant(core_.programaST(asLong(elId)), result); });
}

STDMETHODIMP ComPlugin::programaST2(BSTR* nombreModelo, VARIANT* result) {
    if (anyNull({nombreModelo, result})) return E_POINTER;
    return entry([&] {
        RefStr n(nombreModelo);
        toVariant(core_.programaST2(n.value), result);
    });
}

}  // namespace quorbel
