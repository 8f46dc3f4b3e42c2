#pragma once
// Playing a whole scenario in this process: the simulated host, the native platform, one
// Plugin and one Wizard. The runner, the golden tests and the demo all go through here.
#include <string>

#include "host/ReadMode.h"
#include "sim/Faults.h"
#include "sim/Json.h"
#include "sim/Scenario.h"

namespace native {

struct RunOptions {
    // How the plug-in's host objects answer reads (the literal mode asks the host at every step).
    host::ReadMode reads = host::ReadMode::Cached;
    bool explain = false;   // each call's transcript lists the decisions taken and why
    sim::FaultPlan faults;  // what the simulated host is told to fail
};

// Raises sim::ScenarioError for a scenario that does not load.
sim::Json runScenarioText(const std::string& utf8Json, const RunOptions& options = {});
sim::Json runScenario(sim::Scenario scenario, const RunOptions& options = {});

}  // namespace native
