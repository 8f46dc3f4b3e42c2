#pragma once
// Rule procedures shared by both classes and the dialog. They work on this thread's
// ModVariables and its session and host objects.
#include <cstdint>
#include <vector>

#include "common/ModVariables.h"

namespace rules {

using vb::String;

void iniciaPrefijosEsp();
void buscaHijosEsp(const std::vector<String>& prefijos);  // object -2
void buscaHijosEspDe(const std::vector<String>& prefijos, int32_t objectId);
bool estaEnLista(const String& value, const common::ListaExcepciones& lista);

}  // namespace rules
