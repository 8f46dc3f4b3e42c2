// The simulated host's members: ranks and lookups, the current catalogue, the id -2, resource
// export and call counting.
#include <gtest/gtest.h>

#include "sim/Player.h"
#include "vb/Conversions.h"

namespace {

using sim::Json;

sim::World sampleWorld() {
    sim::World world;
    auto& cat = world.addCatalog(u"C:\\Cat\\forma10.cat", u"ENG");
    cat.tables[2].add({u"TR_9001", u"", {{9, u"Atención"}}, u""});
    cat.tables[2].add({u"MO_EA", u"", {{2, u"xxx M01"}}, u""});
    cat.tables[2].add({u"TR_9001", u"", {{9, u"second"}}, u""});
    cat.tables[3].add({u"", u"0320A", {{3, u"600"}}, u""});
    cat.tables[19].add({u"", u"PIC1", {}, u"picture"});
    world.addCatalog(u"C:\\Cat\\other.cat").tables[2].add({u"X", u"", {{9, u"other"}}, u""});
    auto& top = world.scene.add(100);
    top.info[12] = u"650";
    top.script = u"LMIN=300";
    world.scene.add(101, 100).info[4] = u"EA_01";
    world.scene.addEmptyChild(100);
    world.scene.add(200, -2);
    world.files.putFile(u"C:\\Quorbel\\SPACE.INI", u"");
    world.application.dictionary[u"ENG"][u"Atención"] = u"Attention";
    return world;
}

class Host : public ::testing::Test {
  protected:
    Host() : simulation(sampleWorld()) {}

    void begin(std::optional<int32_t> object) {
        spec.object = object;
        simulation.state().call = {1001, &spec};
        simulation.recorder().beginCall("Plugin", "Test");
    }
    Json end() {
        simulation.recorder().endCall(nullptr, nullptr);
        return simulation.recorder().calls().back();
    }

