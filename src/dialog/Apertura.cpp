#include "dialog/Apertura.h"

#include "common/Explicacion.h"
#include "common/ModVariables.h"
#include "dialog/Explicaciones.h"
#include "dialog/frmEspEnc.h"
#include "vb/Conversions.h"

namespace dialog {

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

LiberaObjetos::~LiberaObjetos() {
    auto& mv = common::modVariables();
    mv.miCatalog.reset();
    mv.miScene.reset();
    mv.miAppli.reset();
}

}  // namespace dialog
