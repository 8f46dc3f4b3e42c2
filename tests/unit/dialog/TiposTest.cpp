// The special types: the click table with its combined types, the initial selection, and the
// types hidden by the object's fixed dimensions.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "Banco.h"
#include "vb/Errors.h"

namespace {

struct ClickCase {
    std::string markers;      // types whose marker child exists, as digits
    std::vector<int> clicks;  // types clicked, in order
    std::string selected;     // types selected afterwards, as digits
    std::string boxes;        // measure boxes enabled afterwards (0 width, 1 height, 2 depth)
};

std::string seleccionados(dialog::frmEspEnc& f) {
    std::string s;
    for (int k = 0; k < 7; ++k)
        if (f.estaSeleccionado(k)) s += char('0' + k);
    return s;
}

std::string cajas(dialog::frmEspEnc& f) {
    std::string s;
    for (int m = 0; m < 3; ++m)
        if (f.TextMedEsp[m].Enabled) s += char('0' + m);
    return s;
}

TEST(ClickTipos, FollowsTheCombinedTypeRules) {
    const ClickCase cases[] = {
        {"0123456", {0}, "0", "0"},
        {"0123456", {0, 1}, "13", "1"},  // ANCHO_ALTO selected, ANCHO unselected
        {"0123456", {0, 0}, "", ""},
        {"0123456", {6}, "", ""},            // only recolours its caption
        {"0123456", {0, 1, 2}, "256", "2"},  // pairs step up into the triple
        {"012", {0, 1}, "01", "01"},         // no combined marker: plain toggles
        {"0123456", {3}, "3", "01"},
        {"0123456", {0, 3}, "3", "01"},  // the pair replaces its single type
        {"0123456", {3, 3}, "", ""},
        {"0123456", {3, 0}, "", ""},  // a part clicked inside its pair
        {"0123456", {4, 2}, "", ""},
        {"0123456", {5, 1}, "", ""},
        {"0123456", {3, 2}, "26", "2"},  // pair + rest -> triple
        {"0123456", {4, 1}, "16", "1"},
        {"0123456", {5, 0}, "06", "0"},
        {"", {0}, "0", "0"},
    };
    for (const auto& c : cases) {
        banco::Banco banco;
        auto& mv = common::modVariables();
        for (char d : c.markers) mv.idsHijosEsp[d - '0'] = 100 + (d - '0');
        for (int m = 0; m < 3; ++m) banco.f().TextMedEsp[m].Enabled = false;
        for (int k : c.clicks) banco.f().PictureEsp_Click(k);
        std::string trace = "markers " + c.markers + " clicks";
        for (int k : c.clicks) trace += " " + std::to_string(k);
        SCOPED_TRACE(trace);
        EXPECT_EQ(seleccionados(banco.f()), c.selected);
        EXPECT_EQ(cajas(banco.f()), c.boxes);
        for (int k = 0; k < 7; ++k) {
            if (banco.f().estaSeleccionado(k)) {
                EXPECT_EQ(banco.f().EtiqCuadEsp[k].ForeColor, dialog::kRojo) << "type " << k;
            }
        }
        if (c.clicks.back() == 6) {
            EXPECT_EQ(banco.f().EtiqCuadEsp[6].ForeColor, dialog::kRojo);
        }
    }
}

struct InicialCase {
    std::string markers;
    std::vector<bool> distinto;  // width, height, depth differ from the catalogue
    std::string selected;
};

TEST(SeleccionInicial, PicksTheTypesOfTheChangedMeasures) {
    const InicialCase cases[] = {
        {"0123456", {true, false, false}, "0"},
        {"123456", {true, false, false}, ""},
        {"0123456", {true, true, false}, "3"},
        {"01", {true, true, false}, "01"},
        {"1", {true, true, false}, "1"},
        {"", {true, false, true}, "02"},  // markers of the singles not consulted
        {"", {false, true, true}, "12"},
        {"0123456", {true, true, true}, "6"},
        {"012345", {true, true, true}, "05"},
        {"01234", {true, true, true}, "14"},
        {"0123", {true, true, true}, "23"},
        {"", {true, true, true}, "012"},
        {"0123456", {false, false, false}, ""},
    };
    for (const auto& c : cases) {
        banco::Banco banco;
        auto& f = banco.f();
        for (char d : c.markers) common::modVariables().idsHijosEsp[d - '0'] = 50;
        f.medidasDefecto = {u"600", u"720", u"560", u""};
        f.medidasActuales = {c.distinto[0] ? u"650" : u"600", c.distinto[1] ? u"700" : u"720",
                             c.distinto[2] ? u"500" : u"560", u""};
        f.seleccionInicial();
        SCOPED_TRACE("markers " + c.markers);
        EXPECT_EQ(seleccionados(f), c.selected);
        for (int m = 0; m < 3; ++m) EXPECT_EQ(f.TextMedEsp[m].Enabled, c.distinto[m]);
    }
}

// The object's flags 15 (width), 16 (depth), 17 (height) read as VB reads booleans: a type
// whose dimensions are not all variable is hidden; a flag that is no boolean raises 13.
TEST(OcultaTiposFijos, HidesByTheObjectsFlagsAndRefusesOtherTexts) {
    struct {
        const char16_t *b15, *b16, *b17;
        std::string visible;  // types left visible, as digits; "!" for a type mismatch
    } const cases[] = {
        {u"1", u"1", u"1", "0123456"}, {u"-1", u"0", u"True", "013"}, {u"false", u"2.5", u"0", "2"},
        {u"0", u"0", u"0", ""},        {u"1", u"", u"1", "!"},        {u"1", u"1", u"S\u00ED", "!"},
    };
    for (const auto& c : cases) {
        banco::Banco banco;
        auto& f = banco.f();
        auto& info = banco.objeto(100).info;
        info[15] = c.b15, info[16] = c.b16, info[17] = c.b17;
        common::modVariables().numTiposEsp = 7;
        common::modVariables().idsHijosEsp.fill(50);
        SCOPED_TRACE(c.visible);
        try {
            f.ocultaTiposFijos();
        } catch (const vb::RuntimeError& e) {
            EXPECT_EQ(c.visible, "!");
            EXPECT_EQ(e.number(), 13);
            continue;
        }
        std::string visible;
        for (int k = 0; k < 7; ++k)
            if (f.PictureEsp[k].Visible) visible += char('0' + k);
        EXPECT_EQ(visible, c.visible);
    }
}

}  // namespace
