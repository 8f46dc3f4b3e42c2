#pragma once
// The outcome of the table part of the rules' preparation (GenModEsp, GenExcepciones,
// InicEspMod), kept so that it can be applied again with the same effect and no host call.
//
// Why: a scene-wide check whose catalogue changes at every cabinet prepares the rules again at
// every cabinet, and with a few hundred door models whose permission lines list dozens of codes
// that is over a hundred thousand reads each time; even answered from memory they cost seconds
// per thousand cabinets. The outcome is a function of the catalogue's tables, which are fixed
// while the file is loaded, and of two leftovers of the earlier state (entries of `modelos`
// past the new count, and exception lists that an empty text keeps), which applying respects.
#include <vector>

#include "common/ModVariables.h"
#include "rules/Modelos.h"

namespace handlers {

struct TablasPreparadas {
    std::vector<vb::String> modelos;  // the first numModelos entries
    rules::ExcepcionesLeidas excepciones;
    std::vector<std::vector<bool>> permisosModelo;
};

// What the preparation just completed on `mv` left, given what its GenExcepciones did.
TablasPreparadas recogeTablas(const common::ModVariables& mv, rules::ExcepcionesLeidas excepciones);

// The same effect on `mv` as running the preparation's table part again.
void aplicaTablas(const TablasPreparadas& tablas, common::ModVariables& mv);

}  // namespace handlers
