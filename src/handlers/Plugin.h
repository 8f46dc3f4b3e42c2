#pragma once
// The `Plugin` class: its public methods in the order of the `_Plugin` interface, with the
// interface's parameter shapes (references where the caller's variable may be written).
#include <cstdint>

#include "env/Env.h"
#include "host/Host.h"
#include "vb/Variant.h"

namespace handlers {

using env::Env;

using vb::String;
using vb::Variant;

class Plugin {
  public:
    explicit Plugin(Env& env) : env_(env) {}

    Variant construyeMensaje(bool& valAncho, bool& valAlto, bool& valFondo, int16_t& tipoFuncion);
    bool procesaDimension(int32_t& dimension, String& x1, String& x2, String& y1, String& y2,
                          String& z1, String& z2, String& ref, String& model, int32_t& idPas);
    bool procesaObjeto(String& elAncho, String& elAlto, String& elFondo, int32_t& elId,
                       String& concatenar, int16_t& laFuncion);
    bool OnObjectComponentsB(int32_t lCallParamsBlock);
    bool OnObjectAttributsDlgValidation(int32_t lCallParamsBlock);
    bool OnObjectPlaceAfter(int32_t lCallParamsBlock);
    bool OnObjectFinishesAfter(int32_t lCallParamsBlock);
    bool OnSceneGenericFinishesAfter(int32_t lCallParamsBlock);
    bool OnObjectComponentsBefore(int32_t lCallParamsBlock);
    void InicEsp();
    void InicEspMod(int32_t& miSessionId, host::CatalogRef& miCatalog);
    void InicEspMod2();
    void InicEspMod3(int32_t& miSessionId, host::CatalogRef& miCatalog);
    void GenModEsp(int32_t& miSessionId, host::AppliRef& miAppli, host::SceneRef& miScene,
                   host::CatalogRef& miCatalog);
    void GenExcepciones(int32_t& miSessionId, host::AppliRef& miAppli, host::SceneRef& miScene,
                        host::CatalogRef& miCatalog);
    bool modeloValido(String& refer, String& code, String& script);
    bool ObjectWizard(int32_t lCallParamsBlock);
    bool OnAppStartAfter(int32_t lCallParamsBlock);
    bool SceneCheck(int32_t lCallParamsBlock);
    Variant programaST(int32_t& elId);
    Variant programaST2(String& nombreModelo);

    Env& env() { return env_; }

  private:
    Env& env_;
    // Per-instance state, kept for the life of the host's instance.
    String refObjeto;
    String modeloPuerta;
    int16_t ultimoCatalogo = -1;
};

}  // namespace handlers
