#include "native/RunScenario.h"

#include <fstream>
#include <sstream>

#include "native/SimPlatform.h"
#include "sim/ScenarioLoader.h"

namespace native {

sim::Json runScenario(sim::Scenario scenario) {
    sim::Simulation simulation(std::move(scenario.world));
    SimPlatform platform(simulation);
    sim::Player player(simulation, platform);
    for (const auto& call : scenario.calls) player.play(call);
    return simulation.transcript();
}

sim::Json runScenarioText(const std::string& utf8Json) {
    return runScenario(std::move(*sim::loadScenario(utf8Json)));
}

std::string readWholeFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw sim::ScenarioError(path + ": cannot open the file");
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

}  // namespace native