    sim::Simulation simulation;
    sim::CallSpec spec;
    sim::SimScene scene{simulation.state()};
    sim::SimCatalog catalog{simulation.state()};
    int32_t sid = 1;
};

TEST_F(Host, CatalogueMembersAnswerEmptyUntilALoadSucceeds) {
    begin(100);
    EXPECT_EQ(vb::CStr(catalog.TableGetLineInfo(sid, 2, 0, 1, 9)), u"");
    EXPECT_EQ(vb::CLng(catalog.TableGetLineRankFromCode(sid, 2, 0, 1, u"TR_9001", false)), 0);
    EXPECT_EQ(vb::CInt(catalog.TableGetLinesNb(sid, 2, 0)), 0);
    EXPECT_FALSE(vb::CBool(catalog.FileLoad(sid, u"C:\\Cat\\missing.cat")));
    EXPECT_TRUE(vb::CBool(catalog.FileLoad(sid, u"c:\\CAT\\forma10.CAT")));
    // A load that fails leaves the previous catalogue current, for every catalogue object.
    EXPECT_FALSE(vb::CBool(catalog.FileLoad(sid, u"C:\\Cat\\missing.cat")));
    sim::SimCatalog another(simulation.state());
    EXPECT_EQ(vb::CStr(another.GetInfo(sid, 17)), u"ENG");
    const Json call = end();
    EXPECT_EQ(call["events"][0],
              Json({{"type", "fileLoad"}, {"path", "C:\\Cat\\missing.cat"}, {"ok", false}}));
    EXPECT_EQ(call["hostCalls"]["FileLoad"], 3);
}

TEST_F(Host, RanksCountFromOneAndTheFirstMatchWins) {
    begin(100);
    catalog.FileLoad(sid, u"C:\\Cat\\forma10.cat");
    struct Case {
        int32_t table;
        const char16_t* key;
        bool byName;
        int32_t rank;
    };
    for (const Case& c :
         {Case{2, u"TR_9001", false, 1}, Case{2, u"MO_EA", false, 2}, Case{2, u"mo_ea", false, 0},
          Case{3, u"0320A", true, 1}, Case{3, u"0320A", false, 0}, Case{5, u"0320A", true, 0}}) {
        const auto rank = c.byName
                              ? catalog.TableGetLineRankFromName(sid, c.table, 0, 1, c.key, false)
                              : catalog.TableGetLineRankFromCode(sid, c.table, 0, 1, c.key, false);
        EXPECT_EQ(vb::CLng(rank), c.rank) << c.table;
    }
    EXPECT_EQ(vb::CStr(catalog.TableGetLineInfo(sid, 2, 0, 2, 2)), u"xxx M01");
    EXPECT_EQ(vb::CStr(catalog.TableGetLineInfo(sid, 2, 0, 2, 9)), u"");
    EXPECT_EQ(vb::CStr(catalog.TableGetLineInfo(sid, 2, 0, 4, 9)), u"");
    EXPECT_EQ(vb::CInt(catalog.TableGetLinesNb(sid, 2, 0)), 3);
    EXPECT_EQ(vb::CStr(catalog.DicoGetStringFromKey(sid, u"Atención", u"ENG")), u"Attention");
    EXPECT_EQ(vb::CStr(catalog.DicoGetStringFromKey(sid, u"Otro", u"ENG")), u"Otro");
    EXPECT_EQ(end()["hostCalls"]["TableGetLineRankFromCode"], 4);
}

TEST_F(Host, MinusTwoIsTheCallsObjectAndEventsCarryRealIds) {
    begin(100);
    EXPECT_EQ(vb::CStr(scene.ObjectGetInfo(sid, -2, 12)), u"650");
    EXPECT_EQ(vb::CStr(scene.ObjectGetScript(sid, -2)), u"LMIN=300");
    EXPECT_EQ(vb::CLng(scene.ObjectGetChildrenNb(sid, -2, 0)), 2);
    EXPECT_EQ(vb::CLng(scene.ObjectGetChildId(sid, -2, 2, 0)), -1);
    EXPECT_EQ(vb::CStr(scene.ObjectGetInfo(sid, -1, 4)), u"");
    EXPECT_EQ(vb::CLng(scene.ObjectGetParentId(sid, 101)), 100);
    EXPECT_EQ(vb::CLng(scene.ObjectGetParentId(sid, 200)), -2);
    EXPECT_EQ(vb::CLng(scene.SceneGetObjectsNb(sid)), 3);
    EXPECT_EQ(vb::CLng(scene.SceneGetObjectId(sid, 3)), 200);
    scene.ObjectSetInfo(sid, -2, u"600", 12);
    const Json call = end();
    EXPECT_EQ(call["events"][0],
              Json({{"type", "setInfo"}, {"object", 100}, {"code", 12}, {"value", "600"}}));
    EXPECT_EQ(simulation.state().objectsJson()["100"]["12"], "600");
}

TEST_F(Host, ExportWritesTheResourceWhereTheFolderExists) {
    begin(100);
    catalog.FileLoad(sid, u"C:\\Cat\\forma10.cat");
    EXPECT_FALSE(
        vb::CBool(catalog.FileExportResource(sid, 1, u"C:\\Quorbel\\Textures\\Temp\\PIC1")));
    simulation.world().files.createFolder(u"C:\\Quorbel\\Textures");
    simulation.world().files.createFolder(u"C:\\Quorbel\\Textures\\Temp");
    EXPECT_FALSE(
        vb::CBool(catalog.FileExportResource(sid, 2, u"C:\\Quorbel\\Textures\\Temp\\PIC1")));
    EXPECT_TRUE(
        vb::CBool(catalog.FileExportResource(sid, 1, u"C:\\Quorbel\\Textures\\Temp\\PIC1")));
    EXPECT_TRUE(
        vb::CBool(catalog.FileExportResource(sid, 1, u"C:\\Quorbel\\Textures\\Temp\\pic1")));
    EXPECT_EQ(*simulation.world().files.fileContent(u"C:\\Quorbel\\Textures\\Temp\\PIC1"),
              u"picture");
    const Json call = end();
    EXPECT_EQ(call["events"][3], Json({{"type", "exportResource"},
                                       {"rank", 1},
                                       {"path", "C:\\Quorbel\\Textures\\Temp\\PIC1"},
                                       {"ok", true}}));
    EXPECT_EQ(simulation.state().filesJson(), Json::array({"C:\\Quorbel\\Textures\\Temp\\PIC1"}));
}

}  // namespace
