#pragma once
// Rule procedures shared by both classes and the dialog. They work on this thread's
// ModVariables and its session and host objects.
#include <cstdint>
#include <vector>

#include "rules/ModVariables.h"

namespace rules {

void iniciaPrefijosEsp();
void buscaHijosEsp(const std::vector<String>& prefijos);  // object -2
void buscaHijosEspDe(const std::vector<String>& prefijos, int32_t objectId);
bool estaEnLista(const String& value, const ListaExcepciones& lista);

}  // namespace rules
