// The two decision tables of procesaDimension, row by row: which exception list is searched and
// which kind of the door model's permissions decides.
#include <gtest/gtest.h>

#include <set>

#include "../CaseNames.h"
#include "rules/Dimension.h"

namespace {

using common::ModVariables;
using vb::String;

constexpr int32_t kObjeto = 500;
constexpr int kNinguna = -1;
constexpr int kSiempre = -1;

struct Row {
    const char* name;
    int32_t dimension;
    bool ancho, fondo, alto;  // which dimensions differ
    std::set<int> marcados;   // kinds whose marker child is another object
    bool hayHijoAlto;
    int lista;  // exception list searched, or kNinguna
    int kind;   // kind of the matrix that decides, or kSiempre
};
void PrintTo(const Row& c, std::ostream* os) {
    *os << c.name;
}

const Row kRows[] = {
    {"W_depthToo_EAF", 12, true, true, false, {4}, false, 4, 4},
    {"W_heightToo_EAl", 12, true, false, true, {3}, false, 1, 3},
    {"W_depthMarkerIsObject_fallsToHeight", 12, true, true, true, {3}, false, 1, 3},
    {"W_only_EA", 12, true, false, false, {0}, false, 0, 0},
    {"W_objectCarriesMarker", 12, true, false, false, {}, false, kNinguna, kSiempre},
    {"W_depthToo_butObject", 12, true, true, false, {}, false, kNinguna, kSiempre},
    {"D_widthToo_EAF", 13, true, true, false, {4}, false, 4, 4},
    {"D_heightToo_EAFlist_kind3", 13, false, true, true, {5}, false, 4, 3},
    {"D_only_EF", 13, false, true, false, {2}, false, 2, 2},
    {"D_objectCarriesMarker", 13, false, true, false, {}, false, kNinguna, kSiempre},
    {"D_heightMarkerIsObject", 13, false, true, true, {2}, false, 2, 2},
    {"H_widthToo_EAl_kind3", 14, true, false, true, {3}, false, 1, 3},
    {"H_depthToo_EAF_kind3", 14, false, true, true, {5}, false, 4, 3},
    {"H_only_withHeightChild_EA", 14, false, false, true, {1}, true, 0, 1},
    {"H_only_noHeightChild", 14, false, false, true, {1}, false, kNinguna, 1},
    {"H_objectCarriesMarker", 14, false, false, true, {}, false, kNinguna, kSiempre},
    {"H_heightChildSeenEarlier", 14, false, false, true, {}, true, 0, kSiempre},
    {"OtherDimension", 15, true, true, true, {0, 1, 2, 3, 4, 5, 6}, true, kNinguna, kSiempre},
};

ModVariables estado(const Row& row) {
    ModVariables mv;
    for (int k = 0; k < 8; ++k) mv.idsHijosEsp[k] = row.marcados.count(k) ? 900 + k : kObjeto;
    mv.hayHijoEsp[1] = row.hayHijoAlto;
    mv.modelos = {u"TIBER", u"MONZA"};
    mv.numModelos = 2;
    mv.permisosModelo.assign(2, std::vector<bool>(7, false));
    for (auto& lista : mv.excepciones) lista = std::vector<String>{u"", u"OTRO"};
    return mv;
}

rules::Medidas medidas(const Row& row) {
    return {row.ancho ? u"650" : u"600", u"600", row.fondo ? u"580" : u"560", u"560",
            row.alto ? u"760" : u"720",  u"720"};
}

class DecisionTables : public testing::TestWithParam<Row> {};

TEST_P(DecisionTables, ExceptionListSearched) {
    const Row& row = GetParam();
    for (int lista = 0; lista < 7; ++lista) {
        ModVariables mv = estado(row);
        mv.excepciones[lista]->push_back(u"REF-1");
        const bool esperado = lista == row.lista || row.kind == kSiempre;
        EXPECT_EQ(
            rules::procesaDimension(mv, row.dimension, medidas(row), u"REF-1", u"MONZA", kObjeto),
            esperado)
            << "list " << lista;
    }
}

TEST_P(DecisionTables, KindOfTheMatrix) {
    const Row& row = GetParam();
    for (int kind = 0; kind < 7; ++kind) {
        ModVariables mv = estado(row);
        mv.permisosModelo[1][kind] = true;  // MONZA's row
        const bool esperado = kind == row.kind || row.kind == kSiempre;
        EXPECT_EQ(
            rules::procesaDimension(mv, row.dimension, medidas(row), u"REF-1", u"MONZA", kObjeto),
            esperado)
            << "kind " << kind;
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, DecisionTables, testing::ValuesIn(kRows), casos::PorNombre());

TEST(DoorModelRow, UnknownModelUsesFirstRowAndEmptyMatrixForbids) {
    Row row{"", 12, true, false, false, {0}, false, 0, 0};
    ModVariables mv = estado(row);
    mv.permisosModelo[0][0] = true;
    EXPECT_TRUE(rules::procesaDimension(mv, 12, medidas(row), u"X", u"NO-EXISTE", kObjeto));
    EXPECT_FALSE(rules::procesaDimension(mv, 12, medidas(row), u"X", u"MONZA", kObjeto));
    mv.numModelos = 0;
    mv.permisosModelo.clear();
    EXPECT_FALSE(rules::procesaDimension(mv, 12, medidas(row), u"X", u"TIBER", kObjeto));
}

TEST(DoorModelRow, DiffersMeansDifferentText) {
    // 600.4 against 600 differs as text, so the depth row applies.
    Row row{"", 12, true, false, false, {0, 4}, false, 0, 0};
    ModVariables mv = estado(row);
    mv.permisosModelo[1][4] = true;
    rules::Medidas m{u"650", u"600", u"560.4", u"560", u"720", u"720"};
    EXPECT_TRUE(rules::procesaDimension(mv, 12, m, u"X", u"MONZA", kObjeto));
    m.y1 = u"560";
    EXPECT_FALSE(rules::procesaDimension(mv, 12, m, u"X", u"MONZA", kObjeto));
}

}  // namespace
