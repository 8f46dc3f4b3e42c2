#include "sim/GeneratedWorld.h"

#include <string>

#include "vb/Strings.h"

namespace sim {

namespace {

void addCatalogue(World& world) {
    auto& cat = world.addCatalog(u"C:\\Cat\\cocinas.cat", u"ESP");
    cat.tables[2].add({u"TR_9001", u"", {{9, u"Atención"}}, u""});
    cat.tables[2].add({u"TR_9017", u"", {{9, u"Muebles con medidas no permitidas:"}}, u""});
    cat.tables[2].add({u"MO_EA", u"", {{2, u"MO: M01"}}, u""});
    cat.tables[3].add({u"", u"B60", {{3, u"600"}, {4, u"560"}, {5, u"720"}}, u""});
    cat.tables[4].add({u"", u"D-B60", {{3, u"Mueble bajo 60 cm"}}, u""});
    cat.tables[8].add({u"M01", u"", {{1, u"M01"}, {3, u"TIBER"}, {4, u"PUERTA"}}, u""});
}

}  // namespace

World generatedKitchen(int cabinets) {
    World world;
    world.files.putFile(u"C:\\Quorbel\\SPACE.INI", u"[Local]\r\nCatalogsDir=C:\\Cat\r\n");
    addCatalogue(world);
    for (int i = 0; i < cabinets; ++i) {
        const int32_t id = 1000 + 10 * i;
        auto& cabinet = world.scene.add(id);
        cabinet.info = {{0, u"cocinas"},
                        {2, u"40"},
                        {7, u"B60"},
                        {8, u"B60"},
                        {12, i % 2 ? u"650" : u"600"},
                        {13, u"560"},
                        {14, u"720"},
                        {64, u"LAZIO"}};
        world.scene.add(id + 1, id).info[4] = u"EA_" + vb::fromUtf8(std::to_string(id));
        auto& desc = world.scene.add(id + 2, id);
        desc.info = {{4, u"B60_DESC"}, {7, u"D-B60"}};
    }
    return world;
}

}  // namespace sim
