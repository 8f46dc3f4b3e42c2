#include "LintCommand.h"

#include <iostream>

#include "lint/Lint.h"
#include "sim/ScenarioLoader.h"

namespace quorbel_sim {

int lint(const std::string& file) {
    // Only the world matters here; the scenario's calls are loaded (and checked) but not played.
    const auto scenario = sim::loadScenarioFile(file);
    const auto findings = lint::lintWorld(scenario->world);
    for (const auto& finding : findings) std::cout << lint::describe(finding) << "\n";
    std::cout << lint::summary(findings) << "\n";
    return lint::anyFinding(findings) ? 1 : 0;
}

}  // namespace quorbel_sim
