// Permission matrix (" ALL", double blanks, missing and short lines, unknown codes), door
// models, exception lists and the marker scan, against a catalogue and a scene of the
// simulated host.
#include <gtest/gtest.h>

#include "../OpenCall.h"
#include "rules/Especiales.h"
#include "rules/Modelos.h"
#include "rules/Refresco.h"

namespace {

using vb::String;

const String kRuta = u"C:\\Cat\\a.cat";

// A catalogue of five door models: two hidden from the rules (a name in "@", no script).
sim::World mundo(sim::CatalogData*& catalogo) {
    sim::World world;
    catalogo = &world.addCatalog(kRuta, u"ESP");
    for (const auto& [code, name, script] :
         {std::tuple{u"M01", u"TIBER", u"s"}, std::tuple{u"M02", u"MONZA", u"s"},
          std::tuple{u"M03", u"@OCULTO", u"s"}, std::tuple{u"M04", u"SINSCRIPT", u""},
          std::tuple{u"M05", u"MIAMI", u"s"}})
        catalogo->tables[8].add({code, u"", {{1, code}, {3, name}, {4, script}}, u""});
    world.scene.add(100);
    return world;
}

class Catalogo : public testing::Test {
  protected:
    void SetUp() override {
        rules::InicEsp();
        rules::GenModEsp(mv.miSessionId, catalog());
    }
    host::Catalog& catalog() { return host::use(mv.miCatalog); }
    void regla(const char16_t* code, const char16_t* text) {
        cat->tables[2].add({code, u"", {{2, text}}, u""});
    }
    std::vector<bool> columna(int k) {
        std::vector<bool> c;
        for (int m = 0; m < mv.numModelos; ++m) c.push_back(rules::permiso(mv, m, k));
        return c;
    }
    sim::CatalogData* cat = nullptr;
    tests::OpenCall call{mundo(cat), kRuta};
    common::ModVariables& mv = common::modVariables();
};

TEST_F(Catalogo, DoorModelsSkipHiddenAndScriptless) {
    EXPECT_EQ(mv.numModelos, 3);
    EXPECT_EQ(std::vector<String>(mv.modelos.begin(), mv.modelos.begin() + 3),
              (std::vector<String>{u"TIBER", u"MONZA", u"MIAMI"}));
}

TEST_F(Catalogo, AllRuleOnlyInTheFirstForm) {
    regla(u"MO_EA", u"xyz ALL");
    rules::InicEspMod(mv.miSessionId, catalog(), true);
    EXPECT_EQ(columna(0), (std::vector<bool>{true, true, true}));
    rules::InicEspMod(mv.miSessionId, catalog(), false);
    EXPECT_EQ(columna(0), (std::vector<bool>{false, false, false}));
}

TEST_F(Catalogo, ListsWithDoubleBlanksUnknownCodesAndShortTexts) {
    regla(u"MO_EA", u"abc M01  M05");  // empty piece between the blanks
    regla(u"MO_EAl", u"abc M99 M02");  // unknown code skipped
    regla(u"MO_EF", u"ab");            // shorter than four characters
    regla(u"MO_EAAl", u"abcM01 M02");  // first piece "M01" still a code
    for (bool reglaAll : {true, false}) {
        rules::InicEspMod(mv.miSessionId, catalog(), reglaAll);
        EXPECT_EQ(columna(0), (std::vector<bool>{true, false, true}));
        EXPECT_EQ(columna(1), (std::vector<bool>{false, true, false}));
        EXPECT_EQ(columna(2), (std::vector<bool>{false, false, false}));
        EXPECT_EQ(columna(3), (std::vector<bool>{true, true, false}));
        EXPECT_EQ(columna(6), (std::vector<bool>{false, false, false}));  // no line
    }
}

TEST_F(Catalogo, NoDoorModelLeavesAnEmptyMatrix) {
    cat->tables[8] = sim::Table{};
    rules::GenModEsp(mv.miSessionId, catalog());
    regla(u"MO_EA", u"xyz ALL");
    rules::InicEspMod(mv.miSessionId, catalog(), true);
    EXPECT_EQ(mv.numModelos, 0);
    EXPECT_TRUE(mv.permisosModelo.empty());
    EXPECT_FALSE(rules::permiso(mv, 0, 0));
}

TEST_F(Catalogo, FixedRule) {
    mv.numTiposEsp = 7;
    rules::InicEspMod2();
    EXPECT_EQ(columna(0), (std::vector<bool>{false, true, true}));
    EXPECT_EQ(columna(1), (std::vector<bool>{true, true, true}));
    EXPECT_EQ(columna(3), (std::vector<bool>{true, true, true}));
    EXPECT_EQ(columna(4), (std::vector<bool>{false, false, false}));
}

TEST_F(Catalogo, ExceptionsKeepThePreviousListWhenTheTextIsEmpty) {
    regla(u"EX_EA", u"abc R1 R2");
    regla(u"EX_EF", u"abcR1");
    rules::GenExcepciones(mv.miSessionId, catalog());
    EXPECT_EQ(*mv.excepEA(), (std::vector<String>{u"", u"R1", u"R2"}));
    EXPECT_TRUE(rules::estaEnLista(u"R2", mv.excepEA()));
    EXPECT_FALSE(rules::estaEnLista(u"r2", mv.excepEA()));
    EXPECT_FALSE(rules::estaEnLista(u"R1", mv.excepEF()));   // one piece: never searched
    EXPECT_FALSE(rules::estaEnLista(u"R1", mv.excepEAl()));  // never filled
    cat->tables[2] = sim::Table{};
    rules::GenExcepciones(mv.miSessionId, catalog());
    EXPECT_TRUE(rules::estaEnLista(u"R2", mv.excepEA()));
}

TEST_F(Catalogo, MarkerScanIgnoresCaseAndTheLaterChildWins) {
    auto& scene = call.world().scene;
    for (const auto& [id, code] : {std::pair{101, u"mueble_ea_01"}, std::pair{102, u"ESPECIAL"},
                                   std::pair{103, u"EF_1"}, std::pair{104, u"x_ef_2"}})
        scene.add(id, 100).info[4] = code;
    mv.hayHijoEsp = {};
    rules::iniciaPrefijosEsp();
    rules::buscaHijosEspDe(mv.prefijosEsp, 100);
    EXPECT_EQ(mv.idsHijosEsp[0], 101);
    EXPECT_EQ(mv.idsHijosEsp[2], 104);
    EXPECT_EQ(mv.idsHijosEsp[1], 100);
    EXPECT_TRUE(mv.hayHijoEsp[0]);
    call.object(100).children.clear();
    rules::buscaHijosEsp(mv.prefijosEsp);
    EXPECT_EQ(mv.idsHijosEsp[0], -2);
    EXPECT_TRUE(mv.hayHijoEsp[0]);  // stays true across objects
}

}  // namespace
