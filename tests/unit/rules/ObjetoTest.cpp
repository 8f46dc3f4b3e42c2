// procesaObjeto end to end on an in-memory host: restorations, collected references, the
// message by event kind and its translation, description fields, and bad measures.
#include <gtest/gtest.h>

#include "../CaseNames.h"
#include "FakeHost.h"
#include "rules/Especiales.h"
#include "rules/Modelos.h"
#include "rules/Objeto.h"
#include "rules/Refresco.h"

namespace {

using vb::String;

struct Case {
    const char* name;
    const char16_t *ancho, *alto, *fondo;
    int16_t funcion;
    std::vector<int> restored;  // information codes written back, in order
    const char16_t* concatenado;
    const char16_t* mensaje;  // nullptr: no message
};
void PrintTo(const Case& c, std::ostream* os) {
    *os << c.name;
}

const Case kCases[] = {
    {"AllThreeOnPlacement",
     u"650",
     u"760",
     u"580",
     1,
     {12, 13, 14},
     u"PREV - A1-REF",
     u"Varias\r\nRestaurado"},
    {"DepthOnlyInAttributeDialog", u"600", u"720", u"580", 2, {13}, u"PREV - A1-REF", u"Una"},
    {"HeightAndDepthOnFinish",
     u"600",
     u"700",
     u"580",
     3,
     {13, 14},
     u"PREV - A1-REF",
     u"Varias\r\nRestaurado"},
    {"SceneWideShowsNothing", u"650", u"720", u"560", 4, {12}, u"PREV - A1-REF", nullptr},
    {"RoundedValuesAreEqual", u"600.4", u"719.5", u"560", 1, {}, u"PREV", nullptr},
    {"NothingChanged", u"600", u"720", u"560", 1, {}, u"PREV", nullptr},
};

class Objeto : public testing::TestWithParam<Case> {
  protected:
    void SetUp() override {
        auto& c = *host.catalog;
        c.tables[2] = {{u"TR_9001", u"", {{9, u"Aviso"}}},
                       {u"TR_9014", u"", {{9, u"Varias"}}},
                       {u"TR_9015", u"", {{9, u"Una"}}},
                       {u"TR_9016", u"", {{9, u"Restaurado"}}}};
        c.tables[3] = {{u"", u"A1", {{3, u"600"}, {4, u"560"}, {5, u"720"}}}};
        c.tables[4] = {{u"", u"D1", {{3, u"Puerta 60"}}}};
        c.tables[8] = {{u"M01", u"", {{1, u"M01"}, {3, u"TIBER"}, {4, u"s"}}}};
        auto& s = *host.scene;
        s.objects[100].info = {{7, u"A1"}, {8, u"A1-REF"}, {64, u"TIBER"}};
        s.objects[100].children = {101, 102, 103, 104};
        s.objects[101].info[4] = u"EA_1";
        s.objects[102].info[4] = u"EAl_1";
        s.objects[103].info[4] = u"EF_1";
        s.objects[104].info = {{4, u"FRENTE_DESC"}, {7, u"D1"}};
        mv = common::ModVariables{};
        mv.miAppli = host.appli;
        mv.miScene = host.scene;
        mv.miCatalog = host.catalog;
        mv.miSessionId = 1;
        rules::iniciaPrefijosEsp();
        rules::buscaHijosEspDe(mv.prefijosEsp, 100);
        rules::InicEsp();
        rules::GenModEsp(mv.miSessionId, c);
        rules::GenExcepciones(mv.miSessionId, c);
        rules::InicEspMod(mv.miSessionId, c, true);
    }
    bool procesa(const Case& c, String& concatenar) {
        return rules::procesaObjeto(platform, actual, {c.ancho, c.alto, c.fondo}, 100, concatenar,
                                    c.funcion);
    }
    common::ModVariables& mv = common::modVariables();
    fake::Factory host;
    fake::Platform platform;
    rules::ObjetoActual actual;
};

TEST_P(Objeto, RestoresCollectsAndTells) {
    const Case& c = GetParam();
    String concatenar = u"PREV";
    EXPECT_EQ(procesa(c, concatenar), c.restored.empty());
    std::vector<fake::Write> expected;
    const std::map<int, String> catalogo = {{12, u"600"}, {13, u"560"}, {14, u"720"}};
    for (int code : c.restored) expected.push_back({100, code, catalogo.at(code)});
    expected.push_back({104, 43, u"Puerta 60"});
    expected.push_back({104, 173, u"Puerta 60"});
    EXPECT_EQ(host.scene->writes, expected);
    EXPECT_EQ(concatenar, c.concatenado);
    ASSERT_EQ(platform.messages.size(), c.mensaje ? 1u : 0u);
    if (c.mensaje) {
        EXPECT_EQ(platform.messages[0].text, c.mensaje);
        EXPECT_EQ(platform.messages[0].caption, u"Aviso");
        EXPECT_EQ(platform.messages[0].icon, platform::MsgIcon::Information);
    }
    EXPECT_EQ(actual.refObjeto, u"A1-REF");
    EXPECT_EQ(actual.modeloPuerta, u"TIBER");
}

INSTANTIATE_TEST_SUITE_P(Cases, Objeto, testing::ValuesIn(kCases), casos::PorNombre());

TEST_F(Objeto, ExceptionListAcceptsWidthAndDepth) {
    host.scene->objects[105].info[4] = u"EAF_1";
    host.scene->objects[100].children.push_back(105);
    rules::buscaHijosEspDe(mv.prefijosEsp, 100);
    host.catalog->tables[2].push_back({u"EX_EAF", u"", {{2, u"xxx A1-REF"}}});
    rules::GenExcepciones(mv.miSessionId, *host.catalog);
    String concatenar;
    EXPECT_TRUE(procesa({"", u"650", u"720", u"580", 1, {}, u"", nullptr}, concatenar));
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Objeto, MessagesAreTranslatedWhenLanguagesDiffer) {
    host.catalog->language = u"ENG";
    host.catalog->dictionary = {{u"Una", u"One"}, {u"Aviso", u"Notice"}};
    String concatenar;
    procesa({"", u"650", u"720", u"560", 2, {12}, u"", nullptr}, concatenar);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, u"One");
    EXPECT_EQ(platform.messages[0].caption, u"Notice");
}

TEST_F(Objeto, STDoorModelNotice) {
    host.scene->objects[100].info[64] = u"AQUARELA ST (5)";
    host.catalog->tables[2].push_back({u"TR_9021", u"", {{9, u"Programa ST"}}});
    String concatenar;
    procesa({"", u"600", u"720", u"560", 1, {}, u"", nullptr}, concatenar);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, u"Programa ST");
}

TEST_F(Objeto, MeasureThatIsNotANumberIsATypeMismatch) {
    String concatenar;
    try {
        procesa({"", u"abc", u"720", u"560", 1, {}, u"", nullptr}, concatenar);
        FAIL() << "no error";
    } catch (const vb::RuntimeError& e) {
        EXPECT_EQ(e.number(), 13);
    }
}

}  // namespace
