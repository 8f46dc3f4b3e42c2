#include "dialog/Apertura.h"

#include "common/Explicacion.h"
#include "common/ModVariables.h"
#include "dialog/Explicaciones.h"
#include "dialog/frmEspEnc.h"
#include "host/Session.h"
#include "vb/Conversions.h"

namespace dialog {

namespace {

// Releases the shared host objects when a components handler returns, also after an error.
class LiberaObjetos {
  public:
    LiberaObjetos() = default;
    ~LiberaObjetos() {
        auto& mv = common::modVariables();
        mv.miCatalog.reset();
        mv.miScene.reset();
        mv.miAppli.reset();
    }
    LiberaObjetos(const LiberaObjetos&) = delete;
    LiberaObjetos& operator=(const LiberaObjetos&) = delete;
};

}  // namespace

void muestraDialogo(env::Env& env) {
    if (!env.dialogView)
        throw vb::RuntimeError(vb::err::kCantCreateObject,
                               u"The special-editing dialog is not available in this build");
    frmEspEnc form(env);
    env.dialogView->showModal(form);
}

void avisaErrorComponentes(platform::Platform& platform, const vb::RuntimeError& error) {
    const vb::String numero = vb::numberText(error.number());
    common::explica([&] { return explicaErrorAtrapado(error); });
    if (error.number() == vb::err::kTypeMismatch) {
        platform.messageBox(u"Error " + numero + u": " + error.description(), kCaptionAtencion,
                            platform::MsgIcon::Information);
        return;
    }
    platform.messageBox(u"Error no controlado num. " + numero + u". " + error.description() + u".",
                        kCaptionAtencion, platform::MsgIcon::Critical);
}

void avisaCatalogoAusente(platform::Platform& platform, const vb::String& ruta) {
    platform.messageBox(u"Error: no se encontr\u00F3 el archivo " + ruta + u".", kCaptionAtencion,
                        platform::MsgIcon::Critical);
}

void leeMedidas() {
    auto& mv = common::modVariables();
    auto& scene = host::use(mv.miScene);
    mv.medidaAncho = vb::CStr(scene.ObjectGetInfo(mv.miSessionId, -2, 12));
    mv.medidaFondo = vb::CStr(scene.ObjectGetInfo(mv.miSessionId, -2, 13));
    mv.medidaAlto = vb::CStr(scene.ObjectGetInfo(mv.miSessionId, -2, 14));
}

bool sesionComponentes(env::Env& env, int32_t lCallParamsBlock, bool refresca,
                       const std::function<bool()>& trabajo) {
    auto& mv = common::modVariables();
    LiberaObjetos libera;
    bool resultado = false;
    try {
        mv.numTiposEsp = 7;
        host::openSession(env.factory, {&mv.miAppli, &mv.miScene, &mv.miCatalog, &mv.miSessionId},
                          lCallParamsBlock);
        if (mv.miSessionId != 0) resultado = trabajo();
    } catch (const vb::RuntimeError& error) {
        avisaErrorComponentes(env.platform, error);
        resultado = true;
    }
    if (refresca && mv.miScene) host::use(mv.miScene).ViewRefresh(mv.miSessionId);
    if (mv.miAppli) host::use(mv.miAppli).EndSession(mv.miSessionId);
    return resultado;
}

}  // namespace dialog
