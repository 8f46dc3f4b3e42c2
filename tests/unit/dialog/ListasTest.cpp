// The components lists: parent and child rules, the change-state string, and the selection
// write-back.
#include <gtest/gtest.h>

#include <string>

#include "Banco.h"
#include "vb/Strings.h"

namespace {

using dialog::ListEntry;

// List 0 with entries: P1, ==>C1 (info 59 "1"), ==>C2 (info 59 "0"), P2.
void llenaLista(banco::Banco& banco, bool p1, bool c1, bool c2, bool p2) {
    auto& f = banco.f();
    f.listComponentes[0].entries = {{u"P1", p1}, {u"==>C1", c1}, {u"  ==>C2", c2}, {u"P2", p2}};
    f.idsListas[0] = {10, 11, 12, 13, 0};
    banco.objeto(11).info[59] = u"1";
    banco.objeto(12).info[59] = u"0";
    f.fijaEstadoInicial();
}

std::string estado(const dialog::ListBox& l) {
    std::string s;
    for (const ListEntry& e : l.entries) s += e.selected ? '1' : '0';
    return s;
}

void pulsa(dialog::frmEspEnc& f, int lista, int entrada) {
    auto& e = f.listComponentes[lista].entries[entrada];
    e.selected = !e.selected;
    f.listComponentes[lista].ListIndex = entrada;
    f.listComponentes_MouseUp(lista);
}

struct ListaCase {
    std::string inicial;  // P1 C1 C2 P2
    int clic;
    std::string despues;
    std::string estadoCambios;
};

TEST(ListComponentes, ParentAndChildRules) {
    const ListaCase cases[] = {
        {"0000", 0, "1100", "1000000"},  // parent: only children chosen when saved
        {"1110", 0, "0000", "0110000"},  // clearing a parent clears all its children
        {"0000", 2, "1010", "0010000"},  // a child selects its parent
        {"1110", 1, "1010", "1010000"},  // clearing a child leaves the parent
        {"0000", 3, "0001", "0001000"},  // last entry: only its own flag
        {"0010", 0, "1110", "1010000"},  // a selected child stays
    };
    for (const auto& c : cases) {
        banco::Banco banco;
        llenaLista(banco, c.inicial[0] == '1', c.inicial[1] == '1', c.inicial[2] == '1',
                   c.inicial[3] == '1');
        pulsa(banco.f(), 0, c.clic);
        SCOPED_TRACE(c.inicial + " click " + std::to_string(c.clic));
        EXPECT_EQ(estado(banco.f().listComponentes[0]), c.despues);
        EXPECT_EQ(vb::toUtf8(banco.f().estadoCambios), c.estadoCambios);
    }
}

TEST(ListComponentes, EmptyListAndDoubleClickLeaveTheStateAsItWas) {
    banco::Banco banco;
    llenaLista(banco, false, false, false, false);
    auto& f = banco.f();
    f.listComponentes[1].ListIndex = 0;
    f.listComponentes_MouseUp(1);
    EXPECT_EQ(f.estadoCambios, u"0000000");
    pulsa(f, 0, 3);
    pulsa(f, 0, 3);
    EXPECT_EQ(f.estadoCambios, f.estadoInicial);
}

TEST(EstadoCambios, CountsEntriesOfEarlierListsAndTheThreeMeasures) {
    banco::Banco banco;
    auto& f = banco.f();
    f.listComponentes[0].entries = {{u"A", true}};
    f.listComponentes[2].entries = {{u"B", false}, {u"C", true}};
    f.listComponentes[4].entries = {{u"R", false}};
    f.medidasActuales = {u"600", u"720", u"560", u""};
    f.TextMedEsp[0].Text = u"600";
    f.TextMedEsp[1].Text = u"700";
    f.TextMedEsp[2].Text = u"560";
    f.fijaEstadoInicial();
    EXPECT_EQ(f.estadoCambios, u"1010010");
    f.cambiaEstado(2, 1);
    f.cambiaEstado(4, 0);
    EXPECT_EQ(f.estadoCambios, u"1001010");
    f.TextMedEsp[1].Text = u"720";
    f.cambiaEstadoMedida(1);
    f.TextMedEsp[2].Text = u"1";
    f.cambiaEstadoMedida(2);
    EXPECT_EQ(f.estadoCambios, u"1001001");
    EXPECT_EQ(f.estadoInicial, u"1010010");
}

TEST(GuardaSeleccion, WritesOnlyWhatDiffers) {
    banco::Banco banco;
    auto& f = banco.f();
    f.listComponentes[0].entries = {{u"A", true}, {u"B", false}, {u"C", true}};
    f.idsListas[0] = {1, 2, 3, 0};
    banco.objeto(1).info[59] = u"1";
    banco.objeto(2).info[59] = u"1";
    banco.objeto(3).info[59] = u"";
    f.guardaSeleccion();
    EXPECT_EQ(banco.writes(), (std::vector<std::string>{"2.59=0", "3.59=1"}));
}

}  // namespace
