#pragma once
// The seven kinds of special: permission codes and the door-model permission matrix.
#include <cstdint>

#include "host/Host.h"
#include "rules/ModVariables.h"

namespace rules {

void InicEsp();  // codigosMO

// Fills permisosModelo from the catalogue's "MO_" lines. `reglaAll`: a rule of " ALL" allows
// every model (InicEspMod); without it that rule is looked up as codes (InicEspMod3).
void InicEspMod(int32_t& sessionId, host::Catalog& catalog, bool reglaAll, int kinds = kNumTipos);

void InicEspMod2();  // the fixed rule, no catalogue access

// permisosModelo(m, k), false where the matrix has no such entry.
bool permiso(const ModVariables& mv, int m, int k);

}  // namespace rules
