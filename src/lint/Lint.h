#pragma once
// A check of a world's catalogues for their authors: everything in the rule tables that makes
// the rules behave otherwise than the tables seem to say. Each finding names the catalogue,
// the table and the line, and says what the rules do with it.
#include <string>
#include <vector>

#include "sim/World.h"

namespace lint {

using vb::String;

// A finding changes what the rules or the user see; a warning is worth knowing but may be
// meant (a designed caption that stays, a kind that no line permits).
enum class Severity { Finding, Warning };

struct Finding {
    Severity severity = Severity::Finding;
    String catalog;  // the catalogue's path as the scenario wrote it
    int table = 0;   // 0: the catalogue as a whole
    String line;     // the line's code (table 3: its name); empty: the table as a whole
    String text;
};

// Every catalogue of the world, in the order the scenario lists them.
std::vector<Finding> lintWorld(const sim::World& world);

// "C:\Cat\a.cat, table 2, line MO_EA: ..." (UTF-8, no line break).
std::string describe(const Finding& finding);
// "2 findings, 1 warning." or "No findings."
std::string summary(const std::vector<Finding>& findings);
bool anyFinding(const std::vector<Finding>& findings);

}  // namespace lint
