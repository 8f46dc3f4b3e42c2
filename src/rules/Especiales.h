#pragma once
// The seven kinds of special: permission codes and the door-model permission matrix.
#include <cstdint>

#include "common/ModVariables.h"
#include "host/Host.h"

namespace rules {

void InicEsp();  // codigosMO

// Fills permisosModelo from the catalogue's "MO_" lines, asking the host for every model's
// codes in turn. `reglaAll` (InicEspMod): one line per kind, and " ALL" allows every model.
// Without it (InicEspMod3): the line is read again for each model and " ALL" is a code list.
void InicEspMod(int32_t& sessionId, host::Catalog& catalog, bool reglaAll,
                int kinds = common::kNumTipos);

void InicEspMod2();  // the fixed rule, no catalogue access

// permisosModelo(m, k), false where the matrix has no such entry.
bool permiso(const common::ModVariables& mv, int m, int k);

}  // namespace rules
