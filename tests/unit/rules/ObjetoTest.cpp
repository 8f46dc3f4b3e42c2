// procesaObjeto on the simulated host where no golden goes: all three measures refused,
// measures that round to the catalogue's, an exception list for width and depth, and a measure
// that is not a number.
#include <gtest/gtest.h>

#include "../CaseNames.h"
#include "../OpenCall.h"
#include "rules/Especiales.h"
#include "rules/Modelos.h"
#include "rules/Objeto.h"
#include "rules/Refresco.h"
#include "vb/Errors.h"
#include "vb/Strings.h"

namespace {

using vb::String;

const String kRuta = u"C:\\Cat\\a.cat";

// Cabinet 100 (article A1, door model TIBER, which may change nothing) with the markers of
// width, height and depth and a description child; `reglas` adds lines to table 2.
sim::World mundo(const std::vector<sim::TableLine>& reglas = {}) {
    sim::World world;
    auto& cat = world.addCatalog(kRuta, u"ESP");
    for (const auto& [code, text] :
         {std::pair{u"TR_9001", u"Aviso"}, std::pair{u"TR_9014", u"Varias"},
          std::pair{u"TR_9015", u"Una"}, std::pair{u"TR_9016", u"Restaurado"}})
        cat.tables[2].add({code, u"", {{9, text}}, u""});
    for (const auto& line : reglas) cat.tables[2].add(line);
    cat.tables[3].add({u"", u"A1", {{3, u"600"}, {4, u"560"}, {5, u"720"}}, u""});
    cat.tables[4].add({u"", u"D1", {{3, u"Puerta 60"}}, u""});
    cat.tables[8].add({u"M01", u"", {{1, u"M01"}, {3, u"TIBER"}, {4, u"s"}}, u""});
    world.scene.add(100).info = {{7, u"A1"}, {8, u"A1-REF"}, {64, u"TIBER"}};
    int32_t id = 101;
    for (const char16_t* marker : {u"EA_1", u"EAl_1", u"EF_1", u"EAF_1"})
        world.scene.add(id++, 100).info[4] = marker;
    world.scene.add(id, 100).info = {{4, u"FRENTE_DESC"}, {7, u"D1"}};
    return world;
}

// The rules of the catalogue prepared as a placement prepares them.
void prepara() {
    auto& mv = common::modVariables();
    auto& catalog = host::use(mv.miCatalog);
    rules::iniciaPrefijosEsp();
    rules::buscaHijosEspDe(mv.prefijosEsp, 100);
    rules::InicEsp();
    rules::GenModEsp(mv.miSessionId, catalog);
    rules::GenExcepciones(mv.miSessionId, catalog);
    rules::InicEspMod(mv.miSessionId, catalog, true);
}

struct Case {
    const char* name;
    rules::MedidasObjeto medidas;
    std::vector<std::string> writes;  // what is written back, in order
    const char* concatenado;
    std::vector<std::string> messages;
};
void PrintTo(const Case& c, std::ostream* os) {
    *os << c.name;
}

const std::vector<std::string> kDescripcion = {"105.43=Puerta 60", "105.173=Puerta 60"};

const Case kCases[] = {
    {"AllThreeRefusedOnPlacement",
     {u"650", u"760", u"580"},
     {"100.12=600", "100.13=560", "100.14=720", kDescripcion[0], kDescripcion[1]},
     "PREV - A1-REF",
     {"Varias\r\nRestaurado"}},
    {"MeasuresThatRoundToTheCataloguesAreEqual",
     {u"600.4", u"719.5", u"560"},
     kDescripcion,
     "PREV",
     {}},
};

class Objeto : public testing::TestWithParam<Case> {};

TEST_P(Objeto, RestoresCollectsAndTells) {
    const Case& c = GetParam();
    tests::OpenCall call(mundo(), kRuta);
    prepara();
    rules::ObjetoActual actual;
    String concatenar = u"PREV";
    EXPECT_EQ(rules::procesaObjeto(call.platform, actual, c.medidas, 100, concatenar, 1),
              c.messages.empty());
    EXPECT_EQ(vb::toUtf8(concatenar), c.concatenado);
    std::vector<std::string> writes, messages;
    for (const auto& e : call.events()) {
        if (e["type"] == "setInfo")
            writes.push_back(e["object"].dump() + "." + e["code"].dump() + "=" +
                             e["value"].get<std::string>());
        if (e["type"] != "messageBox") continue;
        messages.push_back(e["text"]);
        EXPECT_EQ(e["caption"], "Aviso");
        EXPECT_EQ(e["icon"], "information");
    }
    EXPECT_EQ(writes, c.writes);
    EXPECT_EQ(messages, c.messages);
    EXPECT_EQ(actual.refObjeto, u"A1-REF");
    EXPECT_EQ(actual.modeloPuerta, u"TIBER");
}

INSTANTIATE_TEST_SUITE_P(Cases, Objeto, testing::ValuesIn(kCases), casos::PorNombre());

TEST(ObjetoExcepciones, AListForWidthAndDepthAcceptsBoth) {
    tests::OpenCall call(mundo({{u"EX_EAF", u"", {{2, u"xxx A1-REF"}}, u""}}), kRuta);
    prepara();
    rules::ObjetoActual actual;
    String concatenar;
    EXPECT_TRUE(
        rules::procesaObjeto(call.platform, actual, {u"650", u"720", u"580"}, 100, concatenar, 1));
    EXPECT_EQ(call.writes(), kDescripcion);
}

TEST(ObjetoMedidas, AMeasureThatIsNotANumberIsATypeMismatch) {
    tests::OpenCall call(mundo(), kRuta);
    prepara();
    rules::ObjetoActual actual;
    String concatenar;
    try {
        rules::procesaObjeto(call.platform, actual, {u"abc", u"720", u"560"}, 100, concatenar, 1);
        FAIL() << "no error";
    } catch (const vb::RuntimeError& e) {
        EXPECT_EQ(e.number(), 13);
    }
}

}  // namespace
