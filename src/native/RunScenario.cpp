#include "native/RunScenario.h"

#include "native/SimPlatform.h"
#include "sim/ScenarioLoader.h"

namespace native {

sim::Json runScenario(sim::Scenario scenario, const sim::FaultPlan& faults) {
    sim::Simulation simulation(std::move(scenario.world));
    simulation.state().faults = faults;
    SimPlatform platform(simulation);
    sim::Player player(simulation, platform);
    for (const auto& call : scenario.calls) player.play(call);
    return simulation.transcript();
}

sim::Json runScenarioText(const std::string& utf8Json, const sim::FaultPlan& faults) {
    return runScenario(std::move(*sim::loadScenario(utf8Json)), faults);
}

}  // namespace native
