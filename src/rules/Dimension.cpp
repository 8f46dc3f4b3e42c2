#include "rules/Dimension.h"

#include "common/Explicacion.h"
#include "rules/Especiales.h"
#include "rules/ExplicaDimension.h"
#include "rules/Modelos.h"
#include "rules/Refresco.h"
#include "rules/TablasDecision.h"

namespace rules {

namespace {

// The situation of the cabinet `idPas`: a kind's marker is present when its child is not the
// cabinet itself, which is what the scans leave when no child carries it.
Situacion situacionDe(const common::ModVariables& mv, const Medidas& medidas, int32_t idPas) {
    Situacion s;
    s.anchoDifiere = medidas.x1 != medidas.x2;
    s.fondoDifiere = medidas.y1 != medidas.y2;
    s.altoDifiere = medidas.z1 != medidas.z2;
    for (int k = 0; k < common::kNumTipos; ++k) s.marca[k] = mv.idsHijosEsp[k] != idPas;
    s.hayHijoAlto = mv.hayHijoEsp[1];
    return s;
}

}  // namespace

bool procesaDimension(const common::ModVariables& mv, int32_t dimension, const Medidas& medidas,
                      const String& ref, const String& model, int32_t idPas) {
    if (dimension != kCodigoAncho && dimension != kCodigoFondo && dimension != kCodigoAlto) {
        return true;
    }
    const Situacion s = situacionDe(mv, medidas, idPas);
    const Fila lista = filaExcepcion(dimension, s);
    const bool excepcion = lista.valor != kNinguna && estaEnLista(ref, mv.excepciones[lista.valor]);
    const Porque porque{mv, medidas};
    common::explica([&] { return explicaExcepcion(porque, dimension, lista, ref, excepcion); });
    if (excepcion) return true;
    const Fila kind = filaPermiso(dimension, s);
    if (kind.valor == kSiempre) {
        common::explica([&] { return explicaSinMarca(dimension, kind.marca); });
        return true;
    }
    const int fila = filaDelModelo(mv.modelos, mv.numModelos, model, false).value_or(0);
    const bool permitido = permiso(mv, fila, kind.valor);
    common::explica(
        [&] { return explicaPermiso(porque, dimension, kind, model, fila, permitido); });
    return permitido;
}

}  // namespace rules
