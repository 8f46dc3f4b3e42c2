#include "rules/TablasDecision.h"

namespace rules {

namespace {

constexpr int32_t A = 12, F = 13, Al = 14;  // width, depth, height

// Exception lists by kind: 0 excepEA, 1 excepEAl, 2 excepEF, 4 excepEAF.
const std::vector<FilaTabla> kExcepcionAncho = {
    {F, 4, true, 4}, {Al, 3, true, 1}, {0, 0, true, 0}, {0, 0, false, kNinguna}};
const std::vector<FilaTabla> kExcepcionFondo = {
    {A, 4, true, 4}, {Al, 5, true, 4}, {0, 2, true, 2}, {0, 2, false, kNinguna}};
const std::vector<FilaTabla> kExcepcionAlto = {{A, 3, true, 1},
                                               {F, 5, true, 4},
                                               {0, kHayHijoAlto, true, 0},
                                               {0, kHayHijoAlto, false, kNinguna}};

const std::vector<FilaTabla> kPermisoAncho = {
    {F, 4, true, 4}, {Al, 3, true, 3}, {0, 0, false, kSiempre}, {0, 0, true, 0}};
const std::vector<FilaTabla> kPermisoFondo = {
    {A, 4, true, 4}, {Al, 5, true, 3}, {0, 2, false, kSiempre}, {0, 2, true, 2}};
const std::vector<FilaTabla> kPermisoAlto = {
    {A, 3, true, 3}, {F, 5, true, 3}, {0, 1, false, kSiempre}, {0, 1, true, 1}};

const std::array<std::vector<int32_t>, common::kNumTipos> kMedidasDelTipo = {
    {{A}, {Al}, {F}, {A, Al}, {A, F}, {Al, F}, {A, Al, F}}};

Fila decide(const std::vector<FilaTabla>& tabla, const Situacion& s) {
    for (const auto& fila : tabla) {
        if (fila.cumple(s)) return Fila{fila.valor, fila.otraMedida, fila.marca};
    }
    return Fila{};
}

}  // namespace

bool Situacion::difiere(int32_t medida) const {
    switch (medida) {
        case A:
            return anchoDifiere;
        case F:
            return fondoDifiere;
        case Al:
            return altoDifiere;
        default:
            return false;
    }
}

bool FilaTabla::cumple(const Situacion& s) const {
    if (otraMedida != 0 && !s.difiere(otraMedida)) return false;
    const bool presente = marca == kHayHijoAlto ? s.hayHijoAlto : s.marca[marca];
    return presente == conMarca;
}

const std::vector<int32_t>& medidasDelTipo(int k) {
    return kMedidasDelTipo[k];
}

const std::vector<FilaTabla>& tablaExcepciones(int32_t dimension) {
    return dimension == A ? kExcepcionAncho : dimension == F ? kExcepcionFondo : kExcepcionAlto;
}

const std::vector<FilaTabla>& tablaPermisos(int32_t dimension) {
    return dimension == A ? kPermisoAncho : dimension == F ? kPermisoFondo : kPermisoAlto;
}

Fila filaExcepcion(int32_t dimension, const Situacion& s) {
    return decide(tablaExcepciones(dimension), s);
}

Fila filaPermiso(int32_t dimension, const Situacion& s) {
    return decide(tablaPermisos(dimension), s);
}

}  // namespace rules
