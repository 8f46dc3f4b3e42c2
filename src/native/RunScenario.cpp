#include "native/RunScenario.h"

#include "native/SimPlatform.h"
#include "sim/ScenarioLoader.h"

namespace native {

sim::Json runScenario(sim::Scenario scenario, const RunOptions& options) {
    sim::Simulation simulation(std::move(scenario.world));
    simulation.recorder().explainCalls(options.explain);
    simulation.state().faults = options.faults;
    SimPlatform platform(simulation);
    sim::Player player(simulation, platform, options.reads);
    for (const auto& call : scenario.calls) player.play(call);
    return simulation.transcript();
}

sim::Json runScenarioText(const std::string& utf8Json, const RunOptions& options) {
    return runScenario(std::move(*sim::loadScenario(utf8Json)), options);
}

}  // namespace native
