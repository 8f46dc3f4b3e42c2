#pragma once
// The recess panel's height budget. The content height (`altoContenido`) is a 16-bit integer of
// twips, so a cabinet with many recesses can need more room than it holds. Titles then come
// first: the later recesses give up their value rows, so that every title can still be shown;
// only when not even the titles fit are the last ones left out of the panel (they stay in the
// recess list).
#include <cstddef>
#include <cstdint>
#include <vector>

namespace dialog {

constexpr int32_t kAltoMaximo = 32767;

// Heights the panel grows by, as the rows are laid out.
struct AltosPanel {
    int32_t inicio;  // content height once the first recess's title is placed
    int32_t previo;  // added for every recess before its title (its record)
    int32_t titulo;  // a title row
    int32_t fila;    // a value row
    int32_t hueco;   // after the rows of a recess with data
};

// One recess as the panel sees it: whether it has data (a recess "no disponible" has not),
// and how many value rows it has.
struct EncastrePanel {
    bool conDatos = false;
    size_t filas = 0;
};

// What recess `i` adds to the content height: its record and its title (the first one has
// its place already), and, when it shows its values, its rows and the gap after them. A
// recess without its values adds its title only.
int32_t altoDeEncastre(const AltosPanel& altos, const EncastrePanel& e, size_t i, bool conValores);

// How many recesses, from the first, keep their value rows so that every title fits: all of
// them when everything fits; 0 when not even the titles alone fit.
size_t encastresConValores(const AltosPanel& altos, const std::vector<EncastrePanel>& encastres);

}  // namespace dialog
