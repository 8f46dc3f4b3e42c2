#include "common/Textos.h"

#include "common/ModVariables.h"
#include "host/Factory.h"
#include "vb/Conversions.h"

namespace common {

String textoCatalogo(const String& key) {
    auto& mv = modVariables();
    auto& catalogo = host::use(mv.miCatalog);
    const int32_t rank =
        vb::CLng(catalogo.TableGetLineRankFromCode(mv.miSessionId, 2, 0, 1, key, false));
    if (rank <= 0) return String();
    return vb::CStr(catalogo.TableGetLineInfo(mv.miSessionId, 2, 0, rank, 9));
}

Idiomas leeIdiomas() {
    auto& mv = modVariables();
    Idiomas idiomas;
    idiomas.aplicacion = vb::CStr(host::use(mv.miAppli).GetLanguage(mv.miSessionId));
    idiomas.catalogo = vb::CStr(host::use(mv.miCatalog).GetInfo(mv.miSessionId, 17));
    idiomas.traducir = idiomas.catalogo != idiomas.aplicacion;
    return idiomas;
}

String traduce(const Idiomas& idiomas, const String& text) {
    if (!idiomas.traducir) return text;
    auto& mv = modVariables();
    return vb::CStr(
        host::use(mv.miCatalog).DicoGetStringFromKey(mv.miSessionId, text, idiomas.aplicacion));
}

String textoTraducido(const Idiomas& idiomas, const String& key) {
    return traduce(idiomas, textoCatalogo(key));
}

}  // namespace common
