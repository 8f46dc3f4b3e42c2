#pragma once
// Door models of the loaded catalogue and the exception lists.
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "common/ModVariables.h"
#include "host/Host.h"

namespace rules {

using vb::String;

void GenModEsp(int32_t& sessionId, host::Catalog& catalog);  // modelos, numModelos
bool modeloValido(const String& refer, const String& code, const String& script);

// The row of permisosModelo for a door model: the first of modelos(0..numModelos-1) with that
// name, compared exactly (a placement) or ignoring letter case (the special-editing dialog);
// nothing when none has it (row 0 is then used).
std::optional<int> filaDelModelo(const std::vector<String>& modelos, int numModelos,
                                 const String& modelo, bool ignorarMayusculas);
// What GenExcepciones did to each kind's list: the list it put in, or nothing where an empty
// text kept the list as it was.
using ExcepcionesLeidas = std::array<std::optional<std::vector<String>>, common::kNumTipos>;

// excepEA .. excepEAAF, each kind's list set as soon as its line is read.
ExcepcionesLeidas GenExcepciones(int32_t& sessionId, host::Catalog& catalog);
// The same effect again, without reading.
void aplicaExcepciones(const ExcepcionesLeidas& leidas);

}  // namespace rules
