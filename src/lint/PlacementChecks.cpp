// MO_ and EX_ lines that a placement reads otherwise than they say, found where the placement
// and the special-editing dialog would treat a door model or a listed cabinet differently: a
// line only the dialog reads (a warning: it does there what it says), a list a placement
// searches for other changes than its own kind's (a finding), and a line that also decides
// other kinds' changes when a child in the scene carries the marker that asks for it.
#include "lint/Placement.h"
#include "rules/Refresco.h"
#include "vb/Strings.h"

namespace lint {

namespace {

// A child in the scene whose name carries the marker, as the rules' scan compares it.
const sim::SceneObject* childWithMarker(const Subject& s, int kind) {
    const String& marker = kinds()[kind].marker;
    for (const int32_t id : s.world.scene.order()) {
        const sim::SceneObject* object = s.world.scene.find(id);
        if (!object || object->parent == sim::kNoObject || object->parent == sim::kCurrentObject)
            continue;
        if (vb::InStr(info(*object, 4), marker, vb::Compare::Text) > 0) return object;
    }
    return nullptr;
}

void warnOtherUses(const Subject& s, Decision table, const Kind& kind, Report& r) {
    std::vector<Use> live;
    const sim::SceneObject* child = nullptr;
    for (const auto& use : otherUses(table, kind.index)) {
        const sim::SceneObject* found = childWithMarker(s, markerOf(table, use));
        if (!found) continue;
        live.push_back(use);
        if (!child) child = found;
    }
    if (live.empty()) return;
    const bool list = table == Decision::Exceptions;
    r.warning(2, list ? kind.exception : kind.permission,
              String(list ? u"at placement this list is also searched for "
                          : u"at placement this line also decides ") +
                  describeUses(table, live) + u"; object " + number(child->id) +
                  u" of the scene is such a child (" + quoted(info(*child, 4)) + u")");
}

// A placement's verdict on the kind's own change for a door model: every measure stays.
bool placementKeeps(const Subject& s, int k, const String& model) {
    for (const auto& read : ownChange(Decision::Permissions, k))
        if (read.value >= 0 && !permits(s, kinds()[read.value], model)) return false;
    return true;
}

void checkPermissionLine(const Subject& s, const Kind& kind, Report& r) {
    const Decision P = Decision::Permissions;
    warnOtherUses(s, P, kind, r);
    if (readsAsWritten(P, kind.index)) return;
    std::vector<String> offeredRefused, keptNotOffered;
    for (const auto& model : doorModels(s.table(8))) {
        const bool offered = permits(s, kind, model), kept = placementKeeps(s, kind.index, model);
        if (offered && !kept) offeredRefused.push_back(model);
        if (!offered && kept) keptNotOffered.push_back(model);
    }
    if (offeredRefused.empty() && keptNotOffered.empty()) return;
    const auto uses = usesOf(P, kind.index);
    String text = (uses.empty() ? String(u"placement never reads this line")
                                : u"at placement this line decides only " + describeUses(P, uses)) +
                  u": " + describeOwnChange(P, kind.index);
    if (!offeredRefused.empty())
        text += u"; so the special-editing dialog offers type " + kind.type + u" to " +
                joinedQuoted(offeredRefused) + u", whose change a placement refuses";
    if (!keptNotOffered.empty())
        text += String(offeredRefused.empty() ? u"; so" : u"; and") +
                u" a placement keeps that change for " + joinedQuoted(keptNotOffered) +
                u", to which the special-editing dialog does not offer type " + kind.type;
    // A line only the dialog reads does there what it says; a line read for other changes
    // than its own misleads at placement too.
    if (uses.empty()) return r.warning(2, kind.permission, text);
    r.finding(2, kind.permission, text);
}

// The list a placement searches for a measure of the kind's own change names the reference, or
// the measure stays whatever the lines say.
bool placementExcepts(const Subject& s, int k, const String& ref) {
    const auto permissions = ownChange(Decision::Permissions, k);
    const auto lists = ownChange(Decision::Exceptions, k);
    for (size_t i = 0; i < lists.size(); ++i) {
        if (permissions[i].value < 0) continue;
        if (lists[i].value < 0) return false;
        const auto* line = lineByCode(s.table(2), kinds()[lists[i].value].exception);
        if (!line || !rules::estaEnLista(ref, rules::leeExcepcion(cell(*line, 2)))) return false;
    }
    return true;
}

void checkExceptionLine(const Subject& s, const Kind& kind, const sim::TableLine& line, Report& r) {
    const auto list = rules::leeExcepcion(cell(line, 2));
    if (!list || list->size() < 2) return;  // never searched: the exception checks say so
    const Decision E = Decision::Exceptions;
    warnOtherUses(s, E, kind, r);
    if (readsAsWritten(E, kind.index)) return;
    std::vector<String> missed;
    for (const auto& ref : *list)
        if (!ref.empty() && !placementExcepts(s, kind.index, ref)) missed.push_back(ref);
    if (missed.empty()) return;
    const auto uses = usesOf(E, kind.index);
    auto report = uses.empty() ? &Report::warning : &Report::finding;
    (r.*report)(
        2, kind.exception,
        (uses.empty() ? String(u"placement never searches this list")
                      : u"at placement this list is searched only for " + describeUses(E, uses)) +
            u": " + describeOwnChange(E, kind.index) + u", which does not name " +
            joinedQuoted(missed) + u"; so the special-editing dialog offers type " + kind.type +
            u" to these cabinets, while a placement refuses that change of theirs unless "
            u"their door model is permitted it");
}

}  // namespace

void checkPlacementReading(const Subject& s, Report& r) {
    for (const auto& kind : kinds()) {
        if (lineByCode(s.table(2), kind.permission)) checkPermissionLine(s, kind, r);
        if (const auto* line = lineByCode(s.table(2), kind.exception))
            checkExceptionLine(s, kind, *line, r);
    }
}

String nonePermitted(const Kind& kind) {
    const Decision P = Decision::Permissions;
    const auto uses = usesOf(P, kind.index);
    const String dialog = u"the special-editing dialog offers type " + kind.type +
                          u" to no door model (only to the cabinets " + kind.exception + u" names)";
    if (uses.empty())
        return u"placement never reads this line (" + describeOwnChange(P, kind.index) +
               u"), and " + dialog;
    return u"at placement no door model is permitted " + describeUses(P, uses) +
           u": such a change is refused unless the exception list searched names the cabinet; " +
           dialog;
}

}  // namespace lint
