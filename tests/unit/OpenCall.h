#pragma once
// The simulated host of the goldens inside one open call, for unit tests of what runs below the
// entry points: the world the test built, a call on object 100 (the object -2), and the shared
// context on that call's host objects (reads kept or literal) with its session open and, when
// one is named, a catalogue loaded. Tests change the world as they go and read what the
// plug-in did from the call's events.
#include <string>
#include <vector>

#include "common/ModVariables.h"
#include "host/CachingFactory.h"
#include "host/Session.h"
#include "native/SimPlatform.h"
#include "sim/Player.h"

namespace tests {

class OpenCall {
  public:
    static constexpr int32_t kBlock = 1001;
    static constexpr int32_t kObject = 100;  // the object -2 of the call

    explicit OpenCall(sim::World world, const vb::String& catalogue = u"",
                      host::ReadMode reads = host::ReadMode::Literal)
        : simulation(std::move(world)), factory(simulation.factory(), reads) {
        spec_.className = "Plugin";
        spec_.method = "Test";
        spec_.object = kObject;
        simulation.state().call = {kBlock, &spec_};
        simulation.recorder().beginCall(spec_.className, spec_.method);
        auto& mv = common::modVariables();
        mv = common::ModVariables{};
        host::openSession(factory, {&mv.miAppli, &mv.miScene, &mv.miCatalog, &mv.miSessionId},
                          kBlock);
        if (!catalogue.empty()) host::use(mv.miCatalog).FileLoad(mv.miSessionId, catalogue);
        look();  // the opening's own events are no test's business
    }
    ~OpenCall() { common::modVariables() = common::ModVariables{}; }
    OpenCall(const OpenCall&) = delete;
    OpenCall& operator=(const OpenCall&) = delete;

    sim::World& world() { return simulation.world(); }
    sim::SceneObject& object(int32_t id) { return *world().scene.find(id); }

    // The call so far since the last look ({"events": [...], "hostCalls": {...}, ...}); a new
    // call begins for the next look.
    sim::Json look() {
        auto& recorder = simulation.recorder();
        recorder.endCall(nullptr, nullptr);
        sim::Json seen = recorder.calls().back();
        recorder.forgetCalls();
        recorder.beginCall(spec_.className, spec_.method);
        return seen;
    }
    sim::Json events() { return look()["events"]; }
    // The events of one type since the last look.
    std::vector<sim::Json> events(const std::string& type) {
        std::vector<sim::Json> found;
        for (const auto& e : events())
            if (e["type"] == type) found.push_back(e);
        return found;
    }

    // What was written since the last look, as "id.code=value".
    std::vector<std::string> writes() {
        std::vector<std::string> done;
        for (const auto& e : events("setInfo"))
            done.push_back(std::to_string(e["object"].get<int32_t>()) + "." +
                           std::to_string(e["code"].get<int32_t>()) + "=" +
                           e["value"].get<std::string>());
        return done;
    }

    sim::Simulation simulation;
    host::CachingFactory factory;  // reads kept for the call or literal, as asked
    native::SimPlatform platform{simulation};
    env::Env env{platform, factory, nullptr};

  private:
    sim::CallSpec spec_;
};

}  // namespace tests
