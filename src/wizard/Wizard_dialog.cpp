// The components handlers of `Wizard`: the special-editing dialog for catalogues 31 to 33, in
// the components session with its error trap (no view refresh).
#include "common/Catalogo.h"
#include "common/ModVariables.h"
#include "dialog/Apertura.h"
#include "host/Factory.h"
#include "vb/Conversions.h"
#include "wizard/Wizard.h"

namespace wizard {

namespace {

// The catalogue number names one of the three manufacturers.
bool esCatalogoPropio(const vb::Variant& numero) {
    if (!vb::IsNumeric(numero)) return false;
    double n = vb::CDbl(numero);
    return n == 31 || n == 32 || n == 33;
}

// The work of an open session; true when the object is not of the three catalogues.
bool abreDialogo(Wizard& w, env::Env& env) {
    auto& mv = common::modVariables();
    auto& scene = host::use(mv.miScene);
    mv.dirCatalogos = common::leeDirCatalogosTexto(env);
    dialog::leeMedidas();
    String ruta =
        mv.dirCatalogos + u"\\" + vb::CStr(scene.ObjectGetInfo(mv.miSessionId, -2, 0)) + u".cat";
    if (!esCatalogoPropio(scene.ObjectGetInfo(mv.miSessionId, -2, 2))) return true;
    if (!vb::CBool(host::use(mv.miCatalog).FileLoad(mv.miSessionId, ruta))) {
        dialog::avisaCatalogoAusente(env.platform, ruta);
        return false;
    }
    w.InicEsp();
    w.GenModEsp(mv.miSessionId, mv.miAppli, mv.miScene, mv.miCatalog);
    w.GenExcepciones(mv.miSessionId, mv.miAppli, mv.miScene, mv.miCatalog);
    w.InicEspMod(mv.miSessionId, mv.miCatalog);
    dialog::muestraDialogo(env);
    return false;
}

}  // namespace

bool Wizard::OnObjectComponentsBefore(int32_t lCallParamsBlock) {
    return dialog::sesionComponentes(env_, lCallParamsBlock, false,
                                     [&] { return abreDialogo(*this, env_); });
}

bool Wizard::ObjectWizard(int32_t lCallParamsBlock) {
    return OnObjectComponentsBefore(lCallParamsBlock);
}

}  // namespace wizard
