#pragma once
// The shared host context and the rule tables of the catalogue loaded last: one set per thread,
// as the host calls on its user-interface thread. Every entry point fills what it uses; only the
// rule tables (and hayHijoEsp) carry over from one call to the next.
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "host/Host.h"
#include "platform/XmlDocument.h"

namespace common {

using vb::String;

constexpr int kNumTipos = 7;  // kinds of special: ANCHO, ALTO, FONDO, ANCHO_ALTO, ...

using ListaExcepciones = std::optional<std::vector<String>>;  // nullopt: never filled

// Where a hayHijoEsp entry was last set, for the trace only: the child, the object whose
// children were looked at, and the traced call (llamadaExplicada; 0: none) it happened in.
struct HijoHallado {
    int32_t hijo = 0;
    int32_t objeto = 0;
    unsigned llamada = 0;
};

struct ModVariables {
    host::AppliRef miAppli;
    host::SceneRef miScene;
    host::CatalogRef miCatalog;
    int32_t miSessionId = 0;

    String medidaAncho, medidaAlto, medidaFondo;
    String dirCatalogos;

    std::vector<String> prefijosEsp;       // 7 marker prefixes once iniciaPrefijosEsp ran
    std::vector<String> codigosMO;         // entries 0..7 once InicEsp ran (7 stays empty)
    std::array<int32_t, 8> idsHijosEsp{};  // marker child per kind; entry 7 never written
    std::array<bool, kNumTipos> hayHijoEsp{};
    std::array<HijoHallado, kNumTipos> hijosHallados{};
    unsigned llamadasExplicadas = 0;  // calls traced on this thread, for llamadaExplicada
    int16_t numTiposEsp = 0;

    std::vector<String> modelos;  // entries past numModelos - 1 may be stale
    int16_t numModelos = 0;
    std::vector<std::vector<bool>> permisosModelo;  // [model][kind]

    // excepEA, excepEAl, excepEF, excepEAA, excepEAF, excepEAlF, excepEAAF, by kind.
    std::array<ListaExcepciones, kNumTipos> excepciones;
    ListaExcepciones& excepEA() { return excepciones[0]; }
    ListaExcepciones& excepEAl() { return excepciones[1]; }
    ListaExcepciones& excepEF() { return excepciones[2]; }
    ListaExcepciones& excepEAA() { return excepciones[3]; }
    ListaExcepciones& excepEAF() { return excepciones[4]; }
    ListaExcepciones& excepEAlF() { return excepciones[5]; }
    ListaExcepciones& excepEAAF() { return excepciones[6]; }

    std::unique_ptr<platform::XmlDocument> docCajeos;  // the dialog's cut-out document
};

// This thread's set.
ModVariables& modVariables();

}  // namespace common
