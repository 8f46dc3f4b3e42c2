// A generated world of many cabinets plays within a time a person would accept: lookups are
// hashed and nothing walks the scene per host call.
#include <gtest/gtest.h>

#include <chrono>

#include "native/SimPlatform.h"

namespace {

sim::World kitchen(int cabinets) {
    sim::World world;
    world.files.putFile(u"C:\\Quorbel\\SPACE.INI", u"[Local]\r\nCatalogsDir=C:\\Cat\r\n");
    auto& cat = world.addCatalog(u"C:\\Cat\\cocinas.cat", u"ESP");
    cat.tables[2].add({u"TR_9001", u"", {{9, u"Atención"}}, u""});
    cat.tables[2].add({u"TR_9017", u"", {{9, u"Muebles:"}}, u""});
    cat.tables[2].add({u"MO_EA", u"", {{2, u"MO: M01"}}, u""});
    cat.tables[3].add({u"", u"B60", {{3, u"600"}, {4, u"560"}, {5, u"720"}}, u""});
    cat.tables[8].add({u"M01", u"", {{1, u"M01"}, {3, u"TIBER"}, {4, u"PUERTA"}}, u""});
    for (int i = 0; i < cabinets; ++i) {
        const int32_t id = 1000 + 10 * i;
        auto& o = world.scene.add(id);
        o.info = {{0, u"cocinas"},
                  {2, u"40"},
                  {7, u"B60"},
                  {8, u"B60"},
                  {12, i % 2 ? u"650" : u"600"},
                  {13, u"560"},
                  {14, u"720"},
                  {64, u"LAZIO"}};
        world.scene.add(id + 1, id).info[4] = u"EA_" + vb::fromUtf8(std::to_string(id));
        world.scene.add(id + 2, id).info[4] = u"B60_DESC";
    }
    return world;
}

TEST(LargeScene, TenThousandCabinetsPlayQuickly) {
    sim::Simulation simulation(kitchen(10000));
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
