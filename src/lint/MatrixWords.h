#pragma once
// The words the matrix's text and page share: a cell's verdicts and a kind's lines.
#include "lint/Matrix.h"

namespace lint {

// "permitted by MO_EA", "refused by MO_EAAl", "stays (no line decides)"; per measure when the
// measures of the change are decided differently.
String placementWords(const MatrixCell& cell);
String dialogWords(const MatrixCell& cell);  // "offered" / "not offered"
// "MO_EAAl for both measures", "no line: the measures stay"
String placementLinesWords(const MatrixKind& kind);
String ruleWords(const MatrixKind& kind);       // "\"MO: M01 M02\"" or "no line"
String exceptionWords(const MatrixKind& kind);  // the references, or why there are none

}  // namespace lint
