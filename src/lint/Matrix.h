#pragma once
// The permission matrix of each catalogue of a world, for its author: every door model against
// the seven kinds, what a placement does and by which line, what the special-editing dialog
// offers, and the exception lists. Worked out from the rules' own reading and decision tables.
#include <optional>
#include <string>
#include <vector>

#include "sim/World.h"

namespace lint {

using vb::String;

// One measure of a kind's own change at placement (exactly the kind's measures differ, on a
// cabinet whose only marker child is the kind's): the kind whose line decides, or -1 when the
// measure stays whatever the lines say.
struct MeasureVerdict {
    int32_t measure;  // information 12, 13 or 14
    int line;
    bool stays;
};

struct MatrixCell {
    std::vector<MeasureVerdict> placement;
    bool placementStays = false;  // every measure of the change stays
    bool dialogOffers = false;    // on a cabinet with the kind's marker child
};

struct MatrixRow {
    String model;
    String line;                    // the table-8 line's place (its code)
    std::vector<MatrixCell> cells;  // by kind
};

struct MatrixKind {
    String type, permission, exception, marker;
    std::optional<String> rule;           // the MO_ line's text; nothing: no line
    std::vector<int> placementLines;      // the kinds whose lines decide its own change (-1: none)
    std::optional<String> exceptionText;  // the EX_ line's text; nothing: no line
    std::vector<String> excepted;         // the references the list names
    bool listSearched = false;            // the rules search it (two pieces or more)
    String listAtPlacement;               // where a placement searches it, in words
};

struct CatalogueMatrix {
    String path;
    std::vector<MatrixKind> kinds;
    std::vector<MatrixRow> rows;
};

std::vector<CatalogueMatrix> permissionMatrix(const sim::World& world);

std::string matrixText(const std::vector<CatalogueMatrix>& matrices);  // UTF-8
std::string matrixHtml(const std::vector<CatalogueMatrix>& matrices);  // one page, UTF-8

}  // namespace lint
