#pragma once
// The decision of one dimension in a catalogue author's words: which exception list was
// searched and why, which kind of special and door-model permission decided.
#include <cstdint>

#include "common/ModVariables.h"
#include "rules/Dimension.h"

namespace rules {

using vb::String;

constexpr int kNinguna = -1;      // no exception list is searched
constexpr int kSiempre = -1;      // the change stays whatever the matrix says
constexpr int kSinMarca = -1;     // the row tested no marker
constexpr int kHayHijoAlto = -2;  // the row tested whether a height marker was ever found

// The row of a decision table that matched: its value (a list or a kind), the other dimension
// whose difference chose it (0: none) and the kind whose marker entry it tested.
struct Fila {
    int valor = kNinguna;
    int32_t otraMedida = 0;
    int marca = kSinMarca;
};

// What a decision's reasons are read from: the rule tables and the measures compared.
struct Porque {
    const common::ModVariables& mv;
    const Medidas& medidas;
};

String explicaExcepcion(const Porque& p, int32_t dimension, const Fila& lista, const String& ref,
                        bool listada);
String explicaSinMarca(int32_t dimension, int marca);
String explicaPermiso(const Porque& p, int32_t dimension, const Fila& kind, const String& model,
                      int fila, bool permitido);

// "width", "depth" or "height" for information 12, 13, 14.
String nombreMedida(int32_t dimension);

// The names the tables use for kind k (0..6): ANCHO .., MO_EA .., EX_EA .., "EA_" ..
String nombreTipo(int k);
String codigoMO(int k);
String codigoEX(int k);
String prefijoTipo(int k);

}  // namespace rules
