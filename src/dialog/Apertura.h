#pragma once
// What both components handlers share: showing the dialog through the shell's view, the
// error trap's message, and the missing-catalogue message.
#include "env/Env.h"
#include "vb/Errors.h"

namespace dialog {

// Creates the form and shows it modally through env.dialogView; a build without a dialog
// raises a runtime error, which the handler's trap reports.
void muestraDialogo(env::Env& env);

// "Error 13: ..." with the information icon, or "Error no controlado num. N. ..." with the
// critical-stop icon, captioned "¡¡Atención!!".
void avisaErrorComponentes(platform::Platform& platform, const vb::RuntimeError& error);

// "Error: no se encontró el archivo <ruta>." with the critical-stop icon.
void avisaCatalogoAusente(platform::Platform& platform, const vb::String& ruta);

// Releases the shared host objects when a components handler returns, also after an error.
class LiberaObjetos {
  public:
    LiberaObjetos() = default;
    ~LiberaObjetos();
    LiberaObjetos(const LiberaObjetos&) = delete;
    LiberaObjetos& operator=(const LiberaObjetos&) = delete;
};

}  // namespace dialog
