// The recess panel's 16-bit height budget: titles first, values for as many leading recesses
// as leave room for every title.
#include <gtest/gtest.h>

#include "Banco.h"
#include "dialog/PanelEncastres.h"
#include "vb/Conversions.h"

namespace {

using dialog::EncastrePanel;

// The designed panel: title 0 in place with the content at 360; 100 before each later title,
// titles 255 high, rows 285, 100 after the rows of a recess with data.
const dialog::AltosPanel kAltos{360, 100, 255, 285, 100};

std::vector<EncastrePanel> iguales(size_t n, size_t filas, bool conDatos = true) {
    return std::vector<EncastrePanel>(n, EncastrePanel{conDatos, filas});
}

TEST(EncastresConValores, KeepsValuesWhileEveryTitleStillFits) {
    struct {
        const char* caso;
        std::vector<EncastrePanel> encastres;
        size_t conValores;
    } const cases[] = {
        {"nothing", {}, 0},
        {"all fit", iguales(6, 3), 6},
        // 745 + 740 (m - 1) + 255 (62 - m) <= 32767
        {"62 with one row", iguales(62, 1), 34},
        {"62 with two rows", iguales(62, 2), 22},
        // 355 for each later recess without data, 255 for its title alone: 92 fit; with 93,
        // three of them give up the gap before their titles
        {"92 without data", iguales(92, 0, false), 92},
        {"93 without data", iguales(93, 0, false), 90},
        // 128 titles alone take 360 + 127 * 255 = 32745; one more does not fit at all
        {"128 titles", iguales(128, 1), 0},
        {"129 titles", iguales(129, 1), 0},
        // The first recess's rows alone are too many.
        {"first too tall", {EncastrePanel{true, 200}, EncastrePanel{true, 1}}, 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(dialog::encastresConValores(kAltos, c.encastres), c.conValores) << c.caso;
}

// 140 recesses without data: 128 titles fit, the rest stay in the list only, and the one
// message says so.
TEST(PanelEncastres, TitlesThatDoNotFitStayInTheListAndTheMessageSaysSo) {
    banco::Banco banco;
    for (int32_t flag : {15, 16, 17}) banco.objeto(100).info[flag] = u"1";
    for (int32_t n = 0; n < 140; ++n) {
        auto& recess = banco.objeto(1000 + n);  // any ids but the cabinet's
        recess.info = {{4, u"P_CJ"}, {5, u"R" + vb::numberText(n)}, {58, u"1"}};
        for (int32_t flag : {15, 16, 17}) recess.info[flag] = u"0";
    }
    auto& f = banco.f();
    f.Form_Load();
    ASSERT_EQ(f.listComponentes[4].entries.size(), 140u);
    ASSERT_EQ(f.EtiqTituloEnc.size(), 140u);
    EXPECT_TRUE(f.EtiqTituloEnc[127].Visible);
    EXPECT_EQ(f.EtiqTituloEnc[127].Top, 360 + 126 * 255);
    EXPECT_FALSE(f.EtiqTituloEnc[128].Visible);
    EXPECT_EQ(f.altoContenido, 360 + 127 * 255);
    EXPECT_EQ(f.picin.Height, f.altoContenido);
    EXPECT_EQ(banco.mensajes(),
              (std::vector<std::string>{
                  "Hay demasiados encastres de pilar: se muestran sin sus valores, que no caben "
                  "en el panel, y a partir de \u00ABR128\u00BB solo en la lista."}));
}

}  // namespace
