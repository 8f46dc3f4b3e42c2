#include "rules/Especiales.h"

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_map>
#include <vector>

#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace rules {

namespace {

// Model names of table 8 by code, each code asked of the host once per fill.
class NombresTabla8 {
  public:
    NombresTabla8(int32_t& sessionId, host::Catalog& catalog)
        : sessionId_(sessionId), catalog_(catalog) {}

    // The model name of the code, or nothing when table 8 has no line for it.
    const std::optional<String>& nombre(const String& code) {
        auto it = names_.find(code);
        if (it != names_.end()) return it->second;
        std::optional<String> name;
        const int32_t r =
            vb::CLng(catalog_.TableGetLineRankFromCode(sessionId_, 8, 0, 1, code, false));
        if (r > 0) name = vb::CStr(catalog_.TableGetLineInfo(sessionId_, 8, 0, r, 3));
        return names_.emplace(code, std::move(name)).first->second;
    }

  private:
    int32_t& sessionId_;
    host::Catalog& catalog_;
    std::unordered_map<String, std::optional<String>> names_;
};

// The rule text of a permission code; nothing when table 2 has no line for it.
std::optional<String> reglaDe(int32_t& sessionId, host::Catalog& catalog, const String& code) {
    const int32_t rank =
        vb::CLng(catalog.TableGetLineRankFromCode(sessionId, 2, 0, 1, code, false));
    if (rank < 1) return std::nullopt;
    return vb::CStr(catalog.TableGetLineInfo(sessionId, 2, 0, rank, 2));
}

// The rows of `modelos` by model name, built once per fill.
using FilasPorNombre = std::unordered_map<String, std::vector<int>>;

FilasPorNombre filasPorNombre(const ModVariables& mv) {
    FilasPorNombre filas;
    const int n = std::min<int>(mv.numModelos, static_cast<int>(mv.modelos.size()));
    for (int m = 0; m < n; ++m) filas[mv.modelos[m]].push_back(m);
    return filas;
}

void marcaTodos(ModVariables& mv, int k, bool valor) {
    for (int m = 0; m < mv.numModelos; ++m) mv.permisosModelo[m][k] = valor;
}

// A model is allowed when some listed code that table 8 knows names it.
void llenaTipo(ModVariables& mv, int k, const std::optional<String>& regla, bool reglaAll,
               NombresTabla8& tabla, const FilasPorNombre& filas) {
    marcaTodos(mv, k, false);
    if (!regla) return;
    const String rest = regla->size() > 3 ? regla->substr(3) : String();
    if (reglaAll && rest == u" ALL") {
        marcaTodos(mv, k, true);
        return;
    }
    for (const auto& code : vb::Split(rest, u" ")) {
        const auto& name = tabla.nombre(code);
        if (!name) continue;
        const auto it = filas.find(*name);
        if (it == filas.end()) continue;
        for (int m : it->second) mv.permisosModelo[m][k] = true;
    }
}

// Rows 0..numModelos-1, seven kinds; an empty matrix forbids every kind.
void dimensionaMatriz(ModVariables& mv) {
    const size_t rows = mv.numModelos > 0 ? static_cast<size_t>(mv.numModelos) : 0;
    mv.permisosModelo.resize(rows);
    for (auto& row : mv.permisosModelo) row.resize(kNumTipos, false);
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
    auto& mv = modVariables();
    mv.codigosMO = {u"MO_EA",  u"MO_EAl",  u"MO_EF",    u"MO_EAAl",
                    u"MO_EAF", u"MO_EAlF", u"MO_EAAlF", String()};
}

void InicEspMod(int32_t& sessionId, host::Catalog& catalog, bool reglaAll, int kinds) {
    auto& mv = modVariables();
    dimensionaMatriz(mv);
    if (mv.numModelos <= 0) return;  // no door model: every kind stays forbidden
    NombresTabla8 tabla(sessionId, catalog);
    const FilasPorNombre filas = filasPorNombre(mv);
    kinds = std::clamp(kinds, 0, kNumTipos);
    for (int k = 0; k < kinds; ++k) {
        const String code = k < static_cast<int>(mv.codigosMO.size()) ? mv.codigosMO[k] : String();
        // The line of a kind gives the same answer for every model within one fill, so one
        // look-up serves all models (also where it was asked once per model).
        llenaTipo(mv, k, reglaDe(sessionId, catalog, code), reglaAll, tabla, filas);
    }
}

void InicEspMod2() {
    auto& mv = modVariables();
    dimensionaMatriz(mv);
    const int kinds = std::clamp<int>(mv.numTiposEsp, 0, kNumTipos);
    for (int k = 0; k < kinds; ++k) {
        for (int m = 0; m < mv.numModelos; ++m) {
            static const String kSinNombre;
            const String& model =
                m < static_cast<int>(mv.modelos.size()) ? mv.modelos[m] : kSinNombre;
            mv.permisosModelo[m][k] = permisoFijo(k, model);
        }
    }
}

bool permiso(const ModVariables& mv, int m, int k) {
    if (m < 0 || m >= static_cast<int>(mv.permisosModelo.size())) return false;
    const auto& row = mv.permisosModelo[m];
    return k >= 0 && k < static_cast<int>(row.size()) && row[k];
}

}  // namespace rules
