// Host faults: the runners' options, the counted faults of the simulated host's members, refused
// ProgIDs and left-out members, and what a whole scenario run shows under each.
#include <gtest/gtest.h>

#include <stdexcept>

#include "common/ModVariables.h"
#include "native/RunScenario.h"
#include "native/SimPlatform.h"
#include "sim/Faults.h"
#include "sim/Player.h"
#include "sim/ScenarioLoader.h"
#include "vb/Errors.h"

namespace {

using sim::FaultKind;
using sim::Json;

TEST(FaultOptions, AreTakenOutOfTheArgumentsAndMayRepeat) {
    std::vector<std::string> args = {"--text",        "--fault", "12:raise",   "--refuse",
                                     "pelmora.scene", "--fault", "3:hugeText", "--missing",
                                     "FileLoad",      "x.json"};
    sim::FaultPlan plan;
    sim::takeFaultOptions(args, plan);
    EXPECT_EQ(args, (std::vector<std::string>{"--text", "x.json"}));
    ASSERT_EQ(plan.counted.size(), 2u);
    EXPECT_EQ(plan.at(12), FaultKind::Raise);
    EXPECT_EQ(plan.at(3), FaultKind::HugeText);
    EXPECT_FALSE(plan.at(4));
    EXPECT_TRUE(plan.refuses(u"Pelmora.Scene"));  // ProgIDs compare without case
    EXPECT_FALSE(plan.refuses(u"Pelmora.Appli"));
    EXPECT_TRUE(plan.lacks("FileLoad"));
    EXPECT_FALSE(plan.lacks("fileload"));  // member names compare exactly
}

TEST(FaultOptions, BadOnesAreRefused) {
    for (const std::vector<std::string>& bad :
         std::vector<std::vector<std::string>>{{"--fault", "0:raise"},
                                               {"--fault", "x:raise"},
                                               {"--fault", "5"},
                                               {"--fault", "5:crash"},
                                               {"--fault", "5 :raise"},
                                               {"--refuse"}}) {
        std::vector<std::string> args = bad;
        sim::FaultPlan plan;
        EXPECT_THROW(sim::takeFaultOptions(args, plan), std::invalid_argument) << bad[0];
    }
}

// A small scenario: a placement whose host calls are known (see the golden place_no_session).
const char* const kNoSession = R"({
  "scene": [ { "id": 100, "info": { "0": "forma10" } } ],
  "calls": [ { "class": "Plugin", "method": "OnObjectPlaceAfter", "object": 100,
               "session": false } ] })";

Json playWith(const sim::FaultPlan& plan) {
    return native::runScenario(std::move(*sim::loadScenario(kNoSession)),
                               {.faults = plan})["calls"][0];
}

TEST(CountedFaults, EachKindShowsInTheCallItHits) {
    // Calls: 1 StartSessionFromCallParams, 2 ViewRefresh, 3 EndSession.
    struct Case {
        int64_t call;
        FaultKind kind;
        Json error;
        Json result;
    };
    const Json mismatch = {{"number", 13}, {"description", "Type mismatch"}};
    const Json injected = {{"number", 440},
                           {"description", "Host failure injected at call 2 (ViewRefresh)"}};
    for (const Case& c : {Case{2, FaultKind::Raise, injected, nullptr},
                          Case{1, FaultKind::EmptyText, mismatch, nullptr},
                          Case{1, FaultKind::HugeText, mismatch, nullptr},
                          Case{3, FaultKind::MinusOne, nullptr, true},
                          Case{3, FaultKind::HugeText, nullptr, true}}) {  // answer ignored
        sim::FaultPlan plan;
        plan.counted.push_back({c.call, c.kind});
        const Json call = playWith(plan);
        EXPECT_EQ(call["error"], c.error) << c.call << ":" << sim::faultKindName(c.kind);
        EXPECT_EQ(call["result"], c.result) << c.call << ":" << sim::faultKindName(c.kind);
    }
}

TEST(CountedFaults, MinusOneForTheSessionOpensOne) {
    sim::FaultPlan plan;
    plan.counted.push_back({1, FaultKind::MinusOne});
    EXPECT_TRUE(playWith(plan)["hostCalls"].contains("ObjectGetInfo"));  // the work goes on
}

TEST(CountedFaults, ALeftOutMemberRaises438WithoutBeingCounted) {
    sim::FaultPlan plan;
    plan.missingMembers.push_back("ViewRefresh");
    plan.counted.push_back({2, FaultKind::Raise});  // now EndSession, had it been reached
    const Json call = playWith(plan);
    EXPECT_EQ(call["error"]["number"], vb::err::kNoSuchMember);
    EXPECT_EQ(call["hostCalls"], (Json{{"StartSessionFromCallParams", 1}}));
}

TEST(CountedFaults, ARefusedProgIdRaises429AndNoObjectSurvivesTheCall) {
    // Each entry point creates the application (and scene) before the refused catalogue.
    for (const auto& [className, method] :
         std::vector<std::pair<std::string, std::string>>{{"Plugin", "OnObjectPlaceAfter"},
                                                          {"Plugin", "OnSceneGenericFinishesAfter"},
                                                          {"Wizard", "OnObjectPlaceAfter"}}) {
        auto scenario = sim::loadScenario(kNoSession);
        sim::Simulation simulation(std::move(scenario->world));
        simulation.state().faults.refusedProgIds.push_back(u"PELMORA.CATALOG");
        native::SimPlatform platform(simulation);
        sim::Player player(simulation, platform);
        sim::CallSpec spec;
        spec.className = className;
        spec.method = method;
        player.play(spec);
        const Json call = simulation.recorder().calls().back();
        EXPECT_EQ(call["error"]["number"], vb::err::kCantCreateObject) << className << method;
        EXPECT_EQ(simulation.state().liveHostObjects, 0) << className << method;
        EXPECT_FALSE(common::modVariables().miAppli) << className << method;
    }
}

TEST(CountedFaults, TheBudgetEndsARunThatWouldNotEnd) {
    auto scenario = sim::loadScenario(kNoSession);
    sim::Simulation simulation(std::move(scenario->world));
    simulation.state().hostCallBudget = 1;
    sim::SimScene scene(simulation.state());
    int32_t sid = 0;
    EXPECT_NO_THROW(scene.ViewRefresh(sid));
    EXPECT_THROW(scene.ViewRefresh(sid), vb::RuntimeError);
    EXPECT_EQ(simulation.state().hostCallsMade, 2);
}

}  // namespace
