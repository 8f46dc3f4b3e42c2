#pragma once
// The creatable class Plugin: the _Plugin interface over handlers::Plugin.
#include "Quorbel_h.h"
#include "com/SharedEntries.h"
#include "handlers/Plugin.h"

namespace quorbel {

class ComPlugin : public SharedEntries<_Plugin, handlers::Plugin> {
  public:
    STDMETHODIMP construyeMensaje(VARIANT_BOOL* valAncho, VARIANT_BOOL* valAlto,
                                  VARIANT_BOOL* valFondo, short* tipoFuncion,
                                  VARIANT* result) override;
    STDMETHODIMP procesaDimension(long* dimension, BSTR* x1, BSTR* x2, BSTR* y1, BSTR* y2, BSTR* z1,
                                  BSTR* z2, BSTR* ref, BSTR* model, long* idPas,
                                  VARIANT_BOOL* result) override;
    STDMETHODIMP procesaObjeto(BSTR* elAncho, BSTR* elAlto, BSTR* elFondo, long* elId,
                               BSTR* concatenar, short* laFuncion, VARIANT_BOOL* result) override;
    STDMETHODIMP OnObjectComponentsB(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP OnObjectAttributsDlgValidation(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP OnObjectFinishesAfter(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP OnSceneGenericFinishesAfter(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP InicEspMod3(long* miSessionId, IDispatch** miCatalog) override;
    STDMETHODIMP OnAppStartAfter(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP SceneCheck(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP programaST(long* elId, VARIANT* result) override;
    STDMETHODIMP programaST2(BSTR* nombreModelo, VARIANT* result) override;
};

}  // namespace quorbel
