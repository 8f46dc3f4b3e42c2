// Permission matrix (" ALL", double blanks, missing and short lines, unknown codes), door
// models, exception lists and the marker scan, against an in-memory catalogue and scene.
#include <gtest/gtest.h>

#include "FakeHost.h"
#include "rules/Especiales.h"
#include "rules/Modelos.h"
#include "rules/Refresco.h"

namespace {

using vb::String;

class Catalogo : public testing::Test {
  protected:
    void SetUp() override {
        mv = common::ModVariables{};
        auto& t8 = host.catalog->tables[8];
        t8 = {{u"M01", u"", {{1, u"M01"}, {3, u"TIBER"}, {4, u"s"}}},
              {u"M02", u"", {{1, u"M02"}, {3, u"MONZA"}, {4, u"s"}}},
              {u"M03", u"", {{1, u"M03"}, {3, u"@OCULTO"}, {4, u"s"}}},
              {u"M04", u"", {{1, u"M04"}, {3, u"SINSCRIPT"}, {4, u""}}},
              {u"M05", u"", {{1, u"M05"}, {3, u"MIAMI"}, {4, u"s"}}}};
        rules::InicEsp();
        rules::GenModEsp(session, *host.catalog);
    }
    void regla(const char16_t* code, const char16_t* text) {
        host.catalog->tables[2].push_back({code, u"", {{2, text}}});
    }
    std::vector<bool> columna(int k) {
        std::vector<bool> c;
        for (int m = 0; m < mv.numModelos; ++m) c.push_back(rules::permiso(mv, m, k));
        return c;
    }
    common::ModVariables& mv = common::modVariables();
    fake::Factory host;
    int32_t session = 1;
};

TEST_F(Catalogo, DoorModelsSkipHiddenAndScriptless) {
    EXPECT_EQ(mv.numModelos, 3);
    EXPECT_EQ(std::vector<String>(mv.modelos.begin(), mv.modelos.begin() + 3),
              (std::vector<String>{u"TIBER", u"MONZA", u"MIAMI"}));
}

TEST_F(Catalogo, AllRuleOnlyInTheFirstForm) {
    regla(u"MO_EA", u"xyz ALL");
    rules::InicEspMod(session, *host.catalog, true);
    EXPECT_EQ(columna(0), (std::vector<bool>{true, true, true}));
    rules::InicEspMod(session, *host.catalog, false);
    EXPECT_EQ(columna(0), (std::vector<bool>{false, false, false}));
}

TEST_F(Catalogo, ListsWithDoubleBlanksUnknownCodesAndShortTexts) {
    regla(u"MO_EA", u"abc M01  M05");  // empty piece between the blanks
    regla(u"MO_EAl", u"abc M99 M02");  // unknown code skipped
    regla(u"MO_EF", u"ab");            // shorter than four characters
    regla(u"MO_EAAl", u"abcM01 M02");  // first piece "M01" still a code
    for (bool reglaAll : {true, false}) {
        rules::InicEspMod(session, *host.catalog, reglaAll);
        EXPECT_EQ(columna(0), (std::vector<bool>{true, false, true}));
        EXPECT_EQ(columna(1), (std::vector<bool>{false, true, false}));
        EXPECT_EQ(columna(2), (std::vector<bool>{false, false, false}));
        EXPECT_EQ(columna(3), (std::vector<bool>{true, true, false}));
        EXPECT_EQ(columna(6), (std::vector<bool>{false, false, false}));  // no line
    }
}

TEST_F(Catalogo, NoDoorModelLeavesAnEmptyMatrix) {
    host.catalog->tables[8].clear();
    rules::GenModEsp(session, *host.catalog);
    regla(u"MO_EA", u"xyz ALL");
    rules::InicEspMod(session, *host.catalog, true);
    EXPECT_EQ(mv.numModelos, 0);
    EXPECT_TRUE(mv.permisosModelo.empty());
    EXPECT_FALSE(rules::permiso(mv, 0, 0));
}

// Every model looks its codes up in table 8 in list order, up to the first that names it;
// the second form also reads the permission line once per model.
TEST_F(Catalogo, HostAskedForEveryModelsCodes) {
    regla(u"MO_EA", u"abc M01 M02");   // TIBER: "", M01; MONZA and MIAMI: "", M01, M02
    regla(u"MO_EAl", u"abc M01 M02");  // five kinds without a line
    struct Caso {
        bool reglaAll;
        int rankFromCode, lineInfo;
    } casos[] = {{true, 2 * (1 + 2 + 3 + 3) + 5, 2 * (1 + 1 + 2 + 2)},
                 {false, 2 * (3 + 2 + 3 + 3) + 5 * 3, 2 * (3 + 1 + 2 + 2)}};
    for (const auto& caso : casos) {
        host.calls = {};
        rules::InicEspMod(session, *host.catalog, caso.reglaAll);
        EXPECT_EQ(host.calls.byMember["TableGetLineRankFromCode"], caso.rankFromCode);
        EXPECT_EQ(host.calls.byMember["TableGetLineInfo"], caso.lineInfo);
        EXPECT_EQ(columna(0), (std::vector<bool>{true, true, false}));
    }
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
    rules::GenExcepciones(session, *host.catalog);
    EXPECT_EQ(*mv.excepEA(), (std::vector<String>{u"", u"R1", u"R2"}));
    EXPECT_TRUE(rules::estaEnLista(u"R2", mv.excepEA()));
    EXPECT_FALSE(rules::estaEnLista(u"r2", mv.excepEA()));
    EXPECT_FALSE(rules::estaEnLista(u"R1", mv.excepEF()));   // one piece: never searched
    EXPECT_FALSE(rules::estaEnLista(u"R1", mv.excepEAl()));  // never filled
    host.catalog->tables[2].clear();
    rules::GenExcepciones(session, *host.catalog);
    EXPECT_TRUE(rules::estaEnLista(u"R2", mv.excepEA()));
}

TEST_F(Catalogo, MarkerScanIgnoresCaseAndTheLaterChildWins) {
    auto& scene = *host.scene;
    scene.objects[100].children = {101, 102, 103, 104};
    scene.objects[101].info[4] = u"mueble_ea_01";
    scene.objects[102].info[4] = u"ESPECIAL";
    scene.objects[103].info[4] = u"EF_1";
    scene.objects[104].info[4] = u"x_ef_2";
    mv.miScene = host.scene;
    mv.miSessionId = 1;
    mv.hayHijoEsp = {};
    rules::iniciaPrefijosEsp();
    rules::buscaHijosEspDe(mv.prefijosEsp, 100);
    EXPECT_EQ(mv.idsHijosEsp[0], 101);
    EXPECT_EQ(mv.idsHijosEsp[2], 104);
    EXPECT_EQ(mv.idsHijosEsp[1], 100);
    EXPECT_TRUE(mv.hayHijoEsp[0]);
    scene.objects[100].children.clear();
    rules::buscaHijosEsp(mv.prefijosEsp);
    EXPECT_EQ(mv.idsHijosEsp[0], -2);
    EXPECT_TRUE(mv.hayHijoEsp[0]);  // stays true across objects
}

}  // namespace
