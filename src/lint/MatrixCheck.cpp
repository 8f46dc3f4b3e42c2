// Door models that no MO_ line read at placement permits: every change of such a cabinet that a
// line decides is refused.
#include <set>

#include "lint/Placement.h"

namespace lint {

namespace {

// The kinds that permit the model, split by whether a placement ever reads their line.
struct Permitted {
    std::vector<String> atPlacement, dialogOnly;
};

Permitted permittedKinds(const Subject& s, const String& model) {
    Permitted p;
    for (const auto& kind : kinds()) {
        if (!permits(s, kind, model)) continue;
        auto& into =
            usesOf(Decision::Permissions, kind.index).empty() ? p.dialogOnly : p.atPlacement;
        into.push_back(kind.permission);
    }
    return p;
}

// The MO_ codes a placement reads.
std::vector<String> placementCodes() {
    std::vector<String> codes;
    for (const auto& kind : kinds())
        if (!usesOf(Decision::Permissions, kind.index).empty()) codes.push_back(kind.permission);
    return codes;
}

String refusedModel(const String& model, const Permitted& p) {
    String text = u"no MO_ line that a placement reads permits the door model " + quoted(model) +
                  u" (none of " + joined(placementCodes()) +
                  u" lists a table-8 code whose model name is " + quoted(model) +
                  u" or says ALL): at placement a change of such a cabinet is refused "
                  u"wherever an MO_ line decides it (a measure whose deciding marker child the "
                  u"cabinet does not carry stays), unless the exception list searched names the "
                  u"cabinet";
    if (p.dialogOnly.empty())
        return text +
               u"; the special-editing dialog offers it only the types whose exception "
               u"lists name the cabinet";
    return text + u"; the special-editing dialog still offers it the types of " +
           joined(p.dialogOnly) + u", lines a placement never reads";
}

}  // namespace

void checkMatrix(const Subject& s, Report& r) {
    bool anyLine = false;
    for (const auto& kind : kinds()) anyLine = anyLine || ruleOf(s, kind).has_value();
    if (!anyLine) return;  // told once by the permission check
    if (doorModels(s.table(8)).empty()) {
        r.finding(8, String(),
                  u"no door model: a door model is a line whose model name (column 3) does not "
                  u"begin with \"@\" and whose script (column 4) is not empty; without one, no "
                  u"door model is permitted any kind, whatever the MO_ lines say");
        return;
    }
    std::set<String> seen;
    for (const auto* line : linesOf(s.table(8))) {
        const String model = cell(*line, 3);
        if (!isDoorModel(*line) || !seen.insert(model).second) continue;
        const Permitted p = permittedKinds(s, model);
        if (p.atPlacement.empty()) r.finding(8, modelPlace(*line), refusedModel(model, p));
    }
}

}  // namespace lint
