#include "handlers/Preparacion.h"

#include <any>

#include "handlers/TablasPreparadas.h"
#include "host/CachedHost.h"
#include "host/Factory.h"
#include "rules/Especiales.h"
#include "rules/Modelos.h"
#include "rules/Refresco.h"

namespace handlers {

namespace {

// When the host objects keep their reads, a preparation completed earlier in the call on the
// same catalogue file is applied again instead of being read again (TablasPreparadas.h says
// why); it is kept beside that file's reads, so it lasts exactly as long as they do.
void preparaTablas(rules::ModVariables& mv) {
    rules::InicEsp();
    auto& catalog = host::use(mv.miCatalog);
    std::any* memo = host::fileMemo(catalog);
    if (const auto* hechas = memo ? std::any_cast<TablasPreparadas>(memo) : nullptr) {
        aplicaTablas(*hechas, mv);
        return;
    }
    rules::GenModEsp(mv.miSessionId, catalog);
    auto excepciones = rules::GenExcepciones(mv.miSessionId, catalog);
    rules::InicEspMod(mv.miSessionId, catalog, true);
    // Only a completed preparation is kept; an error above leaves nothing.
    if (memo) *memo = recogeTablas(mv, std::move(excepciones));
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
