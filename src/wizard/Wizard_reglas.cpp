// The set-up methods of `_Wizard`: as Plugin's, except that InicEsp also forgets the marker
// children and InicEspMod has no " ALL" rule.
#include "common/Entrada.h"
#include "host/Factory.h"
#include "rules/Especiales.h"
#include "rules/Modelos.h"
#include "wizard/Wizard.h"

namespace wizard {

bool Wizard::OnObjectComponents(int32_t lCallParamsBlock) {
    return common::componentesB(env_, lCallParamsBlock);
}

void Wizard::InicEsp() {
    rules::InicEsp();
    common::modVariables().hayHijoEsp.fill(false);
}

void Wizard::InicEspMod(int32_t& miSessionId, host::CatalogRef& miCatalog) {
    rules::InicEspMod(miSessionId, host::use(miCatalog), false, common::kNumTipos);
}

void Wizard::InicEspMod2() {
    rules::InicEspMod2();
}

void Wizard::GenModEsp(int32_t& miSessionId, host::AppliRef&, host::SceneRef&,
                       host::CatalogRef& miCatalog) {
    rules::GenModEsp(miSessionId, host::use(miCatalog));
}

void Wizard::GenExcepciones(int32_t& miSessionId, host::AppliRef&, host::SceneRef&,
                            host::CatalogRef& miCatalog) {
    rules::GenExcepciones(miSessionId, host::use(miCatalog));
}

bool Wizard::modeloValido(String& refer, String& code, String& script) {
    return rules::modeloValido(refer, code, script);
}

}  // namespace wizard
