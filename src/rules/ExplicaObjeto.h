#pragma once
// One cabinet's check in a catalogue author's words: its measures against its article's, and
// what happened to each measure that differs.
#include <cstdint>

#include "rules/Objeto.h"
#include "vb/Errors.h"

namespace rules {

String explicaObjeto(const ObjetoActual& actual, const String& articulo, int32_t rank,
                     const MedidasObjeto& medidas, const MedidasObjeto& catalogo);
String explicaIgualEntero(int32_t dimension, const String& valor, const String& catalogo);
String explicaDifiere(int32_t dimension, const String& valor, const String& catalogo);
String explicaIlegible(int32_t dimension, const String& texto, bool delCatalogo,
                       const vb::RuntimeError& error);
String explicaRestaurada(int32_t dimension, const String& catalogo, bool anadida);

}  // namespace rules
