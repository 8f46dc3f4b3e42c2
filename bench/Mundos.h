#pragma once
// Generated worlds for the benchmarks: kitchens of many cabinets from three catalogues of many
// door models, and one cabinet with a large component tree for the special-editing dialog.
#include "sim/World.h"

namespace bench {

// `muebles` top-level cabinets in three runs, one per catalogue (or alternating catalogues, so
// that every cabinet prepares its catalogue's rules again); each catalogue has `modelos` door
// models whose permission lines list 50 codes. Every cabinet carries a width marker child, and
// every fifth has a changed width, decided by its door model.
sim::World mundoCocina(int muebles, int modelos, bool alterna = false);

// Cabinet 100 with `componentes` components (sides, fronts with fittings below them, interior
// equipment, others), 100 of them pillar recesses with a data line and a picture, and one
// diagonal-cut component.
sim::World mundoDialogo(int componentes);

vb::String num(int n);
vb::String num(vb::String prefix, int n);  // prefix & n

}  // namespace bench
