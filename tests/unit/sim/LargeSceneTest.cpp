// A generated kitchen of 10,000 cabinets (30,000 objects) plays a scene-wide check to its end,
// visiting every object.
#include <gtest/gtest.h>

#include "native/SimPlatform.h"
#include "sim/GeneratedWorld.h"

namespace {

TEST(LargeScene, TenThousandCabinetsPlayToTheEnd) {
    sim::Simulation simulation(sim::generatedKitchen(10000));
    native::SimPlatform platform(simulation);
    sim::Player player(simulation, platform);
    sim::CallSpec call;
    call.className = "Plugin";
    call.method = "OnSceneGenericFinishesAfter";
    player.play(call);
    const auto& played = simulation.recorder().calls().back();
    EXPECT_TRUE(played["error"].is_null()) << played["error"].dump();
    EXPECT_EQ(played["hostCalls"]["SceneGetObjectId"], 30000);
}

}  // namespace
