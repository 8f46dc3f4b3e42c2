// The scene's cabinets against table 8: a placement finds a cabinet's door model by its exact
// name (the first model's permissions when none matches), the special-editing dialog ignoring
// letter case, so a model written in other letters is judged by two rows.
#include <set>

#include "lint/Placement.h"
#include "vb/Strings.h"

namespace lint {

namespace {

struct Rows {
    int placement = 0;  // exact name, else 0
    int dialog = 0;     // letter case aside, else 0
    bool exact = false;
};

Rows rowsFor(const std::vector<String>& models, const String& model) {
    Rows rows;
    for (size_t m = 0; m < models.size(); ++m) {
        if (models[m] == model) return {static_cast<int>(m), static_cast<int>(m), true};
    }
    for (size_t m = 0; m < models.size(); ++m) {
        if (vb::equalText(models[m], model)) {
            rows.dialog = static_cast<int>(m);
            break;
        }
    }
    return rows;
}

// The kinds whose permission differs between the two models.
std::vector<String> differingKinds(const Subject& s, const String& a, const String& b) {
    std::vector<String> codes;
    for (const auto& kind : kinds())
        if (permits(s, kind, a) != permits(s, kind, b)) codes.push_back(kind.permission);
    return codes;
}

const sim::TableLine* modelLine(const Subject& s, const String& name) {
    for (const auto* line : linesOf(s.table(8)))
        if (isDoorModel(*line) && cell(*line, 3) == name) return line;
    return nullptr;
}

}  // namespace

void checkSceneModels(const Subject& s, Report& r) {
    const auto models = doorModels(s.table(8));
    std::set<String> told;
    for (const auto* cabinet : cabinetsOf(s)) {
        const String model = info(*cabinet, 64);
        const Rows rows = rowsFor(models, model);
        if (rows.exact || rows.dialog == 0 || !told.insert(model).second) continue;
        const String first = models[0], matched = models[rows.dialog];
        const auto kindsDiffer = differingKinds(s, first, matched);
        if (kindsDiffer.empty()) continue;  // both rows permit the same: nothing differs
        r.finding(8, modelPlace(*modelLine(s, matched)),
                  u"cabinet " + number(cabinet->id) + u" has the door model " + quoted(model) +
                      u", which matches this line's " + quoted(matched) +
                      u" only when letter case is ignored: a placement looks door models up "
                      u"exactly and judges it by the first model's (" +
                      quoted(first) +
                      u") permissions, while the special-editing dialog ignores case and offers "
                      u"it " +
                      quoted(matched) + u"'s; they differ for " + joined(kindsDiffer));
    }
}

}  // namespace lint
