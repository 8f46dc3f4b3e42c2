#pragma once
// Playing a whole scenario in this process: the simulated host, the native platform, one
// Plugin and one Wizard. The runner, the golden tests and the demo all go through here.
#include <string>

#include "sim/Json.h"
#include "sim/Scenario.h"

namespace native {

// Raises sim::ScenarioError for a scenario that does not load.
sim::Json runScenarioText(const std::string& utf8Json);
sim::Json runScenario(sim::Scenario scenario);

}  // namespace native
