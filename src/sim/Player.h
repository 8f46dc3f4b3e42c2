#pragma once
// Plays a scenario's calls against one `Plugin` and one `Wizard` that live for the whole
// scenario, as in the host, and records each call. Errors never leave a call: a runtime error
// becomes the call's `error`, anything else error 440 "Automation error: ...".
#include <memory>

#include "env/Env.h"
#include "handlers/Plugin.h"
#include "host/CachingFactory.h"
#include "sim/Dispatch.h"
#include "sim/HostState.h"
#include "sim/Recorder.h"
#include "sim/Scenario.h"
#include "sim/SimHost.h"
#include "wizard/Wizard.h"

namespace sim {

// The simulated host: its world, its recorder and its automation objects.
class Simulation {
  public:
    explicit Simulation(World world);
    Simulation(const Simulation&) = delete;
    Simulation& operator=(const Simulation&) = delete;

    World& world() { return world_; }
    Recorder& recorder() { return recorder_; }
    HostState& state() { return state_; }
    host::Factory& factory() { return factory_; }

    Json transcript() const;

  private:
    World world_;
    Recorder recorder_;
    HostState state_;
    SimFactory factory_;
};

class Player {
  public:
    // The platform must serve the same simulation. The plug-in creates its host objects in
    // `reads` mode; objects the scenario passes as arguments are the host's own.
    Player(Simulation& simulation, platform::Platform& platform,
           host::ReadMode reads = host::ReadMode::Cached);

    void play(const CallSpec& call);

  private:
    MethodOutcome dispatch(const CallSpec& call, int32_t block);

    Simulation& sim_;
    host::CachingFactory factory_;
    env::Env env_;
    handlers::Plugin plugin_;
    wizard::Wizard wizard_;
    int32_t callsPlayed_ = 0;
};

}  // namespace sim
