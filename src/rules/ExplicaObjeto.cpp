#include "rules/ExplicaObjeto.h"

#include "common/Explicacion.h"
#include "rules/ExplicaDimension.h"
#include "vb/Conversions.h"

namespace rules {

using common::entreComillas;
using common::mayusculaInicial;

namespace {

String medidasTexto(const MedidasObjeto& m) {
    return u"width " + entreComillas(m.ancho) + u", depth " + entreComillas(m.fondo) +
           u", height " + entreComillas(m.alto);
}

}  // namespace

String explicaObjeto(const ObjetoActual& actual, const String& articulo, int32_t rank,
                     const MedidasObjeto& medidas, const MedidasObjeto& catalogo) {
    String texto = u"Cabinet " + entreComillas(actual.refObjeto) + u" (article " +
                   entreComillas(articulo) + u", door model " + entreComillas(actual.modeloPuerta) +
                   u"): " + medidasTexto(medidas) + u"; ";
    if (rank < 1) {
        return texto + u"the article has no line in table 3, so its measures are the host's " +
               u"answers for a missing line: " + medidasTexto(catalogo) + u".";
    }
    return texto + u"table 3 gives " + medidasTexto(catalogo) + u".";
}

String explicaIgualEntero(int32_t dimension, const String& valor, const String& catalogo) {
    return mayusculaInicial(nombreMedida(dimension)) + u" " + entreComillas(valor) +
           u" counts as the catalogue's " + entreComillas(catalogo) +
           u": both round to the same whole number.";
}

String explicaDifiere(int32_t dimension, const String& valor, const String& catalogo) {
    return mayusculaInicial(nombreMedida(dimension)) + u" " + entreComillas(valor) +
           u" differs from the catalogue's " + entreComillas(catalogo) + u".";
}

namespace {

String ilegible(const String& que, const String& texto, const vb::RuntimeError& error) {
    return que + u" " + entreComillas(texto) +
           u" cannot be read as a whole number: the check stops with error " +
           vb::numberText(error.number()) + u" (" + error.description() + u").";
}

}  // namespace

int32_t medidaEntera(const String& texto, const String& que) {
    try {
        return vb::CLng(texto);
    } catch (const vb::RuntimeError& e) {
        common::explica([&] { return ilegible(que, texto, e); });
        throw;
    }
}

String explicaRestaurada(int32_t dimension, const String& catalogo, bool anadida) {
    String texto = mayusculaInicial(nombreMedida(dimension)) + u" restored to the catalogue's " +
                   entreComillas(catalogo);
    return texto + (anadida ? u"; the cabinet's reference joins the refused ones."
                            : u" (the reference is already among the refused ones).");
}

}  // namespace rules
