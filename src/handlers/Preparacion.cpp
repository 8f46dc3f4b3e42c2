#include "handlers/Preparacion.h"

#include "host/Factory.h"
#include "rules/Especiales.h"
#include "rules/Modelos.h"
#include "rules/Refresco.h"

namespace handlers {

namespace {

void preparaTablas(rules::ModVariables& mv) {
    rules::InicEsp();
    rules::GenModEsp(mv.miSessionId, host::use(mv.miCatalog));
    rules::GenExcepciones(mv.miSessionId, host::use(mv.miCatalog));
    rules::InicEspMod(mv.miSessionId, host::use(mv.miCatalog), true);
}

}  // namespace

void preparaReglas() {
    auto& mv = rules::modVariables();
    rules::iniciaPrefijosEsp();
    rules::buscaHijosEsp(mv.prefijosEsp);
    preparaTablas(mv);
}

void preparaReglasDe(int32_t objectId, bool prepara) {
    auto& mv = rules::modVariables();
    if (prepara) rules::iniciaPrefijosEsp();
    rules::buscaHijosEspDe(mv.prefijosEsp, objectId);
    if (prepara) preparaTablas(mv);
}

}  // namespace handlers
