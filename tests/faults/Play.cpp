#include "Play.h"

#include "native/SimPlatform.h"
#include "rules/ModVariables.h"
#include "sim/Player.h"
#include "sim/ScenarioLoader.h"

namespace faults {

namespace {

// What must not survive a call: the shared host objects and any Pelmora object at all.
void checkReleased(const sim::HostState& state, const std::string& when,
                   std::vector<std::string>& problems) {
    const auto& mv = rules::modVariables();
    if (mv.miAppli || mv.miScene || mv.miCatalog)
        problems.push_back(when + ": the shared context still holds host objects");
    if (state.liveHostObjects != 0)
        problems.push_back(when + ": " + std::to_string(state.liveHostObjects) +
                           " host objects still alive");
}

void prepareFollowUp(sim::Simulation& simulation, const sim::World& initial,
                     const FollowUpStart* start, Played& played) {
    sim::HostState& state = simulation.state();
    played.start.sessionsOpened = state.sessionsOpened;
    if (state.currentCatalog) played.start.currentCatalog = state.currentCatalog->path;
    state.faults = {};
    simulation.world().scene = initial.scene;
    simulation.world().files = initial.files;
    if (!start) return;
    state.sessionsOpened = start->sessionsOpened;
    state.currentCatalog =
        start->currentCatalog ? simulation.world().catalog(*start->currentCatalog) : nullptr;
}

}  // namespace

Played play(const std::string& scenarioText, const RunSetup& setup) {
    const auto initial = sim::loadScenario(scenarioText);
    auto scenario = sim::loadScenario(scenarioText);
    sim::Simulation simulation(std::move(scenario->world));
    sim::HostState& state = simulation.state();
    state.faults = setup.plan;
    state.hostCallBudget = setup.hostCallBudget;
    state.callTrace = setup.trace;
    native::SimPlatform platform(simulation);
    sim::Player player(simulation, platform);
    Played played;
    for (size_t i = 0; i < scenario->calls.size(); ++i) {
        player.play(scenario->calls[i]);
        checkReleased(state, "after call " + std::to_string(i), played.problems);
    }
    played.calls = simulation.recorder().calls();
    played.fired = state.fired;
    played.hostCalls = state.hostCallsMade;
    if (scenario->calls.empty()) return played;
    state.callTrace = nullptr;
    prepareFollowUp(simulation, initial->world, setup.followUpStart, played);
    player.play(scenario->calls.front());
    checkReleased(state, "after the follow-up", played.problems);
    played.followUp = simulation.recorder().calls().back();
    return played;
}

}  // namespace faults
