#pragma once
// What both components handlers share: their session with its error trap, showing the dialog
// through the shell's view, the trap's message, and the missing-catalogue message.
#include <cstdint>
#include <functional>

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

// The edited object's measures (information 12, 13, 14 of -2) into medidaAncho, medidaFondo and
// medidaAlto, which the dialog compares the new ones against.
void leeMedidas();

// The session of a components handler, Plugin's or Wizard's: numTiposEsp = 7, the shared host
// objects created and the shared session opened, then `trabajo` (its answer is the result) when
// the session is open. A runtime error raised meanwhile is shown (avisaErrorComponentes) and
// makes the result true. Then ViewRefresh when `refresca`, EndSession, and the shared objects
// released, also when one of those two raises.
bool sesionComponentes(env::Env& env, int32_t lCallParamsBlock, bool refresca,
                       const std::function<bool()>& trabajo);

}  // namespace dialog
