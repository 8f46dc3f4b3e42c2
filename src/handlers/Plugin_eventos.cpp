// The placement and attribute-dialog checks of the object of the current event.
#include "common/Catalogo.h"
#include "common/ModVariables.h"
#include "handlers/Plugin.h"
#include "handlers/Preparacion.h"
#include "host/Session.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace handlers {

namespace {

constexpr int32_t kObjetoEvento = -2;
constexpr int32_t kInfoDialogoAtributos = 9;
constexpr int32_t kBufferDialogo = 11;

String infoEvento(int32_t code) {
    auto& mv = common::modVariables();
    return vb::CStr(host::use(mv.miScene).ObjectGetInfo(mv.miSessionId, kObjetoEvento, code));
}

String textoDialogo(Env& env, int32_t handle, int32_t controlId) {
    return vb::Trim(env.platform.GetDlgItemText(handle, controlId, kBufferDialogo));
}

}  // namespace

bool Plugin::OnObjectPlaceAfter(int32_t lCallParamsBlock) {
    auto& mv = common::modVariables();
    host::SessionScope scope(
        env_.factory, {&mv.miAppli, &mv.miScene, &mv.miCatalog, &mv.miSessionId}, lCallParamsBlock);
    if (scope.isOpen()) {
        mv.dirCatalogos = common::leeDirCatalogos(env_) + u"\\";
        mv.medidaAncho = infoEvento(12);
        mv.medidaFondo = infoEvento(13);
        mv.medidaAlto = infoEvento(14);
        common::cargaCatalogoObjeto(env_, kObjetoEvento);
        preparaReglas();
        int32_t id = kObjetoEvento;
        String concatenar;
        int16_t funcion = 1;
        procesaObjeto(mv.medidaAncho, mv.medidaAlto, mv.medidaFondo, id, concatenar, funcion);
    }
    host::use(mv.miScene).ViewRefresh(mv.miSessionId);
    scope.endSession();
    return true;
}

bool Plugin::OnObjectAttributsDlgValidation(int32_t lCallParamsBlock) {
    auto& mv = common::modVariables();
    host::SessionScope scope(
        env_.factory, {&mv.miAppli, &mv.miScene, &mv.miCatalog, &mv.miSessionId}, lCallParamsBlock);
    if (scope.isOpen()) {
        const int32_t handle = vb::CLng(
            host::use(mv.miAppli).GetCallParamsInfo(mv.miSessionId, kInfoDialogoAtributos));
        mv.medidaAncho = textoDialogo(env_, handle, 150);
        mv.medidaAlto = textoDialogo(env_, handle, 151);
        mv.medidaFondo = textoDialogo(env_, handle, 152);
        mv.dirCatalogos = common::leeDirCatalogos(env_) + u"\\";
        common::cargaCatalogoObjeto(env_, kObjetoEvento);
        preparaReglas();
        int32_t id = kObjetoEvento;
        String concatenar;
        int16_t funcion = 2;
        procesaObjeto(mv.medidaAncho, mv.medidaAlto, mv.medidaFondo, id, concatenar, funcion);
    }
    host::use(mv.miScene).ViewRefresh(mv.miSessionId);
    scope.endSession();
    return true;
}

}  // namespace handlers
