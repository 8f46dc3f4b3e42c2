#include "rules/Dimension.h"

#include <algorithm>

#include "rules/Especiales.h"
#include "rules/ExplicaDimension.h"
#include "rules/Explicacion.h"
#include "rules/Refresco.h"

namespace rules {

namespace {

struct Contexto {
    const ModVariables& mv;
    bool anchoDifiere, fondoDifiere, altoDifiere;
    int32_t idPas;
    bool esObjeto(int k) const { return mv.idsHijosEsp[k] == idPas; }
    // The row that another dimension's difference chooses when kind k's marker is a child.
    Fila siOtra(bool difiere, int32_t otra, int k, int valor) const {
        return difiere && !esObjeto(k) ? Fila{valor, otra, k} : Fila{kNinguna, 0, kSinMarca};
    }
};

// The exception list (by kind) searched for the reference; the first matching row decides.
Fila listaExcepcion(const Contexto& c, int32_t dimension) {
    Fila f;
    switch (dimension) {
        case kCodigoAncho:
            if ((f = c.siOtra(c.fondoDifiere, kCodigoFondo, 4, 4)).valor != kNinguna) return f;
            if ((f = c.siOtra(c.altoDifiere, kCodigoAlto, 3, 1)).valor != kNinguna) return f;
            return c.esObjeto(0) ? Fila{kNinguna, 0, 0} : Fila{0, 0, 0};
        case kCodigoFondo:
            if ((f = c.siOtra(c.anchoDifiere, kCodigoAncho, 4, 4)).valor != kNinguna) return f;
            if ((f = c.siOtra(c.altoDifiere, kCodigoAlto, 5, 4)).valor != kNinguna) return f;
            return c.esObjeto(2) ? Fila{kNinguna, 0, 2} : Fila{2, 0, 2};
        default:
            if ((f = c.siOtra(c.anchoDifiere, kCodigoAncho, 3, 1)).valor != kNinguna) return f;
            if ((f = c.siOtra(c.fondoDifiere, kCodigoFondo, 5, 4)).valor != kNinguna) return f;
            return c.mv.hayHijoEsp[1] ? Fila{0, 0, kHayHijoAlto} : Fila{kNinguna, 0, kHayHijoAlto};
    }
}

// The kind whose permission decides, or kSiempre; the first matching row decides.
Fila tipoPermiso(const Contexto& c, int32_t dimension) {
    Fila f;
    switch (dimension) {
        case kCodigoAncho:
            if ((f = c.siOtra(c.fondoDifiere, kCodigoFondo, 4, 4)).valor != kNinguna) return f;
            if ((f = c.siOtra(c.altoDifiere, kCodigoAlto, 3, 3)).valor != kNinguna) return f;
            return Fila{c.esObjeto(0) ? kSiempre : 0, 0, 0};
        case kCodigoFondo:
            if ((f = c.siOtra(c.anchoDifiere, kCodigoAncho, 4, 4)).valor != kNinguna) return f;
            if ((f = c.siOtra(c.altoDifiere, kCodigoAlto, 5, 3)).valor != kNinguna) return f;
            return Fila{c.esObjeto(2) ? kSiempre : 2, 0, 2};
        default:
            if ((f = c.siOtra(c.anchoDifiere, kCodigoAncho, 3, 3)).valor != kNinguna) return f;
            if ((f = c.siOtra(c.fondoDifiere, kCodigoFondo, 5, 3)).valor != kNinguna) return f;
            return Fila{c.esObjeto(1) ? kSiempre : 1, 0, 1};
    }
}

int filaModelo(const ModVariables& mv, const String& model) {
    const int n = std::min<int>(mv.numModelos, static_cast<int>(mv.modelos.size()));
    for (int m = 0; m < n; ++m) {
        if (mv.modelos[m] == model) return m;
    }
    return 0;
}

}  // namespace

bool procesaDimension(const ModVariables& mv, int32_t dimension, const Medidas& medidas,
                      const String& ref, const String& model, int32_t idPas) {
    if (dimension != kCodigoAncho && dimension != kCodigoFondo && dimension != kCodigoAlto) {
        return true;
    }
    const Contexto c{mv, medidas.x1 != medidas.x2, medidas.y1 != medidas.y2,
                     medidas.z1 != medidas.z2, idPas};
    const Fila lista = listaExcepcion(c, dimension);
    const bool excepcion = lista.valor != kNinguna && estaEnLista(ref, mv.excepciones[lista.valor]);
    explica([&] { return explicaExcepcion(mv, dimension, lista, ref, excepcion); });
    if (excepcion) return true;
    const Fila kind = tipoPermiso(c, dimension);
    if (kind.valor == kSiempre) {
        explica([&] { return explicaSinMarca(dimension, kind.marca); });
        return true;
    }
    const int fila = filaModelo(mv, model);
    const bool permitido = permiso(mv, fila, kind.valor);
    explica([&] { return explicaPermiso(mv, dimension, kind, model, fila, permitido); });
    return permitido;
}

}  // namespace rules
