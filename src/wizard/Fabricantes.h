#pragma once
// The fixed rules of the three manufacturers whose catalogues the host numbers 31, 32 and 33.
#include <vector>

#include "vb/Variant.h"

namespace wizard {

using vb::String;

struct Fabricante {
    int numero;                   // catalogue number
    String catalogo;              // loaded from the plug-in's folder & this
    String reemplazo;             // catalogue named in the replacement
    int longitudCodigo;           // article code = first n characters of the reference
    std::vector<String> codigos;  // article codes exempt from every rule
    std::vector<String> modelos;  // door models of the list
    bool reglaAncho;              // listed models outside sinReglaAncho keep the width
    std::vector<String> sinReglaAncho;
};

const Fabricante& fabricanteForma();   // 31
const Fabricante& fabricanteXey();     // 32
const Fabricante& fabricanteVegasa();  // 33

// Exact, case-sensitive membership.
bool enLista(const String& value, const std::vector<String>& list);

}  // namespace wizard
