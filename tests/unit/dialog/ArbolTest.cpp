// The component tree walk: lists by code and indentation by depth, and host answers that are
// unusual: children that repeat an ancestor or share a subtree, chains deeper than any stack, a
// depth past 16 bits.
#include <gtest/gtest.h>

#include "Banco.h"
#include "vb/Errors.h"

namespace {

// Component `id` under `padre`, listed and without limit checks; its code decides its list.
sim::SceneObject& componente(banco::Banco& banco, int32_t id, int32_t padre,
                             const char16_t* code = u"O_x", const char16_t* texto = u"x") {
    auto& o = banco.objeto(id, padre);
    o.info = {{4, code}, {5, texto}, {58, u"1"}, {15, u"0"}, {16, u"0"}, {17, u"0"}};
    return o;
}

void recorre(dialog::frmEspEnc& f) {
    bool tieneHijos = false;
    f.recorreHijos(-2, tieneHijos, f.numListas, f.nivelArbol);
}

// The list is chosen by the code (anywhere in it), a child is indented by its depth, an object
// without a listed code or with 58 = "0" is not listed, and an empty child position is skipped.
TEST(RecorreHijos, IndentsByDepthAndListsByCode) {
    banco::Banco banco;
    componente(banco, 1, 100, u"XX_CS_01", u"Lado");
    componente(banco, 11, 1, u"FR_X", u"Hijo");
    componente(banco, 111, 11, u"FR_Y", u"Nieto");
    componente(banco, 2, 100, u"ABC", u"Nada");
    componente(banco, 3, 100, u"EQ_1", u"Balda").info[58] = u"0";
    banco.world().scene.addEmptyChild(100);
    auto& f = banco.f();
    recorre(f);
    ASSERT_EQ(f.listComponentes[0].entries.size(), 1u);
    EXPECT_EQ(f.listComponentes[0].entries[0].text, u"Lado");
    ASSERT_EQ(f.listComponentes[1].entries.size(), 2u);
    EXPECT_EQ(f.listComponentes[1].entries[0].text, u"==>Hijo");
    EXPECT_EQ(f.listComponentes[1].entries[1].text, u"  ==>Nieto");
    EXPECT_TRUE(f.listComponentes[2].entries.empty());
    EXPECT_EQ(f.idsListas[1], (std::vector<int32_t>{11, 111, 0}));
}

TEST(RecorreHijos, AHostAnswerThatRepeatsAnAncestorIsNotWalkedAgain) {
    banco::Banco banco;
    componente(banco, 1, 100);
    componente(banco, 2, 1).children.push_back(1);  // its parent,
    banco.objeto(2).children.push_back(2);          // and itself
    recorre(banco.f());
    EXPECT_EQ(banco.f().listComponentes[3].entries.size(), 4u);  // each listed once more, no deeper
}

TEST(RecorreHijos, SharedSubtreesAreWalkedOnce) {
    banco::Banco banco;
    // Every level names the next one twice: walked once per object, not 2^n times.
    for (int32_t id = 1; id <= 41; ++id) componente(banco, id, id == 1 ? 100 : id - 1);
    for (int32_t id = 1; id <= 40; ++id) banco.objeto(id).children.push_back(id + 1);
    recorre(banco.f());
    EXPECT_EQ(banco.f().listComponentes[3].entries.size(), 81u);  // 1 + 2 per level below
}

// A chain of `niveles` components below the cabinet, ids kCadena + 1.. down; only the last one
// is listed ("Otros").
constexpr int32_t kCadena = 100000;

dialog::frmEspEnc& cadena(banco::Banco& banco, int32_t niveles) {
    for (int32_t n = 1; n < niveles; ++n)
        componente(banco, kCadena + n, n == 1 ? 100 : kCadena + n - 1, u"Z");
    componente(banco, kCadena + niveles, kCadena + niveles - 1, u"O_FONDO").info[5] = u"Al fondo";
    return banco.f();
}

TEST(RecorreHijos, AChainDeeperThanAnyStackIsWalkedToItsEnd) {
    banco::Banco banco;
    auto& f = cadena(banco, 30000);
    recorre(f);
    ASSERT_EQ(f.listComponentes[3].entries.size(), 1u);
    EXPECT_EQ(f.listComponentes[3].entries[0].text, u"        ==>Al fondo");  // the last prefix
    EXPECT_EQ(f.idsListas[3][0], kCadena + 30000);
    EXPECT_EQ(f.nivelArbol, 0);  // the flag stays false: every finished level goes back up
}

TEST(RecorreHijos, TheSixteenBitDepthCounterOverflowsAsVbDoes) {
    banco::Banco banco;
    auto& f = cadena(banco, 32769);
    try {
        recorre(f);
        FAIL() << "no error";
    } catch (const vb::RuntimeError& e) {
        EXPECT_EQ(e.number(), 6);
    }
    EXPECT_EQ(f.nivelArbol, 32767);
}

}  // namespace
