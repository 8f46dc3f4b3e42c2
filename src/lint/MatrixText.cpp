// The permission matrix as text: per catalogue, the lines each kind's change reads at placement,
// then one block per door model with a line per kind, then the exception lists.
#include <algorithm>
#include <sstream>

#include "lint/Matrix.h"
#include "lint/MatrixWords.h"
#include "vb/Strings.h"

namespace lint {

namespace {

std::string padded(const String& text, size_t width) {
    std::string out = vb::toUtf8(text);
    const size_t shown = text.size();
    return out + std::string(shown < width ? width - shown : 1, ' ');
}

void writeKinds(std::ostringstream& out, const CatalogueMatrix& m) {
    out << "Kinds: the MO_ line, and the lines a placement reads for the kind's own change\n"
           "(exactly its measures differ, on a cabinet whose only marker child is the kind's):\n";
    for (const auto& kind : m.kinds)
        out << "  " << padded(kind.type, 18) << padded(kind.permission, 10)
            << padded(ruleWords(kind), 24) << "placement: " << vb::toUtf8(placementLinesWords(kind))
            << "\n";
}

void writeRows(std::ostringstream& out, const CatalogueMatrix& m) {
    if (m.rows.empty()) {
        out << "No door model in table 8: no door model is permitted any kind.\n";
        return;
    }
    for (const auto& row : m.rows) {
        out << "Door model \"" << vb::toUtf8(row.model) << "\" (table 8, line "
            << vb::toUtf8(row.line) << "):\n";
        for (size_t k = 0; k < row.cells.size(); ++k)
            out << "  " << padded(m.kinds[k].type, 18)
                << "placement: " << padded(placementWords(row.cells[k]), 28)
                << "dialog: " << vb::toUtf8(dialogWords(row.cells[k])) << "\n";
    }
}

void writeExceptions(std::ostringstream& out, const CatalogueMatrix& m) {
    out << "Exception lists (searched for the cabinet's reference, information 8):\n";
    for (const auto& kind : m.kinds)
        out << "  " << padded(kind.exception, 9) << vb::toUtf8(exceptionWords(kind)) << "; "
            << vb::toUtf8(kind.listAtPlacement) << "\n";
}

}  // namespace

std::string matrixText(const std::vector<CatalogueMatrix>& matrices) {
    std::ostringstream out;
    for (size_t i = 0; i < matrices.size(); ++i) {
        const auto& m = matrices[i];
        if (i) out << "\n";
        out << "== " << vb::toUtf8(m.path) << "\n";
        writeKinds(out, m);
        writeRows(out, m);
        writeExceptions(out, m);
    }
    if (matrices.empty()) out << "No catalogue in this world.\n";
    return out.str();
}

}  // namespace lint
