#include "handlers/TablasPreparadas.h"

#include <algorithm>

namespace handlers {

TablasPreparadas recogeTablas(const common::ModVariables& mv,
                              rules::ExcepcionesLeidas excepciones) {
    TablasPreparadas tablas;
    const size_t n = mv.numModelos > 0 ? static_cast<size_t>(mv.numModelos) : 0;
    tablas.modelos.assign(mv.modelos.begin(), mv.modelos.begin() + n);
    tablas.excepciones = std::move(excepciones);
    tablas.permisosModelo = mv.permisosModelo;
    return tablas;
}

void aplicaTablas(const TablasPreparadas& tablas, common::ModVariables& mv) {
    // GenModEsp: the list only grows, and entries past the count stay as they were.
    if (mv.modelos.size() < tablas.modelos.size()) mv.modelos.resize(tablas.modelos.size());
    std::copy(tablas.modelos.begin(), tablas.modelos.end(), mv.modelos.begin());
    mv.numModelos = static_cast<int16_t>(tablas.modelos.size());
    rules::aplicaExcepciones(tablas.excepciones);
    // InicEspMod fills every entry of the matrix it sizes.
    mv.permisosModelo = tablas.permisosModelo;
}

}  // namespace handlers
