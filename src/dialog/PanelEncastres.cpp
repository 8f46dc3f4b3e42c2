#include "dialog/PanelEncastres.h"

namespace dialog {

int32_t altoDeEncastre(const AltosPanel& altos, const EncastrePanel& e, size_t i, bool conValores) {
    const int32_t titulo = i == 0 ? 0 : altos.titulo;
    if (!conValores) return titulo;
    int32_t alto = (i == 0 ? 0 : altos.previo) + titulo;
    if (e.conDatos) alto += static_cast<int32_t>(e.filas) * altos.fila + altos.hueco;
    return alto;
}

size_t encastresConValores(const AltosPanel& altos, const std::vector<EncastrePanel>& encastres) {
    const size_t n = encastres.size();
    // Content height with the first m recesses showing their values, for m = n down to 0.
    int64_t alto = altos.inicio;
    for (size_t i = 0; i < n; ++i) alto += altoDeEncastre(altos, encastres[i], i, true);
    for (size_t m = n; m > 0; --m) {
        if (alto <= kAltoMaximo) return m;
        alto += altoDeEncastre(altos, encastres[m - 1], m - 1, false) -
                altoDeEncastre(altos, encastres[m - 1], m - 1, true);
    }
    return 0;
}

}  // namespace dialog
