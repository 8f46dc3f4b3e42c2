#include "handlers/Preparacion.h"

#include <any>

#include "common/Explicacion.h"
#include "handlers/TablasPreparadas.h"
#include "host/CachedHost.h"
#include "host/Factory.h"
#include "rules/Especiales.h"
#include "rules/Modelos.h"
#include "rules/Refresco.h"
#include "vb/Conversions.h"

namespace handlers {

namespace {

// The door models the rules now know, for the trace: the first few by name.
vb::String explicaModelos(const common::ModVariables& mv) {
    constexpr int kNombrados = 10;
    vb::String texto = u"Door models of table 8: " + vb::numberText(mv.numModelos);
    for (int m = 0; m < mv.numModelos && m < kNombrados && m < static_cast<int>(mv.modelos.size());
         ++m)
        texto += (m == 0 ? u" (" : u", ") + common::entreComillas(mv.modelos[m]);
    if (mv.numModelos > 0) texto += mv.numModelos > kNombrados ? u", …)" : u")";
    return texto + u".";
}

// When the host objects keep their reads, a preparation completed earlier in the call on the
// same catalogue file is applied again instead of being read again (TablasPreparadas.h says
// why); it is kept beside that file's reads, so it lasts exactly as long as they do.
void preparaTablas(common::ModVariables& mv) {
    rules::InicEsp();
    auto& catalog = host::use(mv.miCatalog);
    std::any* memo = host::fileMemo(catalog);
    if (const auto* hechas = memo ? std::any_cast<TablasPreparadas>(memo) : nullptr) {
        aplicaTablas(*hechas, mv);
    } else {
        rules::GenModEsp(mv.miSessionId, catalog);
        auto excepciones = rules::GenExcepciones(mv.miSessionId, catalog);
        rules::InicEspMod(mv.miSessionId, catalog, true);
        // Only a completed preparation is kept; an error above leaves nothing.
        if (memo) *memo = recogeTablas(mv, std::move(excepciones));
    }
    common::explica([&] { return explicaModelos(mv); });
}

}  // namespace

void preparaReglas() {
    auto& mv = common::modVariables();
    rules::iniciaPrefijosEsp();
    rules::buscaHijosEsp(mv.prefijosEsp);
    preparaTablas(mv);
}

void preparaReglasDe(int32_t objectId, bool prepara) {
    auto& mv = common::modVariables();
    if (prepara) rules::iniciaPrefijosEsp();
    rules::buscaHijosEspDe(mv.prefijosEsp, objectId);
    if (prepara) preparaTablas(mv);
}

}  // namespace handlers
