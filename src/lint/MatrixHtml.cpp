// The permission matrix as one self-contained page: its style inline, no script, no link, so an
// author opens the file in any browser, on a machine without a network.
#include <sstream>

#include "lint/Matrix.h"
#include "lint/MatrixWords.h"
#include "vb/Strings.h"

namespace lint {

namespace {

constexpr const char* kStyle = R"(
body { font-family: "DejaVu Sans", Arial, sans-serif; margin: 24px; color: #222; }
h1 { font-size: 22px; } h2 { font-size: 17px; margin-top: 28px; }
p.legend span { display: inline-block; padding: 2px 8px; margin-right: 6px; border: 1px solid #999; }
table { border-collapse: collapse; margin: 8px 0 18px; }
th, td { border: 1px solid #999; padding: 4px 7px; vertical-align: top; font-size: 13px; }
th { background: #eee; text-align: left; }
th small, td small { color: #555; font-weight: normal; }
td.permitted, span.permitted { background: #d6efd6; }
td.refused, span.refused { background: #f5d0d0; }
td.stays, span.stays { background: #dde6f5; }
td span.placement, td span.dialog { display: block; white-space: nowrap; }
td span.dialog { margin-top: 3px; font-size: 12px; }
span.offered { color: #0a5d1e; } span.not-offered { color: #8a1010; }
)";

std::string html(const String& text) {
    std::string out;
    for (const char c : vb::toUtf8(text)) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            case '\'':
                out += "&#39;";
                break;
            default:
                out += c;
        }
    }
    return out;
}

std::string placementClass(const MatrixCell& cell) {
    bool anyLine = false;
    for (const auto& v : cell.placement) anyLine = anyLine || v.line >= 0;
    if (!anyLine) return "stays";
    return cell.placementStays ? "permitted" : "refused";
}

void writeHead(std::ostringstream& out, const CatalogueMatrix& m) {
    out << "<thead><tr><th>Door model</th>";
    for (const auto& kind : m.kinds)
        out << "<th>" << html(kind.type) << "<br><small>" << html(kind.permission) << " "
            << html(ruleWords(kind)) << "</small></th>";
    out << "</tr><tr class=\"placement-lines\"><th>At placement decided by</th>";
    for (const auto& kind : m.kinds)
        out << "<td data-kind=\"" << html(kind.type) << "\">" << html(placementLinesWords(kind))
            << "</td>";
    out << "</tr></thead>\n";
}

void writeCell(std::ostringstream& out, const MatrixKind& kind, const MatrixCell& cell) {
    const std::string placement = html(placementWords(cell)), dialog = html(dialogWords(cell));
    out << "<td class=\"cell " << placementClass(cell) << "\" data-kind=\"" << html(kind.type)
        << "\" data-placement=\"" << placement << "\" data-dialog=\"" << dialog << "\">"
        << "<span class=\"placement\">" << placement << "</span><span class=\"dialog "
        << (cell.dialogOffers ? "offered" : "not-offered") << "\">dialog: " << dialog
        << "</span></td>";
}

void writeMatrix(std::ostringstream& out, const CatalogueMatrix& m) {
    if (m.rows.empty()) {
        out << "<p class=\"no-model\">No door model in table 8: no door model is permitted any "
               "kind.</p>\n";
        return;
    }
    out << "<table class=\"matrix\">\n";
    writeHead(out, m);
    out << "<tbody>\n";
    for (const auto& row : m.rows) {
        out << "<tr data-model=\"" << html(row.model) << "\"><th>" << html(row.model)
            << "<br><small>line " << html(row.line) << "</small></th>";
        for (size_t k = 0; k < row.cells.size(); ++k) writeCell(out, m.kinds[k], row.cells[k]);
        out << "</tr>\n";
    }
    out << "</tbody></table>\n";
}

void writeExceptions(std::ostringstream& out, const CatalogueMatrix& m) {
    out << "<table class=\"exceptions\"><thead><tr><th>List</th><th>Line</th><th>References "
           "excepted</th><th>At placement</th></tr></thead><tbody>\n";
    for (const auto& kind : m.kinds)
        out << "<tr data-list=\"" << html(kind.exception) << "\"><th>" << html(kind.exception)
            << "</th><td>"
            << (kind.exceptionText ? html(u"\"" + *kind.exceptionText + u"\"") : "no line")
            << "</td><td class=\"references\">" << html(exceptionWords(kind)) << "</td><td>"
            << html(kind.listAtPlacement) << "</td></tr>\n";
    out << "</tbody></table>\n";
}

}  // namespace

std::string matrixHtml(const std::vector<CatalogueMatrix>& matrices) {
    std::ostringstream out;
    out << "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
           "<title>Permission matrix</title><style>"
        << kStyle << "</style></head><body>\n<h1>Permission matrix</h1>\n"
        << "<p class=\"legend\"><span class=\"permitted\">permitted at placement</span>"
           "<span class=\"refused\">refused at placement</span><span class=\"stays\">stays: no "
           "line decides</span></p>\n"
        << "<p>A cell is one door model and one kind: what a placement does when exactly the "
           "kind's measures change on a cabinet whose only marker child is the kind's, and by "
           "which MO_ line; and whether the special-editing dialog offers the type on such a "
           "cabinet. A cabinet whose reference an exception list names may keep the change "
           "anyway; the lists are below each matrix.</p>\n";
    for (const auto& m : matrices) {
        out << "<section class=\"catalogue\" data-catalogue=\"" << html(m.path) << "\">\n<h2>"
            << html(m.path) << "</h2>\n";
        writeMatrix(out, m);
        writeExceptions(out, m);
        out << "</section>\n";
    }
    if (matrices.empty()) out << "<p>No catalogue in this world.</p>\n";
    out << "</body></html>\n";
    return out.str();
}

}  // namespace lint
