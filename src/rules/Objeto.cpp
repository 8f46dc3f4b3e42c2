#include "rules/Objeto.h"

#include "common/Explicacion.h"
#include "common/ModVariables.h"
#include "host/Factory.h"
#include "rules/Dimension.h"
#include "rules/ExplicaDimension.h"
#include "rules/ExplicaObjeto.h"
#include "rules/Mensajes.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace rules {

namespace {

struct Catalogo3 {
    int32_t rank = 0;
    String ancho, fondo, alto;
};

Catalogo3 medidasCatalogo(const String& referencia) {
    auto& mv = common::modVariables();
    auto& catalog = host::use(mv.miCatalog);
    const int32_t rank =
        vb::CLng(catalog.TableGetLineRankFromName(mv.miSessionId, 3, 0, 1, referencia, false));
    Catalogo3 c;
    c.rank = rank;
    c.ancho = vb::CStr(catalog.TableGetLineInfo(mv.miSessionId, 3, 0, rank, 3));
    c.fondo = vb::CStr(catalog.TableGetLineInfo(mv.miSessionId, 3, 0, rank, 4));
    c.alto = vb::CStr(catalog.TableGetLineInfo(mv.miSessionId, 3, 0, rank, 5));
    return c;
}

String infoObjeto(int32_t id, int32_t code) {
    auto& mv = common::modVariables();
    return vb::CStr(host::use(mv.miScene).ObjectGetInfo(mv.miSessionId, id, code));
}

void anade(String& concatenar, const String& referencia) {
    concatenar = concatenar.empty() ? referencia : concatenar + u" - " + referencia;
}

// A measure as a whole number; a text that is none ends the check, and the trace names it.
int32_t entero(int32_t dimension, const String& texto, bool delCatalogo) {
    const String que = delCatalogo ? u"The catalogue's " + nombreMedida(dimension) + u" (table 3)"
                                   : u"The cabinet's " + nombreMedida(dimension);
    return medidaEntera(texto, que);
}

// One dimension: decided only when its integer values differ; a refusal restores the
// catalogue value and, when `anadir`, collects the object's reference.
bool decide(const ObjetoActual& actual, int32_t dimension, const String& valor,
            const String& catalogo, const Medidas& medidas, int32_t elId, String& concatenar,
            bool anadir) {
    const int32_t delObjeto = entero(dimension, valor, false);
    if (delObjeto == entero(dimension, catalogo, true)) {
        if (valor != catalogo)
            common::explica([&] { return explicaIgualEntero(dimension, valor, catalogo); });
        return true;
    }
    common::explica([&] { return explicaDifiere(dimension, valor, catalogo); });
    auto& mv = common::modVariables();
    if (procesaDimension(mv, dimension, medidas, actual.refObjeto, actual.modeloPuerta, elId)) {
        return true;
    }
    host::use(mv.miScene).ObjectSetInfo(mv.miSessionId, elId, catalogo, dimension);
    common::explica([&] { return explicaRestaurada(dimension, catalogo, anadir); });
    if (anadir) anade(concatenar, infoObjeto(elId, 8));
    return false;
}

}  // namespace

bool procesaObjeto(platform::Platform& platform, ObjetoActual& actual, const MedidasObjeto& medidas,
                   int32_t elId, String& concatenar, int16_t laFuncion) {
    actual.refObjeto = infoObjeto(elId, 7);
    actual.modeloPuerta = infoObjeto(elId, 64);
    programaST2(platform, actual.modeloPuerta);
    const Catalogo3 cat = medidasCatalogo(actual.refObjeto);
    const String articulo = actual.refObjeto;
    actual.refObjeto = infoObjeto(elId, 8);
    common::explica([&] {
        return explicaObjeto(actual, articulo, cat.rank, medidas, {cat.ancho, cat.alto, cat.fondo});
    });

    const Medidas m{medidas.ancho, cat.ancho, medidas.fondo, cat.fondo, medidas.alto, cat.alto};
    const bool okW =
        decide(actual, kCodigoAncho, medidas.ancho, cat.ancho, m, elId, concatenar, true);
    const bool okD =
        decide(actual, kCodigoFondo, medidas.fondo, cat.fondo, m, elId, concatenar, okW);
    const bool okH =
        decide(actual, kCodigoAlto, medidas.alto, cat.alto, m, elId, concatenar, okW && okD);
    if (!okW || !okD || !okH) construyeMensaje(platform, okW, okD, okH, laFuncion);
    actualizaDescripciones(elId);
    return okW && okD && okH;
}

void actualizaDescripciones(int32_t objectId) {
    auto& mv = common::modVariables();
    auto& scene = host::use(mv.miScene);
    const int32_t n = vb::CLng(scene.ObjectGetChildrenNb(mv.miSessionId, objectId, 0));
    for (int32_t i = 1; i <= n; ++i) {
        const int32_t child = vb::CLng(scene.ObjectGetChildId(mv.miSessionId, objectId, i, 0));
        if (vb::InStr(infoObjeto(child, 4), u"_DESC", vb::Compare::Binary) == 0) continue;
        const String referencia = infoObjeto(child, 7);
        auto& catalog = host::use(mv.miCatalog);
        const int32_t rank =
            vb::CLng(catalog.TableGetLineRankFromName(mv.miSessionId, 4, 0, 2, referencia, false));
        const String text = vb::CStr(catalog.TableGetLineInfo(mv.miSessionId, 4, 0, rank, 3));
        scene.ObjectSetInfo(mv.miSessionId, child, text, 43);
        scene.ObjectSetInfo(mv.miSessionId, child, text, 173);
    }
}

}  // namespace rules
