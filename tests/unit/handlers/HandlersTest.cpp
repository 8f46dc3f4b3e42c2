// The Plugin's entry points and event handlers on an in-memory host: sessions, host calls,
// writes, messages, results, and how often the host is asked.
#include <gtest/gtest.h>

#include "../rules/FakeHost.h"
#include "common/ModVariables.h"
#include "handlers/Plugin.h"

namespace {

using platform::MsgIcon;
using vb::String;

String num(int n) {
    String t;
    for (char c : std::to_string(n)) t += static_cast<char16_t>(c);
    return t;
}

class Handlers : public testing::Test {
  protected:
    void SetUp() override {
        common::modVariables() = common::ModVariables{};
        platform.profile[u"Local"] = u"C:\\Cat";
        platform.files[u"C:\\Cat\\forma10.cat"] = 100;
        auto& c = *host.catalog;
        c.tables[2] = {
            {u"TR_9001", u"", {{9, u"Aviso"}}},       {u"TR_9014", u"", {{9, u"Varias"}}},
            {u"TR_9015", u"", {{9, u"Una"}}},         {u"TR_9016", u"", {{9, u"Restaurado"}}},
            {u"TR_9017", u"", {{9, u"Rechazados:"}}}, {u"MO_EA", u"", {{2, u"xxx M02"}}}};
        c.tables[3] = {{u"", u"A1", {{3, u"600"}, {4, u"560"}, {5, u"720"}}}};
        c.tables[8] = {{u"M01", u"", {{1, u"M01"}, {3, u"TIBER"}, {4, u"s"}}},
                       {u"M02", u"", {{1, u"M02"}, {3, u"MONZA"}, {4, u"s"}}}};
        mueble(100, u"TIBER", u"650");
        host.scene->order = {100};
    }
    // A cabinet of catalogue 31 whose width change is judged by the door model.
    void mueble(int32_t id, const String& modelo, const String& ancho,
                const String& fichero = u"forma10", const String& numero = u"31") {
        auto& s = *host.scene;
        s.objects[id].info = {{0, fichero}, {2, numero},  {7, u"A1"},   {8, u"R" + num(id)},
                              {12, ancho},  {13, u"560"}, {14, u"720"}, {64, modelo}};
        s.objects[id].children = {id + 1};
        s.objects[id + 1].info[4] = u"EA_" + num(id);
        s.objects[id + 1].parent = id;
    }
    std::vector<String> textos() {
        std::vector<String> t;
        for (const auto& m : platform.messages) t.push_back(m.text);
        return t;
    }
    fake::Platform platform;
    fake::Factory host;
    env::Env env{platform, host};
    handlers::Plugin plugin{env};
};

TEST_F(Handlers, AppStartInsertsTheMenuItem) {
    EXPECT_TRUE(plugin.OnAppStartAfter(7));
    ASSERT_EQ(host.appli->menuItems.size(), 1u);
    EXPECT_EQ(host.appli->menuItems[0],
              (std::vector<String>{u"1", u"ViewRefresh", u"0", u"0", u"", u"8", u"10",
                                   u"Quorbel.dll", u"Plugin", u"SceneCheck"}));
    EXPECT_EQ(host.appli->ended, 1);
}

TEST_F(Handlers, WithoutSessionNothingIsDoneButResultsStay) {
    host.appli->session = 0;
    EXPECT_TRUE(plugin.OnAppStartAfter(7));
    EXPECT_TRUE(host.appli->menuItems.empty());
    EXPECT_FALSE(plugin.SceneCheck(7));
    EXPECT_EQ(host.scene->refreshes, 0);
    EXPECT_TRUE(plugin.OnObjectPlaceAfter(7));
    EXPECT_EQ(host.scene->refreshes, 1);  // handlers refresh anyway
    EXPECT_TRUE(host.catalog->loads.empty());
}

TEST_F(Handlers, SceneCheckRefreshesAndReturnsFalse) {
    EXPECT_FALSE(plugin.SceneCheck(7));
    EXPECT_EQ(host.scene->refreshes, 1);
}

TEST_F(Handlers, ComponentsBShowsReferences) {
    EXPECT_FALSE(plugin.OnObjectComponentsB(7));
    EXPECT_EQ(textos(), (std::vector<String>{u"A1", u"R100", u"forma10"}));
    EXPECT_EQ(platform.messages[0].caption, platform::kTituloComponente);
    EXPECT_EQ(platform.messages[0].icon, MsgIcon::None);
    host.scene->objects[100].info[0] = u"otro";
    platform.messages.clear();
    EXPECT_TRUE(plugin.OnObjectComponentsB(7));
    EXPECT_EQ(platform.messages.size(), 2u);
}

TEST_F(Handlers, PlacementRestoresARefusedWidth) {
    EXPECT_TRUE(plugin.OnObjectPlaceAfter(7));
    EXPECT_EQ(host.catalog->loads, (std::vector<String>{u"C:\\Cat\\forma10.cat"}));
    EXPECT_EQ(host.scene->writes, (std::vector<fake::Write>{{100, 12, u"600"}}));
    EXPECT_EQ(textos(), (std::vector<String>{u"Una\r\nRestaurado"}));
    EXPECT_EQ(host.scene->refreshes, 1);
    EXPECT_EQ(host.appli->ended, 1);
}

TEST_F(Handlers, PlacementAcceptedByTheDoorModel) {
    host.scene->objects[100].info[64] = u"MONZA";
    EXPECT_TRUE(plugin.OnObjectPlaceAfter(7));
    EXPECT_TRUE(host.scene->writes.empty());
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Handlers, AttributeDialogMeasuresAreTrimmed) {
    platform.dialogItems = {{150, u" 650 "}, {151, u"720"}, {152, u"560"}};
    host.scene->objects[100].info[12] = u"600";
    EXPECT_TRUE(plugin.OnObjectAttributsDlgValidation(7));
    EXPECT_EQ(common::modVariables().medidaAncho, u"650");
    EXPECT_EQ(host.scene->writes, (std::vector<fake::Write>{{100, 12, u"600"}}));
    EXPECT_EQ(textos(), (std::vector<String>{u"Una"}));
}

TEST_F(Handlers, FinishedObjectUsesTwoLineMessage) {
    EXPECT_TRUE(plugin.OnObjectFinishesAfter(7));
    EXPECT_EQ(textos(), (std::vector<String>{u"Una\r\nRestaurado"}));
    EXPECT_EQ(host.scene->refreshes, 0);
    EXPECT_EQ(host.appli->ended, 1);
}

TEST_F(Handlers, SceneWidePreparesOnCatalogueChangeAndSummarises) {
    platform.files[u"C:\\Cat\\forma10b.cat"] = 100;
    platform.files[u"C:\\Cat\\xey10.cat"] = 100;
    mueble(200, u"TIBER", u"650", u"forma10b", u"31");
    mueble(300, u"MONZA", u"650", u"forma10", u"31");
    mueble(400, u"TIBER", u"650", u"xey10", u"32");
    mueble(500, u"TIBER", u"650", u"forma10", u"X");  // not numeric: skipped
    host.scene->order = {100, 101, 200, 201, 300, 301, 400, 401, 500, 501};
    EXPECT_TRUE(plugin.OnSceneGenericFinishesAfter(7));
    EXPECT_EQ(host.catalog->loads.size(), 4u);
    // Door models are read once per preparation: for the first and the fourth object only.
    EXPECT_EQ(host.calls.byMember["TableGetLinesNb"], 2);
    EXPECT_EQ(textos(), (std::vector<String>{u"Rechazados:\r\nR100 - R200 - R400"}));
    EXPECT_EQ(platform.messages[0].caption, u"Aviso");
    EXPECT_EQ(host.scene->refreshes, 1);
}

TEST_F(Handlers, SceneWideWithoutRejectionsIsSilent) {
    host.scene->objects[100].info[64] = u"MONZA";
    EXPECT_TRUE(plugin.OnSceneGenericFinishesAfter(7));
    EXPECT_TRUE(platform.messages.empty());
}

// A catalogue with `modelos` door models, each permission line listing `codigos` codes.
void catalogoGrande(fake::Catalog& c, int modelos, int codigos) {
    c.tables[8].clear();
    for (int m = 0; m < modelos; ++m) {
        const String code = u"M" + num(m);
        c.tables[8].push_back({code, u"", {{1, code}, {3, u"MODELO " + num(m)}, {4, u"s"}}});
    }
    for (const char16_t* mo :
         {u"MO_EA", u"MO_EAl", u"MO_EF", u"MO_EAAl", u"MO_EAF", u"MO_EAlF", u"MO_EAAlF"}) {
        String rule = u"xxx";
        for (int k = 0; k < codigos; ++k) rule += u" M" + num(k * 3 % modelos);
        c.tables[2].push_back({mo, u"", {{2, rule}}});
    }
}

// The permission fill asks table 8 for each model's codes in list order, up to the first that
// names the model: "", M0 for MODELO 0; "", M0, M3 for the three others; per kind.
TEST_F(Handlers, PlacementLooksEveryModelsCodesUp) {
    host.catalog->tables[2].pop_back();  // the fixture's own MO_EA line
    catalogoGrande(*host.catalog, 4, 2);
    host.calls = {};
    plugin.OnObjectPlaceAfter(7);
    EXPECT_TRUE(platform.messages.empty());
    const int porTipo = 1 + 2 + 3 + 3 + 3;  // the MO_ line, then the models' codes
    EXPECT_EQ(host.calls.byMember["TableGetLineRankFromCode"], 7 + 7 * porTipo);  // EX_ lines
    const int lecturasPorTipo = 1 + 1 + 2 + 2 + 2;
    EXPECT_EQ(host.calls.byMember["TableGetLineInfo"], 4 * 3 + 7 + 7 * lecturasPorTipo + 3);
}

TEST_F(Handlers, SceneWideAsksAtMost25TimesPerCabinetOfTheSameCatalogue) {
    catalogoGrande(*host.catalog, 200, 50);
    host.scene->order.clear();
    for (int i = 0; i < 50; ++i) {
        mueble(1000 + 10 * i, u"MONZA", u"600");
        host.scene->order.push_back(1000 + 10 * i);
    }
    host.calls = {};
    plugin.OnSceneGenericFinishesAfter(7);
    const int primero = host.calls.total;
    for (int i = 50; i < 150; ++i) {
        mueble(1000 + 10 * i, u"MONZA", u"600");
        host.scene->order.push_back(1000 + 10 * i);
    }
    host.calls = {};
    plugin.OnSceneGenericFinishesAfter(7);
    EXPECT_LE((host.calls.total - primero) / 100.0, 25.0);
}

}  // namespace
