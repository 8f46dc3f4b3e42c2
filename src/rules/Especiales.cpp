#include "rules/Especiales.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "host/CachedHost.h"
#include "rules/LecturaReglas.h"
#include "rules/NombresDeCodigos.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace rules {

namespace {

// The rule text of a permission code; nothing when table 2 has no line for it.
std::optional<String> reglaDe(int32_t& sessionId, host::Catalog& catalog, const String& code) {
    const int32_t rank =
        vb::CLng(catalog.TableGetLineRankFromCode(sessionId, 2, 0, 1, code, false));
    if (rank < 1) return std::nullopt;
    return vb::CStr(catalog.TableGetLineInfo(sessionId, 2, 0, rank, 2));
}

// Table 8 through the host: the model name of the line with that code, asked only for a
// line that exists.
NombreDeCodigo nombreEnTabla8(int32_t& sessionId, host::Catalog& catalog) {
    return [&sessionId, &catalog](const String& code) -> std::optional<String> {
        const int32_t r =
            vb::CLng(catalog.TableGetLineRankFromCode(sessionId, 8, 0, 1, code, false));
        if (r <= 0) return std::nullopt;
        return vb::CStr(catalog.TableGetLineInfo(sessionId, 8, 0, r, 3));
    };
}

const String& modeloDe(const common::ModVariables& mv, int m) {
    static const String kSinNombre;
    return m < static_cast<int>(mv.modelos.size()) ? mv.modelos[m] : kSinNombre;
}

void marcaTodos(common::ModVariables& mv, int k, bool valor) {
    for (int m = 0; m < mv.numModelos; ++m) mv.permisosModelo[m][k] = valor;
}

// One permission line per kind, the list looked up anew for every model; with the reads
// kept, each code once (NombresDeCodigos.h), which asks the host the same.
void llenaTipo(common::ModVariables& mv, int k, int32_t& sessionId, host::Catalog& catalog,
               const String& code) {
    const auto regla = reglaDe(sessionId, catalog, code);
    if (!regla) return marcaTodos(mv, k, false);
    const ReglaLeida leida = leeRegla(*regla);
    if (leida.todos) return marcaTodos(mv, k, true);
    const auto nombreDe = nombreEnTabla8(sessionId, catalog);
    if (host::keepsReads(catalog)) {
        NombresDeCodigos nombres(leida.piezas, nombreDe);
        for (int m = 0; m < mv.numModelos; ++m)
            mv.permisosModelo[m][k] = nombres.nombra(modeloDe(mv, m));
        return;
    }
    for (int m = 0; m < mv.numModelos; ++m) {
        mv.permisosModelo[m][k] = codigosNombran(leida.piezas, modeloDe(mv, m), nombreDe);
    }
}

// No " ALL" rule, and the permission line looked up again for every model.
void llenaTipoPorModelo(common::ModVariables& mv, int k, int32_t& sessionId, host::Catalog& catalog,
                        const String& code) {
    const auto nombreDe = nombreEnTabla8(sessionId, catalog);
    for (int m = 0; m < mv.numModelos; ++m) {
        const auto regla = reglaDe(sessionId, catalog, code);
        mv.permisosModelo[m][k] = reglaPermite(regla, modeloDe(mv, m), false, nombreDe);
    }
}

// Rows 0..numModelos-1, seven kinds; an empty matrix forbids every kind.
void dimensionaMatriz(common::ModVariables& mv) {
    const size_t rows = mv.numModelos > 0 ? static_cast<size_t>(mv.numModelos) : 0;
    mv.permisosModelo.resize(rows);
    for (auto& row : mv.permisosModelo) row.resize(common::kNumTipos, false);
}

bool enLista(const String& model, std::initializer_list<const char16_t*> names) {
    for (const char16_t* name : names) {
        if (model == name) return true;
    }
    return false;
}

bool permisoFijo(int k, const String& model) {
    switch (k) {
        case 0:
            return enLista(model, {u"MONZA", u"MIKONOS", u"MIAMI"});
        case 1:
            return enLista(model,
                           {u"MONZA", u"MIKONOS", u"MIAMI", u"TIBER", u"TURIA", u"URAL", u"TAJO"});
        case 2:
        case 3:
            return true;
        default:
            return false;
    }
}

}  // namespace

void InicEsp() {
    auto& mv = common::modVariables();
    mv.codigosMO = {u"MO_EA",  u"MO_EAl",  u"MO_EF",    u"MO_EAAl",
                    u"MO_EAF", u"MO_EAlF", u"MO_EAAlF", String()};
}

void InicEspMod(int32_t& sessionId, host::Catalog& catalog, bool reglaAll, int kinds) {
    auto& mv = common::modVariables();
    dimensionaMatriz(mv);
    if (mv.numModelos <= 0) return;  // no door model: every kind stays forbidden
    kinds = std::clamp(kinds, 0, common::kNumTipos);
    for (int k = 0; k < kinds; ++k) {
        const String code = k < static_cast<int>(mv.codigosMO.size()) ? mv.codigosMO[k] : String();
        if (reglaAll) {
            llenaTipo(mv, k, sessionId, catalog, code);
        } else {
            llenaTipoPorModelo(mv, k, sessionId, catalog, code);
        }
    }
}

void InicEspMod2() {
    auto& mv = common::modVariables();
    dimensionaMatriz(mv);
    const int kinds = std::clamp<int>(mv.numTiposEsp, 0, common::kNumTipos);
    for (int k = 0; k < kinds; ++k) {
        for (int m = 0; m < mv.numModelos; ++m) {
            mv.permisosModelo[m][k] = permisoFijo(k, modeloDe(mv, m));
        }
    }
}

bool permiso(const common::ModVariables& mv, int m, int k) {
    if (m < 0 || m >= static_cast<int>(mv.permisosModelo.size())) return false;
    const auto& row = mv.permisosModelo[m];
    return k >= 0 && k < static_cast<int>(row.size()) && row[k];
}

}  // namespace rules
