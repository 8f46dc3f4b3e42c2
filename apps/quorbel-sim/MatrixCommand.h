#pragma once
// quorbel-sim matrix [--html] FILE: the permission matrix of a scenario's catalogues.
#include <string>

namespace quorbel_sim {

// Prints the matrix as text, or as one self-contained HTML page; 0. Raises sim::ScenarioError
// for a file that does not load.
int matrix(const std::string& file, bool html);

}  // namespace quorbel_sim
