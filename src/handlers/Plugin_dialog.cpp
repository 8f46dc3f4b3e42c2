// The components handlers of `Plugin`: open the special-editing dialog for the object of the
// event, in the components session with its error trap.
#include "common/Catalogo.h"
#include "common/ModVariables.h"
#include "dialog/Apertura.h"
#include "handlers/Plugin.h"
#include "handlers/Preparacion.h"

namespace handlers {

namespace {

// The work of an open session: the dialog when the object's catalogue loads.
void abreDialogo(Env& env) {
    auto& mv = common::modVariables();
    mv.dirCatalogos = common::leeDirCatalogos(env) + u"\\";
    dialog::leeMedidas();
    const common::CargaCatalogo carga = common::cargaCatalogoObjeto(env, -2);
    if (!carga.cargado) {
        dialog::avisaCatalogoAusente(env.platform, carga.ruta);
        return;
    }
    preparaReglas();
    dialog::muestraDialogo(env);
}

}  // namespace

bool Plugin::OnObjectComponentsBefore(int32_t lCallParamsBlock) {
    return dialog::sesionComponentes(env_, lCallParamsBlock, true, [&] {
        abreDialogo(env_);
        return false;
    });
}

bool Plugin::ObjectWizard(int32_t lCallParamsBlock) {
    return OnObjectComponentsBefore(lCallParamsBlock);
}

}  // namespace handlers
