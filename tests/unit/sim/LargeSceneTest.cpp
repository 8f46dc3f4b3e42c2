// A generated world of many cabinets plays within a time a person would accept: lookups are
// hashed and nothing walks the scene per host call.
#include <gtest/gtest.h>

#include <chrono>

#include "native/SimPlatform.h"
#include "sim/GeneratedWorld.h"

namespace {

TEST(LargeScene, TenThousandCabinetsPlayQuickly) {
    sim::Simulation simulation(sim::generatedKitchen(10000));
    native::SimPlatform platform(simulation);
    sim::Player player(simulation, platform);
    sim::CallSpec call;
    call.className = "Plugin";
    call.method = "OnSceneGenericFinishesAfter";
    const auto start = std::chrono::steady_clock::now();
    player.play(call);
    const auto seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    const auto& played = simulation.recorder().calls().back();
    EXPECT_TRUE(played["error"].is_null()) << played["error"].dump();
    EXPECT_EQ(played["hostCalls"]["SceneGetObjectId"], 30000);
    EXPECT_LT(seconds, 20.0);
    std::cout << "10,000 cabinets: " << seconds << " s\n";
}

}  // namespace
