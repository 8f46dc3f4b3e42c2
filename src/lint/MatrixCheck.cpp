// The permission matrix as the rules fill it: a door model may have a kind of special when
// the kind's MO_ line says " ALL", or lists a table-8 code whose model name is the model's.
#include <set>

#include "lint/Reading.h"

namespace lint {

namespace {

bool permits(const Subject& s, const sim::TableLine& rule, const String& model) {
    const RuleText read = readRule(cell(rule, 2));
    if (read.rest == u" ALL") return true;
    for (const auto& code : read.pieces) {
        const sim::TableLine* line = lineByCode(s.table(8), code);
        if (line && cell(*line, 3) == model) return true;
    }
    return false;
}

bool anyKindPermits(const Subject& s, const std::vector<const sim::TableLine*>& rules,
                    const String& model) {
    for (const auto* rule : rules)
        if (permits(s, *rule, model)) return true;
    return false;
}

}  // namespace

void checkMatrix(const Subject& s, Report& r) {
    std::vector<const sim::TableLine*> rules;
    for (const auto& kind : kKinds)
        if (const auto* line = lineByCode(s.table(2), kind.permission)) rules.push_back(line);
    if (rules.empty()) return;  // told once by the permission check
    if (doorModels(s.table(8)).empty()) {
        r.finding(8, String(),
                  u"no door model: a door model is a line whose model name (column 3) does not "
                  u"begin with \"@\" and whose script (column 4) is not empty; without one, "
                  u"every change of a measure is refused, whatever the MO_ lines say");
        return;
    }
    std::set<String> seen;
    for (const auto* line : linesOf(s.table(8))) {
        const String model = cell(*line, 3);
        if (!isDoorModel(*line) || !seen.insert(model).second) continue;
        if (anyKindPermits(s, rules, model)) continue;
        r.finding(8, modelPlace(*line),
                  u"no kind of special permits the door model " + quoted(model) +
                      u": no MO_ line lists a table-8 code whose model name is " + quoted(model) +
                      u" and none says ALL, so every change of its measures is refused, unless "
                      u"an exception list names the cabinet");
    }
}

}  // namespace lint
