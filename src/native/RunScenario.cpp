#include "native/RunScenario.h"

#include "native/SimPlatform.h"
#include "sim/ScenarioLoader.h"

namespace native {

sim::Json runScenario(sim::Scenario scenario, host::ReadMode reads) {
    sim::Simulation simulation(std::move(scenario.world));
    SimPlatform platform(simulation);
    sim::Player player(simulation, platform, reads);
    for (const auto& call : scenario.calls) player.play(call);
    return simulation.transcript();
}

sim::Json runScenarioText(const std::string& utf8Json, host::ReadMode reads) {
    return runScenario(std::move(*sim::loadScenario(utf8Json)), reads);
}

}  // namespace native
