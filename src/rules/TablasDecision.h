#pragma once
// The two decision tables of procesaDimension, as data: for each measure, the exception list
// searched for the cabinet's reference, then the kind whose door-model permission decides. The
// first row whose condition holds decides. Pure, so that whatever describes a catalogue (the
// rule check, the permission matrix) reads the same rows a placement does.
#include <array>
#include <cstdint>
#include <vector>

#include "common/ModVariables.h"
#include "rules/ExplicaDimension.h"

namespace rules {

// What a row may ask besides the tables: which measures differ as text, which kinds have a
// marker child on the cabinet (idsHijosEsp(k) is not the cabinet), and whether a child named
// with "EAl_" was ever found (hayHijoEsp(1)).
struct Situacion {
    bool anchoDifiere = false, fondoDifiere = false, altoDifiere = false;
    std::array<bool, common::kNumTipos> marca{};
    bool hayHijoAlto = false;

    bool difiere(int32_t medida) const;  // information 12, 13 or 14
};

// One row: it holds when `otraMedida` (0: no condition) differs too and the marker entry
// `marca` (a kind, or kHayHijoAlto) is present as `conMarca` says. `valor` is the list or the
// kind (kNinguna: no list; kSiempre: the change stays).
struct FilaTabla {
    int32_t otraMedida;
    int marca;
    bool conMarca;
    int valor;

    bool cumple(const Situacion& s) const;
};

// The measures (information 12, 13, 14) whose change makes a cabinet special of kind k.
const std::vector<int32_t>& medidasDelTipo(int k);

// The rows for information 12, 13 or 14, in the order they are tried.
const std::vector<FilaTabla>& tablaExcepciones(int32_t dimension);
const std::vector<FilaTabla>& tablaPermisos(int32_t dimension);

// The row that decides (the tables end with rows that cover every situation).
Fila filaExcepcion(int32_t dimension, const Situacion& s);
Fila filaPermiso(int32_t dimension, const Situacion& s);

}  // namespace rules
