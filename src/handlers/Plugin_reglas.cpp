// The rule procedures of the `_Plugin` interface; each delegates to the rules layer.
#include "handlers/Plugin.h"
#include "host/Factory.h"
#include "rules/Dimension.h"
#include "rules/Especiales.h"
#include "rules/Mensajes.h"
#include "rules/Modelos.h"
#include "rules/Objeto.h"

namespace handlers {

Variant Plugin::construyeMensaje(bool& valAncho, bool& valAlto, bool& valFondo,
                                 int16_t& tipoFuncion) {
    return rules::construyeMensaje(env_.platform, valAncho, valAlto, valFondo, tipoFuncion);
}

bool Plugin::procesaDimension(int32_t& dimension, String& x1, String& x2, String& y1, String& y2,
                              String& z1, String& z2, String& ref, String& model, int32_t& idPas) {
    return rules::procesaDimension(common::modVariables(), dimension, {x1, x2, y1, y2, z1, z2}, ref,
                                   model, idPas);
}

bool Plugin::procesaObjeto(String& elAncho, String& elAlto, String& elFondo, int32_t& elId,
                           String& concatenar, int16_t& laFuncion) {
    rules::ObjetoActual actual{refObjeto, modeloPuerta};
    const bool ok = rules::procesaObjeto(env_.platform, actual, {elAncho, elAlto, elFondo}, elId,
                                         concatenar, laFuncion);
    refObjeto = actual.refObjeto;
    modeloPuerta = actual.modeloPuerta;
    return ok;
}

void Plugin::InicEsp() {
    rules::InicEsp();
}

void Plugin::InicEspMod(int32_t& miSessionId, host::CatalogRef& miCatalog) {
    rules::InicEspMod(miSessionId, host::use(miCatalog), true);
}

void Plugin::InicEspMod2() {
    rules::InicEspMod2();
}

void Plugin::InicEspMod3(int32_t& miSessionId, host::CatalogRef& miCatalog) {
    rules::InicEspMod(miSessionId, host::use(miCatalog), false);
}

void Plugin::GenModEsp(int32_t& miSessionId, host::AppliRef&, host::SceneRef&,
                       host::CatalogRef& miCatalog) {
    rules::GenModEsp(miSessionId, host::use(miCatalog));
}

void Plugin::GenExcepciones(int32_t& miSessionId, host::AppliRef&, host::SceneRef&,
                            host::CatalogRef& miCatalog) {
    rules::GenExcepciones(miSessionId, host::use(miCatalog));
}

bool Plugin::modeloValido(String& refer, String& code, String& script) {
    return rules::modeloValido(refer, code, script);
}

Variant Plugin::programaST(int32_t& elId) {
    rules::programaST(env_.platform, elId);
    return Variant();
}

Variant Plugin::programaST2(String& nombreModelo) {
    rules::programaST2(env_.platform, nombreModelo);
    return Variant();
}

}  // namespace handlers
