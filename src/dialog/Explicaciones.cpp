#include "dialog/Explicaciones.h"

#include "common/Explicacion.h"
#include "rules/ExplicaDimension.h"
#include "vb/Conversions.h"

namespace dialog {

namespace {

using common::entreComillas;

const char16_t* const kMedidas[3] = {u"width", u"height", u"depth"};  // measure boxes 0, 1, 2
const char16_t* const kLimites[3][2] = {{u"LMIN", u"LMAX"}, {u"HMIN", u"HMAX"}, {u"PMIN", u"PMAX"}};

String numero(double n) {
    return vb::numberText(n);
}

String permisoTexto(const TipoOfrecido& t) {
    String modelo = u"door model " + entreComillas(t.modelo);
    if (!t.modeloHallado)
        modelo += u" (not among table 8's door models, so row 1 applies)";
    else
        modelo += u" (row " + numero(t.fila + 1) + u" of the permission matrix)";
    return rules::codigoMO(t.tipo) + (t.permiso ? u" permits " : u" does not permit ") + modelo;
}

}  // namespace

String explicaTipo(const TipoOfrecido& t) {
    const String tipo = u"Type " + rules::nombreTipo(t.tipo);
    const String lista = u"reference " + entreComillas(t.referencia) +
                         (t.excepcion ? u" is on exception list " : u" is not on exception list ") +
                         rules::codigoEX(t.tipo);
    if (t.excepcion) return tipo + u" is offered: " + lista + u".";
    if (t.marca == -2) {
        return tipo + u" is not offered: no child carries the marker " +
               entreComillas(rules::prefijoTipo(t.tipo)) + u", and " + lista + u".";
    }
    const String marca = u"child " + numero(t.marca) + u" carries the marker " +
                         entreComillas(rules::prefijoTipo(t.tipo));
    if (t.ofrecido) return tipo + u" is offered: " + marca + u" and " + permisoTexto(t) + u".";
    return tipo + u" is not offered: " + marca + u" but " + permisoTexto(t) + u", and " + lista +
           u".";
}

String explicaErrorAtrapado(const vb::RuntimeError& error) {
    String texto =
        u"The call stops at error " + numero(error.number()) + u" (" + error.description() + u")";
    if (error.text()) {
        texto += u": the text " + entreComillas(*error.text()) + u" cannot be read as a number";
    }
    return texto + u"; the error is shown in a message and the call returns true.";
}

String explicaTipoOculto(int tipo, int medida, int32_t informacion) {
    return u"Type " + rules::nombreTipo(tipo) + u" is hidden: the cabinet cannot vary its " +
           kMedidas[medida] + u" (information " + numero(informacion) + u" is false).";
}

String explicaNoListado(const String& code, int32_t id, const String& motivo) {
    return u"Component " + entreComillas(code) + u" (id " + numero(id) + u") is not listed: " +
           motivo + u".";
}

String explicaDiagonal(const String& code, int32_t id) {
    return u"Component " + entreComillas(code) + u" (id " + numero(id) +
           u") is the diagonal cut: both diagonal drawings are enabled.";
}

String explicaLimites(const String& nMin, double lo, const String& nMax, double hi,
                      const String& medida, const String& valor) {
    return u"The script's " + nMin + u" " + numero(lo) + u" and " + nMax + u" " + numero(hi) +
           u" exclude the " + medida + u" " + entreComillas(valor) + u".";
}

String explicaScriptIlegible(const String& descripcion) {
    return u"A component's script cannot be read (" + descripcion +
           u"): \"Entrada de Script no valida.\" is shown and the component counts as fitting.";
}

String explicaMedida(int k, const String& texto, double min, double max, bool dentro,
                     bool anotada) {
    const String medida = common::mayusculaInicial(kMedidas[k]) + u" " + entreComillas(texto);
    const String limites = String(kLimites[k][0]) + u" " + numero(min) + u" .. " + kLimites[k][1] +
                           u" " + numero(max) + u" of the cabinet's script";
    if (dentro) return medida + u" lies within " + limites + u".";
    if (anotada) return medida + u" is outside " + limites + u": its line is reported.";
    return medida + u" is outside " + limites +
           u", but after an earlier measure failed only a value below its minimum is reported.";
}

}  // namespace dialog
