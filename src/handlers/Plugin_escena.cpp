// Checks of objects in sessions: one finished object, and every top-level object of the scene
// with one summary message.
#include <optional>

#include "common/Catalogo.h"
#include "common/Explicacion.h"
#include "common/ModVariables.h"
#include "common/Textos.h"
#include "handlers/Plugin.h"
#include "handlers/Preparacion.h"
#include "host/Session.h"
#include "vb/Conversions.h"

namespace handlers {

namespace {

struct Sesion {
    int32_t callParams;
    bool abierta;  // the caller's session is already open
};

// Checks one object; opens (and ends) a session of its own unless the caller's is open.
void procesaObjetoSesion(Plugin& plugin, Sesion sesion, int32_t objectId, String& concatenar,
                         int16_t& laFuncion, bool prepara) {
    auto& mv = common::modVariables();
    std::optional<host::SessionScope> scope;
    if (!sesion.abierta) {
        scope.emplace(plugin.env().factory,
                      host::HostSlots{&mv.miAppli, &mv.miScene, &mv.miCatalog, &mv.miSessionId},
                      sesion.callParams);
        laFuncion = 3;
    }
    if (mv.miSessionId != 0) {
        mv.dirCatalogos = common::leeDirCatalogos(plugin.env()) + u"\\";
        auto& scene = host::use(mv.miScene);
        mv.medidaAncho = vb::CStr(scene.ObjectGetInfo(mv.miSessionId, objectId, 12));
        mv.medidaFondo = vb::CStr(scene.ObjectGetInfo(mv.miSessionId, objectId, 13));
        mv.medidaAlto = vb::CStr(scene.ObjectGetInfo(mv.miSessionId, objectId, 14));
        common::cargaCatalogoObjeto(plugin.env(), objectId);
        preparaReglasDe(objectId, prepara);
        plugin.procesaObjeto(mv.medidaAncho, mv.medidaAlto, mv.medidaFondo, objectId, concatenar,
                             laFuncion);
    }
    if (scope) scope->endSession();
}

String explicaOmitido(int32_t id, const String& number) {
    return u"Object " + vb::numberText(id) + u" is not checked: its catalogue number " +
           common::entreComillas(number) + u" is not a number.";
}

String explicaCatalogo(int32_t id, int16_t catalogo, bool nuevo) {
    return u"Object " + vb::numberText(id) + u", catalogue number " + vb::numberText(catalogo) +
           (nuevo ? u": the rules are prepared for its catalogue."
                  : u", as the object before: the rules prepared for it are used again.");
}

// The summary's texts are translated or not by the languages read when the check began: the
// catalogue current then, not those the check loads.
String explicaResumen(const common::Idiomas& idiomas, const String& mensaje) {
    if (mensaje.empty()) return u"No cabinet was refused: no summary is shown.";
    const String aplicacion = common::entreComillas(idiomas.aplicacion);
    const String catalogo = common::entreComillas(idiomas.catalogo);
    return u"Summary TR_9017 shown (caption TR_9001) with the refused references " +
           common::entreComillas(mensaje) + u"; " +
           (idiomas.traducir
                ? u"its texts go through the dictionary, as the application's language "
                : u"its texts are shown as the catalogue writes them, as the "
                  u"application's language ") +
           aplicacion + (idiomas.traducir ? u" differs from " : u" is also ") + u"the language " +
           catalogo +
           u" of the catalogue that was current when the check began (read once, before any "
           u"cabinet's catalogue was loaded; letter case counts).";
}

bool esSuperior(int32_t parent) {
    return parent == -1 || parent == -2;
}

}  // namespace

bool Plugin::OnObjectFinishesAfter(int32_t lCallParamsBlock) {
    String concatenar;
    int16_t funcion = 3;
    procesaObjetoSesion(*this, {lCallParamsBlock, false}, -2, concatenar, funcion, true);
    return true;
}

bool Plugin::OnSceneGenericFinishesAfter(int32_t lCallParamsBlock) {
    ultimoCatalogo = -1;
    String mensaje;
    auto& mv = common::modVariables();
    host::SessionScope scope(
        env_.factory, {&mv.miAppli, &mv.miScene, &mv.miCatalog, &mv.miSessionId}, lCallParamsBlock);
    common::Idiomas idiomas;
    idiomas.aplicacion = vb::CStr(host::use(mv.miAppli).GetLanguage(mv.miSessionId));
    idiomas.catalogo = vb::CStr(host::use(mv.miCatalog).GetInfo(mv.miSessionId, 17));
    idiomas.traducir = idiomas.catalogo != idiomas.aplicacion;

    auto& scene = host::use(mv.miScene);
    const int32_t n = vb::CLng(scene.SceneGetObjectsNb(mv.miSessionId));
    for (int32_t i = 1; i <= n; ++i) {
        const int32_t id = vb::CLng(scene.SceneGetObjectId(mv.miSessionId, i));
        if (!esSuperior(vb::CLng(scene.ObjectGetParentId(mv.miSessionId, id)))) continue;
        const Variant number = scene.ObjectGetInfo(mv.miSessionId, id, 2);
        if (!vb::IsNumeric(number)) {
            common::explica([&] { return explicaOmitido(id, common::textoDe(number)); });
            continue;
        }
        const int16_t catalogo = vb::CInt(number);
        const bool nuevo = ultimoCatalogo != catalogo;
        common::explica([&] { return explicaCatalogo(id, catalogo, nuevo); });
        ultimoCatalogo = catalogo;
        int16_t funcion = 4;
        procesaObjetoSesion(*this, {lCallParamsBlock, true}, id, mensaje, funcion, nuevo);
    }
    common::explica([&] { return explicaResumen(idiomas, mensaje); });
    if (!mensaje.empty()) {
        const String text = common::traduce(idiomas, common::textoCatalogo(u"TR_9017"));
        const String title = common::traduce(idiomas, common::textoCatalogo(u"TR_9001"));
        env_.platform.messageBox(text + u"\r\n" + mensaje, title, platform::MsgIcon::Information);
    }
    scene.ViewRefresh(mv.miSessionId);
    scope.endSession();
    return true;
}

}  // namespace handlers
