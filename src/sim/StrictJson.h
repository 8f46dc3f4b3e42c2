#pragma once
// Parsing a scenario's JSON text so that no mistake passes silently: a key written twice in one
// object is refused with its JSON path (the JSON library would keep the last), and a syntax
// error reads "invalid JSON: line L, column C: ..." without the library's own prefix.
#include <string>

#include "sim/Json.h"

namespace sim {

// Raises ScenarioError.
Json parseStrict(const std::string& text);

}  // namespace sim
