#pragma once
// Playing a whole scenario in this process: the simulated host, the native platform, one
// Plugin and one Wizard. The runner, the golden tests and the demo all go through here.
#include <string>

#include "sim/Faults.h"
#include "sim/Json.h"
#include "sim/Scenario.h"

namespace native {

// Raises sim::ScenarioError for a scenario that does not load.
sim::Json runScenarioText(const std::string& utf8Json, const sim::FaultPlan& faults = {});
// `faults`: what the simulated host is told to fail.
sim::Json runScenario(sim::Scenario scenario, const sim::FaultPlan& faults = {});

}  // namespace native
