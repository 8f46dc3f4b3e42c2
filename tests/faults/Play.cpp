#include "Play.h"

#include "common/ModVariables.h"
#include "native/SimPlatform.h"
#include "sim/Player.h"

namespace faults {

namespace {

// What must not survive a call: the shared host objects and any Pelmora object at all.
void checkReleased(const sim::HostState& state, const std::string& when,
                   std::vector<std::string>& problems) {
    const auto& mv = common::modVariables();
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

Played play(const sim::Scenario& loaded, const RunSetup& setup) {
    // Every run plays a world of its own; `loaded` stays as the scenario began.
    sim::Simulation simulation(sim::World(loaded.world));
    const std::vector<sim::CallSpec>& calls = loaded.calls;
    sim::HostState& state = simulation.state();
    state.faults = setup.plan;
    state.hostCallBudget = setup.hostCallBudget;
    state.callTrace = setup.trace;
    native::SimPlatform platform(simulation);
    sim::Player player(simulation, platform);
    Played played;
    for (size_t i = 0; i < calls.size(); ++i) {
        player.play(calls[i]);
        checkReleased(state, "after call " + std::to_string(i), played.problems);
    }
    played.calls = simulation.recorder().calls();
    played.fired = state.fired;
    played.hostCalls = state.hostCallsMade;
    if (calls.empty()) return played;
    state.callTrace = nullptr;
    prepareFollowUp(simulation, loaded.world, setup.followUpStart, played);
    player.play(calls.front());
    checkReleased(state, "after the follow-up", played.problems);
    played.followUp = simulation.recorder().calls().back();
    return played;
}

}  // namespace faults
