#include "handlers/Textos.h"

#include "host/Factory.h"
#include "rules/ModVariables.h"
#include "vb/Conversions.h"

namespace handlers {

String textoCatalogo(const String& key) {
    auto& mv = rules::modVariables();
    auto& catalogo = host::use(mv.miCatalog);
    const int32_t rank =
        vb::CLng(catalogo.TableGetLineRankFromCode(mv.miSessionId, 2, 0, 1, key, false));
    if (rank <= 0) return String();
    return vb::CStr(catalogo.TableGetLineInfo(mv.miSessionId, 2, 0, rank, 9));
}

Idiomas leeIdiomas() {
    auto& mv = rules::modVariables();
    Idiomas idiomas;
    idiomas.aplicacion = vb::CStr(host::use(mv.miAppli).GetLanguage(mv.miSessionId));
    idiomas.catalogo = vb::CStr(host::use(mv.miCatalog).GetInfo(mv.miSessionId, 17));
    idiomas.traducir = idiomas.catalogo != idiomas.aplicacion;
    return idiomas;
}

String traduce(const Idiomas& idiomas, const String& text) {
    if (!idiomas.traducir) return text;
    auto& mv = rules::modVariables();
    return vb::CStr(
        host::use(mv.miCatalog).DicoGetStringFromKey(mv.miSessionId, text, idiomas.aplicacion));
}

String textoTraducido(const Idiomas& idiomas, const String& key) {
    return traduce(idiomas, textoCatalogo(key));
}

}  // namespace handlers
