#include "rules/ExplicaDimension.h"

#include <array>
#include <utility>

#include "common/Explicacion.h"
#include "vb/Conversions.h"

namespace rules {

using common::entreComillas;
using common::mayusculaInicial;

namespace {

constexpr std::array<const char16_t*, common::kNumTipos> kNombres = {
    u"ANCHO", u"ALTO", u"FONDO", u"ANCHO_ALTO", u"ANCHO_FONDO", u"ALTO_FONDO", u"ANCHO_ALTO_FONDO"};
constexpr std::array<const char16_t*, common::kNumTipos> kCodigosMO = {
    u"MO_EA", u"MO_EAl", u"MO_EF", u"MO_EAAl", u"MO_EAF", u"MO_EAlF", u"MO_EAAlF"};
constexpr std::array<const char16_t*, common::kNumTipos> kCodigosEX = {
    u"EX_EA", u"EX_EAl", u"EX_EF", u"EX_EAA", u"EX_EAF", u"EX_EAlF", u"EX_EAAF"};
constexpr std::array<const char16_t*, common::kNumTipos> kPrefijos = {
    u"EA_", u"EAl_", u"EF_", u"EAA_", u"EAF_", u"EAlF_", u"EAAF_"};

String numero(int32_t n) {
    return vb::numberText(n);
}

// The texts of a measure: the cabinet's and the catalogue's.
std::pair<String, String> textosDe(const Medidas& m, int32_t medida) {
    switch (medida) {
        case 12:
            return {m.x1, m.x2};
        case 13:
            return {m.y1, m.y2};
        default:
            return {m.z1, m.z2};
    }
}

// The tables compare the other measure as text: say so when its whole numbers are equal.
String otraDifiere(const Medidas& m, int32_t medida) {
    const auto [valor, catalogo] = textosDe(m, medida);
    String texto = u"the " + nombreMedida(medida) + u" differs too";
    try {
        if (vb::CLng(vb::Variant(valor)) != vb::CLng(vb::Variant(catalogo))) return texto;
    } catch (const vb::RuntimeError&) {
        return texto;
    }
    return texto + u" as text (" + entreComillas(valor) + u" against the catalogue's " +
           entreComillas(catalogo) +
           u"; as whole numbers they are equal, but here the texts are compared)";
}

// Where and when the height marker that hayHijoEsp(1) remembers was found.
String hijoAltoHallado(const common::ModVariables& mv) {
    const common::HijoHallado& h = mv.hijosHallados[1];
    String texto = u"a child named with \"EAl_\" has been found";
    if (h.llamada == 0) return texto;
    const bool estaLlamada = h.llamada == common::llamadaExplicada();
    const String objeto = h.objeto != -2 ? u"object " + numero(h.objeto)
                          : estaLlamada  ? String(u"this call's cabinet")
                                         : String(u"the cabinet of that call");
    texto += u": child " + numero(h.hijo) + u", among the children of " + objeto;
    if (estaLlamada) return texto + u", in this call";
    return texto + u", in an earlier call (call " + numero(static_cast<int32_t>(h.llamada)) +
           u" of this trace), and the rules remember it for every later cabinet";
}

// Why a row matched: the other dimension's difference and the marker it found.
String motivo(const Porque& p, const Fila& f) {
    if (f.marca == kHayHijoAlto) return hijoAltoHallado(p.mv);
    String marca = u"child " + numero(p.mv.idsHijosEsp[f.marca]) + u" carries the marker " +
                   entreComillas(kPrefijos[f.marca]);
    if (f.otraMedida == 0) return marca;
    return otraDifiere(p.medidas, f.otraMedida) + u" and " + marca;
}

String sinMarca(int marca) {
    if (marca == kHayHijoAlto) return u"no child named with \"EAl_\" has been found";
    return u"no child of the cabinet carries the marker " + entreComillas(kPrefijos[marca]);
}

String modeloDecide(const common::ModVariables& mv, const String& model, int fila) {
    if (mv.numModelos < 1) return u"the catalogue has no door model, so nothing is permitted";
    const bool hallado = fila < static_cast<int>(mv.modelos.size()) && mv.modelos[fila] == model;
    if (hallado) {
        return u"door model " + entreComillas(model) + u" is row " + numero(fila + 1) +
               u" of the permission matrix (table 8's door models in order)";
    }
    return u"door model " + entreComillas(model) +
           u" is not among table 8's door models, so the first one's (" +
           entreComillas(mv.modelos.empty() ? String() : mv.modelos[0]) + u") permissions apply";
}

}  // namespace

String nombreTipo(int k) {
    return kNombres[k];
}
String codigoMO(int k) {
    return kCodigosMO[k];
}
String codigoEX(int k) {
    return kCodigosEX[k];
}
String prefijoTipo(int k) {
    return kPrefijos[k];
}

String nombreMedida(int32_t dimension) {
    switch (dimension) {
        case 12:
            return u"width";
        case 13:
            return u"depth";
        default:
            return u"height";
    }
}

String explicaExcepcion(const Porque& p, int32_t dimension, const Fila& lista, const String& ref,
                        bool listada) {
    const String medida = mayusculaInicial(nombreMedida(dimension));
    if (lista.valor == kNinguna) {
        return medida + u": no exception list is searched, as " + sinMarca(lista.marca) + u".";
    }
    const auto& elementos = p.mv.excepciones[lista.valor];
    String veredicto;
    if (listada) {
        veredicto = u"it is listed, so the " + nombreMedida(dimension) + u" may stay.";
    } else if (!elementos || elementos->size() < 2) {
        veredicto =
            u"the list holds no reference (no line, an empty one, or no blank after "
            u"its first three characters), so it is not listed.";
    } else {
        veredicto = u"it is not listed.";
    }
    return medida + u": exception list " + String(kCodigosEX[lista.valor]) +
           u" is searched for reference " + entreComillas(ref) + u" (" + motivo(p, lista) + u"); " +
           veredicto;
}

String explicaSinMarca(int32_t dimension, int marca) {
    return mayusculaInicial(nombreMedida(dimension)) + u" may stay: " + sinMarca(marca) +
           u", so no door-model permission applies.";
}

String explicaPermiso(const Porque& p, int32_t dimension, const Fila& kind, const String& model,
                      int fila, bool permitido) {
    return mayusculaInicial(nombreMedida(dimension)) + u": kind " + String(kNombres[kind.valor]) +
           u" (line " + String(kCodigosMO[kind.valor]) + u") decides, as " + motivo(p, kind) +
           u"; " + modeloDecide(p.mv, model, fila) + u"; " + String(kCodigosMO[kind.valor]) +
           (permitido ? u" permits it: the " : u" does not permit it: the ") +
           nombreMedida(dimension) + (permitido ? u" may stay." : u" is refused.");
}

}  // namespace rules
