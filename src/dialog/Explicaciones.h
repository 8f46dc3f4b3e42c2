#pragma once
// The dialog's decisions in a catalogue author's words: the types offered or hidden, the
// components left out of the lists, and the accept step's checks.
#include <cstdint>

#include "vb/Errors.h"
#include "vb/Variant.h"

namespace dialog {

using vb::String;

struct TipoOfrecido {
    int tipo;
    bool ofrecido, excepcion, permiso;
    int32_t marca;  // the marker child's id, -2 for none
    String modelo, referencia;
    int fila;            // row of the permission matrix used
    bool modeloHallado;  // the door model is among the catalogue's
};
String explicaTipo(const TipoOfrecido& t);
String explicaTipoOculto(int tipo, int medida, int32_t informacion);

String explicaNoListado(const String& code, int32_t id, const String& motivo);
String explicaDiagonal(const String& code, int32_t id);
String explicaLimites(const String& nMin, double lo, const String& nMax, double hi,
                      const String& medida, const String& valor);
String explicaScriptIlegible(const String& descripcion);

// An error the components handler traps and shows, with the text that failed when a
// conversion raised it.
String explicaErrorAtrapado(const vb::RuntimeError& error);

// The accept step: one measure box against the cabinet's limits.
String explicaMedida(int k, const String& texto, double min, double max, bool dentro, bool anotada);

}  // namespace dialog
