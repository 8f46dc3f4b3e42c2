// EX_ lines of table 2 as the rules read them: three characters skipped, then references
// split at single blanks; the lists are searched for a cabinet's reference (information 8).
#include <set>

#include "lint/Reading.h"
#include "vb/Strings.h"

namespace lint {

namespace {

String listOf(const Kind& kind) {
    return u"the " + String(kind.name) + u" exception list";
}

// Another catalogue of the world whose line for this kind lists references, which a
// catalogue without the line inherits.
const sim::CatalogData* lender(const Subject& s, const Kind& kind) {
    for (const sim::CatalogData* other : s.world.catalogs()) {
        if (other == &s.catalog) continue;
        const sim::TableLine* line = lineByCode(other->table(2), kind.exception);
        if (!line) continue;
        for (const auto& ref : readRule(cell(*line, 2)).pieces)
            if (!ref.empty()) return other;
    }
    return nullptr;
}

void checkMissing(const Subject& s, const Kind& kind, Report& r) {
    const sim::CatalogData* other = lender(s, kind);
    if (!other) return;
    const String text = cell(*lineByCode(other->table(2), kind.exception), 2);
    r.warning(2, kind.exception,
              u"no such line: the rules then keep " + listOf(kind) +
                  u" of the catalogue used before, so after a cabinet of " + other->path +
                  u" its list " + quoted(text) +
                  u" still applies here; a line with the text \"EX:\" empties it");
}

// An article of table 3 or the reference of a cabinet of this catalogue.
bool isReference(const Subject& s, const String& text) {
    if (lineByName(s.table(3), text)) return true;
    for (const auto* cabinet : cabinetsOf(s))
        if (info(*cabinet, 8) == text) return true;
    return false;
}

void checkReference(const Subject& s, const Kind& kind, const String& ref, Report& r) {
    const sim::SceneObject* byArticle = nullptr;
    for (const auto* cabinet : cabinetsOf(s)) {
        if (info(*cabinet, 8) == ref) return;
        if (!byArticle && info(*cabinet, 7) == ref) byArticle = cabinet;
    }
    if (byArticle)
        return r.finding(2, kind.exception,
                         quoted(ref) + u" is the article (information 7) of cabinet " +
                             number(byArticle->id) + u", whose reference (information 8) is " +
                             quoted(info(*byArticle, 8)) +
                             u": the rules search this list for the reference, information 8, "
                             u"so it does not except that cabinet");
    // Any other reference may be a cabinet's that this world does not place: the tables cannot
    // tell, so nothing is said.
}

void checkReferences(const Subject& s, const Kind& kind, const RuleText& rule, Report& r) {
    std::set<String> seen;
    for (const auto& ref : rule.pieces) {
        if (ref.empty()) continue;
        if (!seen.insert(ref).second) {
            r.finding(2, kind.exception, u"the reference " + quoted(ref) + u" is listed twice");
            continue;
        }
        checkReference(s, kind, ref, r);
    }
}

// How the text is laid out: three characters of its own, a blank, references at single
// blanks. False when the line is never searched at all.
bool checkLayout(const Subject& s, const Kind& kind, const String& text, const RuleText& rule,
                 Report& r) {
    if (isReference(s, rule.skipped))
        r.finding(2, kind.exception,
                  u"the rules skip the first three characters, " + quoted(rule.skipped) +
                      u", which are a reference: the list begins after three characters of its "
                      u"own, as in \"EX: B60-1 B45-1\"");
    if (!rule.blankFourth() && rule.pieces.size() == 1) {
        r.finding(2, kind.exception,
                  u"the fourth character of the text " + quoted(text) +
                      u" is not a blank, so the rules read one piece, " + quoted(rule.pieces[0]) +
                      u", and never search a list of one piece: this line excepts no cabinet");
        return false;
    }
    if (!rule.blankFourth())
        r.warning(2, kind.exception,
                  u"the fourth character of the text " + quoted(text) +
                      u" is not a blank; the rules skip the first three characters (" +
                      quoted(rule.skipped) + u") all the same and search the references " +
                      joinedQuoted(rule.named()));
    if (rule.emptyPiecesAfterFirst())
        r.warning(2, kind.exception,
                  u"two blanks in a row, or a blank at the end, in " + quoted(text) +
                      u" give empty references (the other references still count)");
    return true;
}

void checkLine(const Subject& s, const Kind& kind, const sim::TableLine& line, Report& r) {
    const String text = cell(line, 2);
    if (text.empty())
        return r.finding(2, kind.exception,
                         u"the line has no text in column 2, and an empty text does not empty " +
                             listOf(kind) +
                             u": the rules keep the list of the catalogue used before; write "
                             u"\"EX:\" for no exceptions");
    const RuleText rule = readRule(text);
    if (rule.rest.empty()) return;  // "EX:": no exceptions
    if (checkLayout(s, kind, text, rule, r)) checkReferences(s, kind, rule, r);
}

}  // namespace

void checkExceptions(const Subject& s, Report& r) {
    for (const auto& kind : kinds()) {
        const sim::TableLine* line = lineByCode(s.table(2), kind.exception);
        if (line) {
            checkLine(s, kind, *line, r);
        } else {
            checkMissing(s, kind, r);
        }
    }
}

}  // namespace lint
