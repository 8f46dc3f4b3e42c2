#include "rules/ExplicaDimension.h"

#include <array>

#include "rules/Explicacion.h"
#include "vb/Conversions.h"

namespace rules {

namespace {

constexpr std::array<const char16_t*, kNumTipos> kNombres = {
    u"ANCHO", u"ALTO", u"FONDO", u"ANCHO_ALTO", u"ANCHO_FONDO", u"ALTO_FONDO", u"ANCHO_ALTO_FONDO"};
constexpr std::array<const char16_t*, kNumTipos> kCodigosMO = {
    u"MO_EA", u"MO_EAl", u"MO_EF", u"MO_EAAl", u"MO_EAF", u"MO_EAlF", u"MO_EAAlF"};
constexpr std::array<const char16_t*, kNumTipos> kCodigosEX = {
    u"EX_EA", u"EX_EAl", u"EX_EF", u"EX_EAA", u"EX_EAF", u"EX_EAlF", u"EX_EAAF"};
constexpr std::array<const char16_t*, kNumTipos> kPrefijos = {u"EA_",  u"EAl_",  u"EF_",  u"EAA_",
                                                              u"EAF_", u"EAlF_", u"EAAF_"};

String numero(int32_t n) {
    return vb::numberText(n);
}

// Why a row matched: the other dimension's difference and the marker it found.
String motivo(const ModVariables& mv, const Fila& f) {
    if (f.marca == kHayHijoAlto) return u"a child named with \"EAl_\" has been found";
    String marca = u"child " + numero(mv.idsHijosEsp[f.marca]) + u" carries the marker " +
                   entreComillas(kPrefijos[f.marca]);
    if (f.otraMedida == 0) return marca;
    return u"the " + nombreMedida(f.otraMedida) + u" differs too and " + marca;
}

String sinMarca(int marca) {
    if (marca == kHayHijoAlto) return u"no child named with \"EAl_\" has been found";
    return u"no child of the cabinet carries the marker " + entreComillas(kPrefijos[marca]);
}

String modeloDecide(const ModVariables& mv, const String& model, int fila) {
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

String explicaExcepcion(const ModVariables& mv, int32_t dimension, const Fila& lista,
                        const String& ref, bool listada) {
    const String medida = mayusculaInicial(nombreMedida(dimension));
    if (lista.valor == kNinguna) {
        return medida + u": no exception list is searched, as " + sinMarca(lista.marca) + u".";
    }
    const auto& elementos = mv.excepciones[lista.valor];
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
           u" is searched for reference " + entreComillas(ref) + u" (" + motivo(mv, lista) +
           u"); " + veredicto;
}

String explicaSinMarca(int32_t dimension, int marca) {
    return mayusculaInicial(nombreMedida(dimension)) + u" may stay: " + sinMarca(marca) +
           u", so no door-model permission applies.";
}

String explicaPermiso(const ModVariables& mv, int32_t dimension, const Fila& kind,
                      const String& model, int fila, bool permitido) {
    return mayusculaInicial(nombreMedida(dimension)) + u": kind " + String(kNombres[kind.valor]) +
           u" (line " + String(kCodigosMO[kind.valor]) + u") decides, as " + motivo(mv, kind) +
           u"; " + modeloDecide(mv, model, fila) + u"; " + String(kCodigosMO[kind.valor]) +
           (permitido ? u" permits it: the " : u" does not permit it: the ") +
           nombreMedida(dimension) + (permitido ? u" may stay." : u" is refused.");
}

}  // namespace rules
