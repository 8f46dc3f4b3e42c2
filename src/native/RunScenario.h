#pragma once
// Playing a whole scenario in this process: the simulated host, the native platform, one
// Plugin and one Wizard. The runner, the golden tests and the demo all go through here.
#include <string>

#include "host/ReadMode.h"
#include "sim/Json.h"
#include "sim/Scenario.h"

namespace native {

// Raises sim::ScenarioError for a scenario that does not load. `reads`: how the plug-in's host
// objects answer reads (the literal mode asks the host at every step).
sim::Json runScenarioText(const std::string& utf8Json,
                          host::ReadMode reads = host::ReadMode::Cached);
sim::Json runScenario(sim::Scenario scenario, host::ReadMode reads = host::ReadMode::Cached);

}  // namespace native
