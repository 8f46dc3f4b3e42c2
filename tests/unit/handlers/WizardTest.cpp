// The Wizard's placement path: dispatch by catalogue number and each manufacturer's decisions.
#include <gtest/gtest.h>

#include "../CaseNames.h"
#include "../rules/FakeHost.h"
#include "common/ModVariables.h"
#include "wizard/Wizard.h"

namespace {

using vb::String;

const String kAncho =
    u"El mueble no se puede hacer especial en anchura para el modelo seleccionado.\r\n"
    u"Se colocará el inmediato superior.";
const String kFondo =
    u"El mueble sólo se puede hacer especial en profundidad para el modelo seleccionado\r\n"
    u"Se colocará el inmediato superior.";

struct Replacement {
    String catalog;
    int32_t width, depth, height;
};

struct Case {
    const char* name;
    String numero, referencia, modelo, ancho, fondo, alto;
    bool result;
    String loaded = {};  // catalogue loaded, "" for none
    std::vector<fake::Write> writes = {};
    std::vector<String> messages = {};
    std::vector<Replacement> replacements = {};
};
void PrintTo(const Case& c, std::ostream* os) {
    *os << c.name;
}

const String kForma = u"C:\\Quorbel\\Catalogs\\forma10.cat";
const String kXey = u"C:\\Quorbel\\Catalogs\\xey10.cat";
const String kVegasa = u"C:\\Quorbel\\Catalogs\\vegasa10.cat";

const Case kCases[] = {
    {"FormaExemptCode", u"31", u"0446X", u"TIBER", u"650", u"600", u"760", true, kForma},
    {"FormaWidthRule",
     u"31",
     u"1000A",
     u"TIBER",
     u"650",
     u"560",
     u"720",
     true,
     kForma,
     {{100, 12, u"600"}},
     {kAncho}},
    {"FormaModelWithoutWidthRule", u"31", u"1000A", u"MIAMI", u"650", u"560", u"720", true, kForma},
    {"FormaDepthOnlyChanged", u"31", u"1000A", u"OTRO", u"600", u"600", u"720", true, kForma},
    {"FormaHeightChanged",
     u"31",
     u"1000A",
     u"OTRO",
     u"600",
     u"600",
     u"760",
     true,
     kForma,
     {{100, 12, u"600"}, {100, 14, u"720"}},
     {kFondo},
     {{u"forma10.cat", 600, 600, 720}}},
    {"XeyListedModel", u"32", u"1000A", u"CAPRI", u"650", u"560", u"720", true, kXey},
    {"XeyOtherModel",
     u"32",
     u"1000A",
     u"OTRO",
     u"650",
     u"580",
     u"720",
     true,
     kXey,
     {{100, 12, u"600"}, {100, 14, u"720"}},
     {kFondo},
     {{u"xey08.cat", 600, 580, 720}}},
    {"XeyExemptCode", u"32", u"2501A", u"OTRO", u"650", u"560", u"720", true, kXey},
    {"VegasaThreeCharacterCode", u"33", u"KBR1", u"OTRO", u"650", u"560", u"720", true, kVegasa},
    {"VegasaOtherModel",
     u"33",
     u"ZZZ1",
     u"OTRO",
     u"650",
     u"560",
     u"720",
     true,
     kVegasa,
     {{100, 12, u"600"}, {100, 14, u"720"}},
     {kFondo},
     {{u"vegasa10.cat", 600, 560, 720}}},
    {"VegasaListedModel", u"33", u"ZZZ1", u"MUNICH", u"650", u"560", u"720", true, kVegasa},
    {"NoArticleLine", u"31", u"NOPE", u"OTRO", u"650", u"560", u"720", true, kForma},
    {"OtherCatalogue", u"34", u"1000A", u"OTRO", u"650", u"560", u"720", false, u""},
    {"EmptyNumber", u"", u"1000A", u"OTRO", u"650", u"560", u"720", false, u""},
    {"NotANumber", u"abc", u"1000A", u"OTRO", u"650", u"560", u"720", false, u""},
};

class Casos : public testing::TestWithParam<Case> {};

TEST_P(Casos, Decide) {
    const Case& c = GetParam();
    fake::Platform platform;
    fake::Factory host;
    env::Env env{platform, host};
    wizard::Wizard wizard{env};
    const std::map<int, String> medidas = {{3, u"600"}, {4, u"560"}, {5, u"720"}};
    for (const char16_t* ref : {u"0446X", u"1000A", u"2501A", u"KBR1", u"ZZZ1"}) {
        host.catalog->tables[3].push_back({u"", ref, medidas});
    }
    host.scene->objects[100].info = {{2, c.numero}, {7, c.referencia}, {64, c.modelo},
                                     {12, c.ancho}, {13, c.fondo},     {14, c.alto}};
    EXPECT_EQ(wizard.OnObjectPlaceAfter(7), c.result);
    EXPECT_EQ(host.catalog->loads,
              c.loaded.empty() ? std::vector<String>{} : std::vector<String>{c.loaded});
    EXPECT_EQ(host.scene->writes, c.writes);
    std::vector<String> messages = {};
    for (const auto& m : platform.messages) {
        messages.push_back(m.text);
        EXPECT_EQ(m.caption, platform::kTituloComponente);
        EXPECT_EQ(m.icon, platform::MsgIcon::None);
    }
    EXPECT_EQ(messages, c.messages);
    ASSERT_EQ(host.scene->replacements.size(), c.replacements.size());
    for (size_t i = 0; i < c.replacements.size(); ++i) {
        const auto& r = host.scene->replacements[i];
        EXPECT_EQ(r.catalog, c.replacements[i].catalog);
        EXPECT_EQ(r.reference, c.referencia);
        EXPECT_EQ(r.width, c.replacements[i].width);
        EXPECT_EQ(r.depth, c.replacements[i].depth);
        EXPECT_EQ(r.height, c.replacements[i].height);
    }
    EXPECT_EQ(host.scene->refreshes, 0);
    EXPECT_EQ(host.appli->ended, 1);
}

INSTANTIATE_TEST_SUITE_P(Cases, Casos, testing::ValuesIn(kCases), casos::PorNombre());

TEST(WizardSetUp, InicEspForgetsMarkerChildren) {
    fake::Platform platform;
    fake::Factory host;
    env::Env env{platform, host};
    wizard::Wizard wizard{env};
    common::modVariables().hayHijoEsp.fill(true);
    wizard.InicEsp();
    for (bool b : common::modVariables().hayHijoEsp) EXPECT_FALSE(b);
    EXPECT_EQ(common::modVariables().codigosMO.size(), 8u);
}

}  // namespace
