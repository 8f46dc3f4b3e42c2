#pragma once
// How the rules read the text of an MO_ or EX_ line of table 2 (column 2): the first three
// characters are skipped and the rest is split at every blank, empty pieces kept. Pure, so that
// whatever checks or shows a catalogue reads a line exactly as the rules do.
#include <functional>
#include <optional>
#include <vector>

#include "vb/Variant.h"

namespace rules {

using vb::String;

struct ReglaLeida {
    String resto;                // from the fourth character on ("" for a shorter text)
    std::vector<String> piezas;  // resto split at every blank
    bool todos = false;          // resto is " ALL": every model (InicEspMod's rule)
};
ReglaLeida leeRegla(const String& texto);

// GenExcepciones: nothing for an empty text, which leaves the list as it was; else the pieces.
std::optional<std::vector<String>> leeExcepcion(const String& texto);

// The model name (table 8, column 3) of the line with that code; nothing when there is none.
using NombreDeCodigo = std::function<std::optional<String>(const String& codigo)>;

// Some listed code names the model exactly; the codes are looked up in list order and the list
// stops at the first that does.
bool codigosNombran(const std::vector<String>& codigos, const String& modelo,
                    const NombreDeCodigo& nombreDe);

// permisosModelo(m, k) from kind k's rule text (nothing: table 2 has no line). With `reglaAll`
// (InicEspMod) " ALL" permits every model; without it (InicEspMod3) it is a list like any other.
bool reglaPermite(const std::optional<String>& regla, const String& modelo, bool reglaAll,
                  const NombreDeCodigo& nombreDe);

}  // namespace rules
