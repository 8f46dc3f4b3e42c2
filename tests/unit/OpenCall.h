#pragma once
// The simulated host of the goldens inside one open call, for unit tests of what runs below the
// entry points: the world the test built, a call on the object `object` (the object -2), and
// the shared context on that call's host objects with its session open and, when one is named,
// a catalogue loaded. Tests change the world as they go and read what the plug-in did from the
// call's events.
#include <string>
#include <vector>

#include "common/ModVariables.h"
#include "host/Session.h"
#include "native/SimPlatform.h"
#include "sim/Player.h"

namespace tests {

class OpenCall {
  public:
    static constexpr int32_t kBlock = 1001;

    explicit OpenCall(sim::World world, const vb::String& catalogue = u"", int32_t object = 100)
        : simulation(std::move(world)) {
        spec_.className = "Plugin";
        spec_.method = "Test";
        spec_.object = object;
        simulation.state().call = {kBlock, &spec_};
        simulation.recorder().beginCall(spec_.className, spec_.method);
        auto& mv = common::modVariables();
        mv = common::ModVariables{};
        host::openSession(simulation.factory(),
                          {&mv.miAppli, &mv.miScene, &mv.miCatalog, &mv.miSessionId}, kBlock);
        if (!catalogue.empty()) host::use(mv.miCatalog).FileLoad(mv.miSessionId, catalogue);
        events();  // the opening's own events are no test's business
    }
    ~OpenCall() { common::modVariables() = common::ModVariables{}; }
    OpenCall(const OpenCall&) = delete;
    OpenCall& operator=(const OpenCall&) = delete;

    sim::World& world() { return simulation.world(); }
    sim::SceneObject& object(int32_t id) { return *world().scene.find(id); }

    // The events recorded since the last look (a new call begins for the next look).
    sim::Json events() {
        auto& recorder = simulation.recorder();
        recorder.endCall(nullptr, nullptr);
        sim::Json seen = recorder.calls().back()["events"];
        recorder.forgetCalls();
        recorder.beginCall(spec_.className, spec_.method);
        return seen;
    }
    // The events of one type since the last look.
    std::vector<sim::Json> events(const std::string& type) {
        std::vector<sim::Json> found;
        for (const auto& e : events())
            if (e["type"] == type) found.push_back(e);
        return found;
    }

    sim::Simulation simulation;
    native::SimPlatform platform{simulation};
    env::Env env{platform, simulation.factory(), nullptr};

  private:
    sim::CallSpec spec_;
};

}  // namespace tests
