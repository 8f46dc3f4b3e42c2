#pragma once
// Checking one object's measures against its catalogue article: each differing dimension is
// decided, refused measures are restored, the reference is collected and the user told.
#include <cstdint>

#include "platform/Platform.h"
#include "vb/Variant.h"

namespace rules {

using vb::String;

// The per-instance members of `Plugin` that the check writes.
struct ObjetoActual {
    String refObjeto;
    String modeloPuerta;
};

struct MedidasObjeto {
    String ancho, alto, fondo;
};

// True when every differing dimension may stay. `concatenar` collects rejected references
// joined by " - ". A measure that is not a number raises error 13.
bool procesaObjeto(platform::Platform& platform, ObjetoActual& actual, const MedidasObjeto& medidas,
                   int32_t elId, String& concatenar, int16_t laFuncion);

// The description fields (43, 173) of the object's "_DESC" children, from catalogue table 4.
void actualizaDescripciones(int32_t objectId);

}  // namespace rules
