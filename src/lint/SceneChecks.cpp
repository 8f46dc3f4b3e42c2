// The scene's cabinets against table 8: a placement finds a cabinet's door model by its exact
// name (the first model's permissions when none matches), the special-editing dialog ignoring
// letter case, so a model written in other letters is judged by two rows.
#include <set>

#include "lint/Placement.h"
#include "rules/Modelos.h"

namespace lint {

namespace {

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
        const int n = static_cast<int>(models.size());
        const auto placement = rules::filaDelModelo(models, n, model, false);
        const int dialog = rules::filaDelModelo(models, n, model, true).value_or(0);
        if (placement || dialog == 0 || !told.insert(model).second) continue;
        const String first = models[0], matched = models[dialog];
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
