#pragma once
// quorbel-sim lint FILE: the rule-table check of a scenario's catalogues.
#include <string>

namespace quorbel_sim {

// Prints one line per finding and a summary; 1 when there is a finding, 0 otherwise.
// Raises sim::ScenarioError for a file that does not load.
int lint(const std::string& file);

}  // namespace quorbel_sim
