// The components handlers of `Plugin`: open the special-editing dialog for the object of the
// event, with the error trap that reports any runtime error raised meanwhile.
#include "common/Catalogo.h"
#include "common/ModVariables.h"
#include "dialog/Apertura.h"
#include "handlers/Plugin.h"
#include "handlers/Preparacion.h"
#include "host/Factory.h"
#include "vb/Conversions.h"

namespace handlers {

namespace {

void abreSesion(Env& env, common::ModVariables& mv, int32_t lCallParamsBlock) {
    mv.miAppli = host::createAppli(env.factory);
    mv.miScene = host::createScene(env.factory);
    mv.miCatalog = host::createCatalog(env.factory);
    int32_t bloque = lCallParamsBlock;
    mv.miSessionId = vb::CLng(host::use(mv.miAppli).StartSessionFromCallParams(bloque));
}

void leeMedidas(common::ModVariables& mv) {
    auto& scene = host::use(mv.miScene);
    mv.medidaAncho = vb::CStr(scene.ObjectGetInfo(mv.miSessionId, -2, 12));
    mv.medidaFondo = vb::CStr(scene.ObjectGetInfo(mv.miSessionId, -2, 13));
    mv.medidaAlto = vb::CStr(scene.ObjectGetInfo(mv.miSessionId, -2, 14));
}

}  // namespace

bool Plugin::OnObjectComponentsBefore(int32_t lCallParamsBlock) {
    auto& mv = common::modVariables();
    dialog::LiberaObjetos libera;
    bool resultado = false;
    try {
        mv.numTiposEsp = 7;
        abreSesion(env_, mv, lCallParamsBlock);
        if (mv.miSessionId != 0) {
            mv.dirCatalogos = common::leeDirCatalogos(env_) + u"\\";
            leeMedidas(mv);
            common::CargaCatalogo carga = common::cargaCatalogoObjeto(env_, -2);
            if (carga.cargado) {
                preparaReglas();
                dialog::muestraDialogo(env_);
            } else {
                dialog::avisaCatalogoAusente(env_.platform, carga.ruta);
            }
        }
    } catch (const vb::RuntimeError& error) {
        dialog::avisaErrorComponentes(env_.platform, error);
        resultado = true;
    }
    if (mv.miScene) host::use(mv.miScene).ViewRefresh(mv.miSessionId);
    if (mv.miAppli) host::use(mv.miAppli).EndSession(mv.miSessionId);
    return resultado;
}

bool Plugin::ObjectWizard(int32_t lCallParamsBlock) {
    return OnObjectComponentsBefore(lCallParamsBlock);
}

}  // namespace handlers
