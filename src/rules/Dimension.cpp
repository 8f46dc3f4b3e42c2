#include "rules/Dimension.h"

#include <algorithm>

#include "rules/Especiales.h"
#include "rules/Refresco.h"

namespace rules {

namespace {

constexpr int kSiempre = -1;  // the change stays whatever the matrix says
constexpr int kNinguna = -1;  // no exception list is searched

struct Contexto {
    const ModVariables& mv;
    bool anchoDifiere, fondoDifiere, altoDifiere;
    int32_t idPas;
    bool esObjeto(int k) const { return mv.idsHijosEsp[k] == idPas; }
};

// The exception list (by kind) searched for the reference; the first matching row decides.
int listaExcepcion(const Contexto& c, int32_t dimension) {
    switch (dimension) {
        case kCodigoAncho:
            if (c.fondoDifiere && !c.esObjeto(4)) return 4;  // excepEAF
            if (c.altoDifiere && !c.esObjeto(3)) return 1;   // excepEAl
            if (!c.esObjeto(0)) return 0;                    // excepEA
            return kNinguna;
        case kCodigoFondo:
            if (c.anchoDifiere && !c.esObjeto(4)) return 4;  // excepEAF
            if (c.altoDifiere && !c.esObjeto(5)) return 4;   // excepEAF
            if (!c.esObjeto(2)) return 2;                    // excepEF
            return kNinguna;
        default:
            if (c.anchoDifiere && !c.esObjeto(3)) return 1;  // excepEAl
            if (c.fondoDifiere && !c.esObjeto(5)) return 4;  // excepEAF
            if (c.mv.hayHijoEsp[1]) return 0;                // excepEA
            return kNinguna;
    }
}

// The kind whose permission decides, or kSiempre; the first matching row decides.
int tipoPermiso(const Contexto& c, int32_t dimension) {
    switch (dimension) {
        case kCodigoAncho:
            if (c.fondoDifiere && !c.esObjeto(4)) return 4;
            if (c.altoDifiere && !c.esObjeto(3)) return 3;
            return c.esObjeto(0) ? kSiempre : 0;
        case kCodigoFondo:
            if (c.anchoDifiere && !c.esObjeto(4)) return 4;
            if (c.altoDifiere && !c.esObjeto(5)) return 3;
            return c.esObjeto(2) ? kSiempre : 2;
        default:
            if (c.anchoDifiere && !c.esObjeto(3)) return 3;
            if (c.fondoDifiere && !c.esObjeto(5)) return 3;
            return c.esObjeto(1) ? kSiempre : 1;
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
    const int lista = listaExcepcion(c, dimension);
    if (lista != kNinguna && estaEnLista(ref, mv.excepciones[lista])) return true;
    const int kind = tipoPermiso(c, dimension);
    if (kind == kSiempre) return true;
    return permiso(mv, filaModelo(mv, model), kind);
}

}  // namespace rules
