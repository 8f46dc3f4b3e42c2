#pragma once
// Readings of an object's script: named limits, parameter ranges and the recess data line.
// Every text search here ignores letter case.
#include <array>
#include <functional>

#include "vb/Variant.h"

namespace dialog {

using vb::String;

constexpr double kMinimoDefecto = -1;
constexpr double kMaximoDefecto = 10000000;

// The number after the first "=" that follows `name`, up to the next "," or ")";
// defaultValue when the name does not occur. Raises a runtime error when the entry cannot be
// read (no ")" after the name, text that is not a number).
double valorScript(const String& script, const String& name, double defaultValue);

// Whether the measures lie within the script's limits. A failure to read the script is handed
// to `avisaError` with the failure's description and leaves the result as it was then.
bool limitesScript(const String& script, bool checkL, bool checkH, bool checkP,
                   const String& valueL, const String& valueH, const String& valueP,
                   const std::function<void(const String&)>& avisaError);

// The parameter's range (upper end minus lower end) as decimal text; `cajas` are the texts of
// the width, height and depth boxes that "@L", "@H" and "@P" stand for. Items that cannot be
// read are skipped.
String rangoParametro(const String& definicion, const String& script,
                      const std::array<String, 3>& cajas);

// The code in front of the parameter's "(" (the whole definition when it has none).
String codigoParametro(const String& definicion);

}  // namespace dialog
