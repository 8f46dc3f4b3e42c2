#include "lint/Placement.h"

#include <algorithm>

#include "rules/TablasDecision.h"

namespace lint {

namespace {

const std::vector<rules::FilaTabla>& rowsOf(Decision table, int32_t measure) {
    return table == Decision::Exceptions ? rules::tablaExcepciones(measure)
                                         : rules::tablaPermisos(measure);
}

constexpr int32_t kMeasures[] = {rules::kCodigoAncho, rules::kCodigoFondo, rules::kCodigoAlto};

String markerText(int marca, bool present) {
    if (marca == rules::kHayHijoAlto)
        return present ? u"a child named with \"EAl_\" has been found (on any cabinet checked "
                         u"before, too)"
                       : u"no child named with \"EAl_\" has ever been found";
    return String(present ? u"a child of the cabinet carries "
                          : u"no child of the cabinet carries ") +
           quoted(rules::prefijoTipo(marca));
}

String condition(const rules::FilaTabla& row) {
    String text;
    if (row.otraMedida != 0)
        text = u"the " + rules::nombreMedida(row.otraMedida) + u" differs too and ";
    return text + markerText(row.marca, row.conMarca);
}

// An earlier row cannot hold together with `row` when it asks the opposite of the same marker.
bool excludedBy(const rules::FilaTabla& earlier, const rules::FilaTabla& row) {
    return earlier.otraMedida == 0 && earlier.marca == row.marca &&
           earlier.conMarca != row.conMarca;
}

rules::Situacion ownSituation(int k) {
    rules::Situacion s;
    for (const int32_t m : rules::medidasDelTipo(k)) {
        if (m == rules::kCodigoAncho) s.anchoDifiere = true;
        if (m == rules::kCodigoFondo) s.fondoDifiere = true;
        if (m == rules::kCodigoAlto) s.altoDifiere = true;
    }
    s.marca[k] = true;
    s.hayHijoAlto = k == 1;
    return s;
}

rules::Fila decideIn(Decision table, int32_t measure, const rules::Situacion& s) {
    return table == Decision::Exceptions ? rules::filaExcepcion(measure, s)
                                         : rules::filaPermiso(measure, s);
}

String lineOf(Decision table, int value) {
    return table == Decision::Exceptions ? rules::codigoEX(value) : rules::codigoMO(value);
}

String measuresText(const std::vector<int32_t>& measures) {
    std::vector<String> names;
    for (const int32_t m : measures) names.push_back(u"the " + rules::nombreMedida(m));
    String out;
    for (size_t i = 0; i < names.size(); ++i)
        out += (i == 0 ? u"" : i + 1 == names.size() ? u" and " : u", ") + names[i];
    return out;
}

String readText(Decision table, int value, const std::vector<int32_t>& measures) {
    const String what = measuresText(measures);
    if (value == rules::kNinguna)
        return table == Decision::Exceptions ? u"searches no list for " + what
                                             : u"keeps " + what + u" whatever the lines say";
    return (table == Decision::Exceptions ? u"searches " : u"is decided by ") +
           lineOf(table, value) + u" for " + what;
}

}  // namespace

std::vector<Use> usesOf(Decision table, int k) {
    std::vector<Use> uses;
    for (const int32_t m : kMeasures) {
        const auto& rows = rowsOf(table, m);
        for (size_t i = 0; i < rows.size(); ++i)
            if (rows[i].valor == k) uses.push_back({m, i});
    }
    return uses;
}

String describeUse(Decision table, const Use& use) {
    const auto& rows = rowsOf(table, use.measure);
    const rules::FilaTabla& row = rows[use.row];
    std::vector<String> unless;
    for (size_t i = 0; i < use.row; ++i)
        if (!excludedBy(rows[i], row)) unless.push_back(condition(rows[i]));
    String text = u"the " + rules::nombreMedida(use.measure) + u" when " + condition(row);
    if (unless.empty()) return text;
    text += u" (unless ";
    for (size_t i = 0; i < unless.size(); ++i) text += (i ? u", or " : u"") + unless[i];
    return text + u")";
}

String describeUses(Decision table, const std::vector<Use>& uses) {
    String out;
    for (size_t i = 0; i < uses.size(); ++i)
        out += (i ? u"; and " : u"") + describeUse(table, uses[i]);
    return out;
}

std::vector<Read> ownChange(Decision table, int k) {
    const rules::Situacion s = ownSituation(k);
    std::vector<Read> reads;
    for (const int32_t m : rules::medidasDelTipo(k)) {
        reads.push_back({m, decideIn(table, m, s).valor});
    }
    return reads;
}

bool readsAsWritten(Decision table, int k) {
    const auto reads = ownChange(table, k);
    return std::all_of(reads.begin(), reads.end(), [k](const Read& r) { return r.value == k; });
}

String describeOwnChange(Decision table, int k) {
    const auto reads = ownChange(table, k);
    std::vector<int> values;
    for (const auto& r : reads)
        if (std::find(values.begin(), values.end(), r.value) == values.end())
            values.push_back(r.value);
    String text = u"a change of " + measuresText(rules::medidasDelTipo(k)) +
                  u" on a cabinet with an " + quoted(rules::prefijoTipo(k)) + u" child ";
    for (size_t i = 0; i < values.size(); ++i) {
        std::vector<int32_t> measures;
        for (const auto& r : reads)
            if (r.value == values[i]) measures.push_back(r.measure);
        text += (i ? u", and " : u"") + readText(table, values[i], measures);
    }
    return text;
}

std::vector<Use> otherUses(Decision table, int k) {
    const rules::Situacion s = ownSituation(k);
    const auto& measures = rules::medidasDelTipo(k);
    std::vector<Use> others;
    for (const auto& use : usesOf(table, k)) {
        const auto& row = rowsOf(table, use.measure)[use.row];
        const bool ownMeasure =
            std::find(measures.begin(), measures.end(), use.measure) != measures.end();
        const rules::Fila f = decideIn(table, use.measure, s);
        const bool own = ownMeasure && f.otraMedida == row.otraMedida && f.marca == row.marca &&
                         f.valor == row.valor;
        if (!own) others.push_back(use);
    }
    return others;
}

int markerOf(Decision table, const Use& use) {
    const int marca = rowsOf(table, use.measure)[use.row].marca;
    return marca == rules::kHayHijoAlto ? 1 : marca;
}

}  // namespace lint
