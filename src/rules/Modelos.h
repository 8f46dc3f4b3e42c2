#pragma once
// Door models of the loaded catalogue and the exception lists.
#include <cstdint>

#include "host/Host.h"
#include "rules/ModVariables.h"

namespace rules {

void GenModEsp(int32_t& sessionId, host::Catalog& catalog);  // modelos, numModelos
bool modeloValido(const String& refer, const String& code, const String& script);
void GenExcepciones(int32_t& sessionId, host::Catalog& catalog);  // excepEA .. excepEAAF

}  // namespace rules
