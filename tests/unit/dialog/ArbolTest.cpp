// The component tree walk: indentation by depth, listing rules, and host answers that repeat
// an ancestor.
#include <gtest/gtest.h>

#include "FakeDialogo.h"
#include "vb/Errors.h"

namespace {

fakedlg::Objeto componente(const char16_t* code, const char16_t* text,
                           std::vector<int32_t> hijos = {}) {
    fakedlg::Objeto o;
    o.info[4] = code;
    o.info[5] = text;
    o.info[58] = u"1";
    for (int32_t flag : {15, 16, 17}) o.info[flag] = u"0";
    o.hijos = std::move(hijos);
    return o;
}

TEST(RecorreHijos, IndentsByDepthAndListsByCode) {
    fakedlg::Banco banco;
    auto& m = banco.mundo.objetos;
    m[-2].hijos = {1, 2, 3, -1};
    m[1] = componente(u"XX_CS_01", u"Lado", {11});
    m[11] = componente(u"FR_X", u"Hijo", {111});
    m[111] = componente(u"FR_Y", u"Nieto");
    m[2] = componente(u"ABC", u"Nada");
    m[3] = componente(u"EQ_1", u"Balda");
    m[3].info[58] = u"0";
    bool tieneHijos = false;
    auto& f = banco.f();
    f.recorreHijos(-2, tieneHijos, f.numListas, f.nivelArbol);
    ASSERT_EQ(f.listComponentes[0].entries.size(), 1u);
    EXPECT_EQ(f.listComponentes[0].entries[0].text, u"Lado");
    ASSERT_EQ(f.listComponentes[1].entries.size(), 2u);
    EXPECT_EQ(f.listComponentes[1].entries[0].text, u"==>Hijo");
    EXPECT_EQ(f.listComponentes[1].entries[1].text, u"  ==>Nieto");
    EXPECT_TRUE(f.listComponentes[2].entries.empty());
    EXPECT_EQ(f.idsListas[1], (std::vector<int32_t>{11, 111, 0}));
}

TEST(RecorreHijos, AHostAnswerThatRepeatsAnAncestorIsNotWalkedAgain) {
    fakedlg::Banco banco;
    auto& m = banco.mundo.objetos;
    m[-2].hijos = {1};
    m[1] = componente(u"O_1", u"Uno", {2});
    m[2] = componente(u"O_2", u"Dos", {1, 2});  // its parent and itself
    bool tieneHijos = false;
    auto& f = banco.f();
    f.recorreHijos(-2, tieneHijos, f.numListas, f.nivelArbol);
    EXPECT_EQ(f.listComponentes[3].entries.size(), 4u);  // each listed once more, no deeper
}

TEST(RecorreHijos, SharedSubtreesAreWalkedOnce) {
    fakedlg::Banco banco;
    auto& m = banco.mundo.objetos;
    // Every level names the next one twice: walked once per object, not 2^n times.
    m[-2].hijos = {1};
    for (int32_t id = 1; id <= 40; ++id) m[id] = componente(u"O_x", u"x", {id + 1, id + 1});
    m[41] = componente(u"O_x", u"x");
    bool tieneHijos = false;
    auto& f = banco.f();
    f.recorreHijos(-2, tieneHijos, f.numListas, f.nivelArbol);
    EXPECT_EQ(f.listComponentes[3].entries.size(), 81u);  // 1 + 2 per level below
}

// A chain of `niveles` components below the edited object, ids 1.. down; only the last one is
// listed ("Otros").
fakedlg::Banco& cadena(fakedlg::Banco& banco, int32_t niveles) {
    auto& m = banco.mundo.objetos;
    m[-2].hijos = {1};
    for (int32_t id = 1; id < niveles; ++id) m[id] = componente(u"Z", u"z", {id + 1});
    m[niveles] = componente(u"O_FONDO", u"Al fondo");
    return banco;
}

TEST(RecorreHijos, AChainDeeperThanAnyStackIsWalkedToItsEnd) {
    fakedlg::Banco banco;
    auto& f = cadena(banco, 30000).f();
    bool tieneHijos = false;
    f.recorreHijos(-2, tieneHijos, f.numListas, f.nivelArbol);
    ASSERT_EQ(f.listComponentes[3].entries.size(), 1u);
    EXPECT_EQ(f.listComponentes[3].entries[0].text, u"        ==>Al fondo");  // the last prefix
    EXPECT_EQ(f.idsListas[3][0], 30000);
    EXPECT_EQ(f.nivelArbol, 0);  // the flag stays false: every finished level goes back up
}

TEST(RecorreHijos, TheSixteenBitDepthCounterOverflowsAsVbDoes) {
    fakedlg::Banco banco;
    auto& f = cadena(banco, 32769).f();
    bool tieneHijos = false;
    try {
        f.recorreHijos(-2, tieneHijos, f.numListas, f.nivelArbol);
        FAIL() << "no error";
    } catch (const vb::RuntimeError& e) {
        EXPECT_EQ(e.number(), 6);
    }
    EXPECT_EQ(f.nivelArbol, 32767);
}

TEST(ClasificaHijo, FlagsThatAreNotBooleansAreATypeMismatch) {
    for (const char16_t* flag : {u"", u"s\u00ED", u" 1x"}) {
        fakedlg::Banco banco;
        auto& m = banco.mundo.objetos;
        m[-2].hijos = {1};
        m[1] = componente(u"CS_1", u"Lado");
        m[1].info[16] = flag;
        auto& f = banco.f();
        bool tieneHijos = false;
        try {
            f.recorreHijos(-2, tieneHijos, f.numListas, f.nivelArbol);
            ADD_FAILURE() << "no error";
        } catch (const vb::RuntimeError& e) {
            EXPECT_EQ(e.number(), 13);
        }
    }
}

}  // namespace
