#pragma once
// One cabinet's check in a catalogue author's words: its measures against its article's, and
// what happened to each measure that differs.
#include <cstdint>

#include "rules/Objeto.h"
#include "vb/Errors.h"

namespace rules {

using vb::String;

String explicaObjeto(const ObjetoActual& actual, const String& articulo, int32_t rank,
                     const MedidasObjeto& medidas, const MedidasObjeto& catalogo);
String explicaIgualEntero(int32_t dimension, const String& valor, const String& catalogo);
String explicaDifiere(int32_t dimension, const String& valor, const String& catalogo);
// CLng of a measure text; when it raises, the trace names the text (`que`: "The cabinet's
// width") before the error goes on.
int32_t medidaEntera(const String& texto, const String& que);
String explicaRestaurada(int32_t dimension, const String& catalogo, bool anadida);

}  // namespace rules
