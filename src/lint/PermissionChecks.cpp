// MO_ lines of table 2 as the rules read them: three characters skipped, then " ALL" or a list
// of table-8 line codes split at single blanks.
#include <set>

#include "lint/Placement.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace lint {

namespace {

// Where else table 8 holds the code, when it is not a line code.
String codeHint(const Subject& s, const String& code) {
    for (const auto* line : linesOf(s.table(8))) {
        if (cell(*line, 1) == code)
            return u" (line " + line->code +
                   u" has it in column 1, but the rules find lines by "
                   u"their line code)";
        if (cell(*line, 3) == code)
            return u" (line " + line->code +
                   u" has it as its model name, but the rules find "
                   u"lines by their line code)";
    }
    return String();
}

bool isDoorModelName(const Subject& s, const String& name) {
    for (const auto& model : doorModels(s.table(8)))
        if (model == name) return true;
    return false;
}

void checkListedCode(const Subject& s, const String& permission, const String& code, Report& r) {
    const sim::TableLine* target = lineByCode(s.table(8), code);
    if (!target) {
        r.finding(2, permission,
                  u"the code " + quoted(code) +
                      u" is not the code of any line of table 8, so the rules skip it" +
                      codeHint(s, code));
        return;
    }
    const String name = cell(*target, 3);
    if (isDoorModel(*target) || isDoorModelName(s, name)) return;
    const String why = vb::Left(name, 1) == u"@"
                           ? u"its model name " + quoted(name) + u" begins with \"@\""
                           : String(u"it has no script in column 4");
    r.finding(2, permission,
              u"the code " + quoted(code) + u" names a line of table 8 that is not a door model (" +
                  why + u"), so it permits nothing");
}

void checkCodes(const Subject& s, const String& permission, const RuleText& rule, Report& r) {
    std::set<String> seen;
    for (const auto& code : rule.pieces) {
        if (code.empty()) continue;
        if (!seen.insert(code).second) {
            r.finding(2, permission, u"the code " + quoted(code) + u" is listed twice");
            continue;
        }
        checkListedCode(s, permission, code, r);
    }
}

// A cabinet of the three manufacturers' catalogue numbers, whose dialog the Wizard opens.
const sim::SceneObject* wizardCabinet(const Subject& s) {
    for (const auto* cabinet : cabinetsOf(s)) {
        const vb::Variant n(info(*cabinet, 2));
        if (!vb::IsNumeric(n)) continue;
        const double value = vb::CDbl(n);
        if (value == 31 || value == 32 || value == 33) return cabinet;
    }
    return nullptr;
}

// The Wizard's dialog fills the permissions without the " ALL" rule.
void checkAllForWizard(const Subject& s, const Kind& kind, Report& r) {
    const sim::SceneObject* cabinet = wizardCabinet(s);
    if (!cabinet || lineByCode(s.table(8), u"ALL")) return;
    r.warning(2, kind.permission,
              u"cabinet " + number(cabinet->id) + u" has the catalogue number " +
                  info(*cabinet, 2) +
                  u", so the Wizard opens its special-editing dialog, and the Wizard reads "
                  u"\"ALL\" as a table-8 code: there no door model may have " +
                  kind.name + u" specials");
}

// How the text is laid out: three characters of its own, a blank, codes at single blanks.
void checkLayout(const Subject& s, const String& code, const String& text, const RuleText& rule,
                 Report& r) {
    if (lineByCode(s.table(8), rule.skipped))
        r.finding(2, code,
                  u"the rules skip the first three characters, " + quoted(rule.skipped) +
                      u", which are a table-8 code: the list begins after three characters of "
                      u"its own, as in \"MO: M01 M02\"");
    if (!rule.blankFourth())
        r.warning(2, code,
                  u"the fourth character of the rule text " + quoted(text) +
                      u" is not a blank; the rules skip the first three characters (" +
                      quoted(rule.skipped) + u") all the same and read the codes " +
                      joinedQuoted(rule.named()));
    if (rule.emptyPiecesAfterFirst())
        r.warning(2, code,
                  u"two blanks in a row, or a blank at the end, in " + quoted(text) +
                      u" give empty codes, which name no door model (the other codes still "
                      u"count)");
}

void checkLine(const Subject& s, const Kind& kind, const sim::TableLine& line, Report& r) {
    const String text = cell(line, 2);
    const String code = kind.permission;
    if (text.empty())
        return r.finding(2, code,
                         u"the line has no rule text in column 2, so " + nonePermitted(kind));
    const RuleText rule = readRule(text);
    if (rule.rest.empty())
        return r.finding(2, code,
                         u"the rule text " + quoted(text) +
                             u" is shorter than four characters; the rules skip the first "
                             u"three and find no code, so " +
                             nonePermitted(kind));
    if (rule.all) return checkAllForWizard(s, kind, r);
    if (vb::equalText(vb::Trim(rule.rest), u"ALL"))
        return r.finding(2, code,
                         u"the rule text " + quoted(text) +
                             u" does not permit every model: only a blank and ALL in capitals, "
                             u"with nothing after, do; the rules look these codes up in table 8 "
                             u"instead: " +
                             joinedQuoted(rule.named()));
    checkLayout(s, code, text, rule, r);
    checkCodes(s, code, rule, r);
}

}  // namespace

void checkPermissions(const Subject& s, Report& r) {
    std::vector<const Kind*> missing;
    for (const auto& kind : kinds()) {
        const sim::TableLine* line = lineByCode(s.table(2), kind.permission);
        if (line) {
            checkLine(s, kind, *line, r);
        } else {
            missing.push_back(&kind);
        }
    }
    if (missing.size() == kinds().size()) {
        r.warning(2, String(),
                  u"no permission line (MO_EA to MO_EAAlF): no door model is permitted any kind, "
                  u"so at placement a change is refused wherever an MO_ line would decide it (a "
                  u"measure whose deciding marker child the cabinet does not carry stays), unless "
                  u"the exception list searched names the cabinet, and the special-editing dialog "
                  u"offers only the types whose exception lists name the cabinet");
        return;
    }
    for (const Kind* kind : missing)
        r.warning(2, kind->permission, u"no such line, so " + nonePermitted(*kind));
}

}  // namespace lint
