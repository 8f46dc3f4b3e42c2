#include "handlers/Preparacion.h"

#include "host/Factory.h"
#include "rules/Especiales.h"
#include "rules/Explicacion.h"
#include "rules/Modelos.h"
#include "rules/Refresco.h"
#include "vb/Conversions.h"

namespace handlers {

namespace {

// The door models the rules now know, for the trace: the first few by name.
vb::String explicaModelos(const rules::ModVariables& mv) {
    constexpr int kNombrados = 10;
    vb::String texto = u"Door models of table 8: " + vb::numberText(mv.numModelos);
    for (int m = 0; m < mv.numModelos && m < kNombrados && m < static_cast<int>(mv.modelos.size());
         ++m)
        texto += (m == 0 ? u" (" : u", ") + rules::entreComillas(mv.modelos[m]);
    if (mv.numModelos > 0) texto += mv.numModelos > kNombrados ? u", …)" : u")";
    return texto + u".";
}

void preparaTablas(rules::ModVariables& mv) {
    rules::InicEsp();
    rules::GenModEsp(mv.miSessionId, host::use(mv.miCatalog));
    rules::GenExcepciones(mv.miSessionId, host::use(mv.miCatalog));
    rules::InicEspMod(mv.miSessionId, host::use(mv.miCatalog), true);
    rules::explica([&] { return explicaModelos(mv); });
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
