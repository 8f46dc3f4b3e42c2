#pragma once
// Keyed texts from the loaded catalogue's table 2, and the translation step through the host's
// dictionary. All of it works on the shared session and host objects.
#include "vb/Variant.h"

namespace common {

using vb::String;

// Column 9 of the table-2 line whose code is `key`; "" when there is none.
String textoCatalogo(const String& key);

// The application's and the catalogue's language, read once, and the translation step.
struct Idiomas {
    String aplicacion;
    String catalogo;
    bool traducir = false;  // the two differ (exact comparison)
};
Idiomas leeIdiomas();
// `text` through DicoGetStringFromKey when idiomas.traducir, else unchanged.
String traduce(const Idiomas& idiomas, const String& text);
// textoCatalogo(key), translated when idiomas.traducir.
String textoTraducido(const Idiomas& idiomas, const String& key);

}  // namespace common
