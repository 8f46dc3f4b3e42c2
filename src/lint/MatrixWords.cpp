#include "lint/MatrixWords.h"

#include "lint/Reading.h"
#include "rules/ExplicaDimension.h"

namespace lint {

namespace {

String lineName(int line) {
    return line < 0 ? String(u"no line") : rules::codigoMO(line);
}

String verdict(const MeasureVerdict& v) {
    if (v.line < 0) return u"stays (no line decides)";
    return (v.stays ? u"permitted by " : u"refused by ") + lineName(v.line);
}

bool uniform(const MatrixCell& cell) {
    for (const auto& v : cell.placement)
        if (v.line != cell.placement[0].line || v.stays != cell.placement[0].stays) return false;
    return true;
}

}  // namespace

String placementWords(const MatrixCell& cell) {
    if (cell.placement.empty()) return String();
    if (uniform(cell)) return verdict(cell.placement[0]);
    String out;
    for (size_t i = 0; i < cell.placement.size(); ++i)
        out += (i ? u"; " : u"") + rules::nombreMedida(cell.placement[i].measure) + u" " +
               verdict(cell.placement[i]);
    return out;
}

String dialogWords(const MatrixCell& cell) {
    return cell.dialogOffers ? u"offered" : u"not offered";
}

String placementLinesWords(const MatrixKind& kind) {
    bool same = true;
    for (const int line : kind.placementLines) same = same && line == kind.placementLines[0];
    if (same && !kind.placementLines.empty()) {
        if (kind.placementLines[0] < 0) return u"no line: the measures stay";
        return lineName(kind.placementLines[0]) +
               (kind.placementLines.size() > 1 ? u" for every measure" : u"");
    }
    String out;
    for (size_t i = 0; i < kind.placementLines.size(); ++i)
        out += (i ? u", " : u"") + lineName(kind.placementLines[i]);
    return out;
}

String ruleWords(const MatrixKind& kind) {
    return kind.rule ? quoted(*kind.rule) : String(u"no line");
}

String exceptionWords(const MatrixKind& kind) {
    if (!kind.exceptionText) return u"no line: the list of the catalogue used before is kept";
    if (kind.exceptionText->empty())
        return u"empty text: the list of the catalogue used before is kept";
    if (!kind.listSearched)
        return kind.excepted.empty()
                   ? String(u"none")
                   : u"none: one piece, " + joinedQuoted(kind.excepted) + u", is never searched";
    return kind.excepted.empty() ? String(u"none") : joinedQuoted(kind.excepted);
}

}  // namespace lint
