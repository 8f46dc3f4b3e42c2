// What the views share: control lookup by name and text box editing; and a build without a
// dialog view.
#include <gtest/gtest.h>

#include "Banco.h"
#include "dialog/Apertura.h"
#include "dialog/Eventos.h"
#include "vb/Errors.h"

namespace {

struct TeclaCase {
    const char16_t* texto;
    int selStart, selLength;
    const char16_t* teclas;
    const char16_t* esperado;
};

TEST(AplicaTecla, ReplacesTheSelectionOrEditsAtTheCaret) {
    const TeclaCase cases[] = {
        {u"720", 0, 3, u"650", u"650"},  // focus selects all: the first key replaces it
        {u"720", 3, 0, u"5", u"7205"},
        {u"720", 0, 3, u"\b", u""},
        {u"720", 3, 0, u"\b\b", u"7"},
        {u"720", 0, 0, u"\b", u"720"},  // nothing before the caret
        {u"720", 1, 1, u"9", u"790"},
        {u"720", 9, 5, u"1", u"7201"},  // a stale selection is clamped
    };
    for (const auto& c : cases) {
        dialog::TextBox caja;
        caja.Text = c.texto;
        caja.SelStart = c.selStart;
        caja.SelLength = c.selLength;
        for (const char16_t* k = c.teclas; *k; ++k) dialog::aplicaTecla(caja, *k);
        EXPECT_EQ(caja.Text, c.esperado);
    }
}

TEST(ControlDe, UnknownNamesAndIndicesAreRuntimeErrors) {
    banco::Banco banco;
    auto& f = banco.f();
    EXPECT_EQ(&dialog::controlDe(f, u"PictureEsp", 6), &f.PictureEsp[6]);
    EXPECT_EQ(&dialog::cajaDe(f, u"TxtValoresEnc", 0), &f.TxtValoresEnc[0]);
    try {
        dialog::controlDe(f, u"Nada", 0);
        FAIL();
    } catch (const vb::RuntimeError& e) {
        EXPECT_EQ(e.number(), 438);
    }
    try {
        dialog::controlDe(f, u"PictureEsp", 7);
        FAIL();
    } catch (const vb::RuntimeError& e) {
        EXPECT_EQ(e.number(), 340);
    }
    EXPECT_THROW(dialog::cajaDe(f, u"Label8", 0), vb::RuntimeError);
    EXPECT_THROW(dialog::controlDe(f, u"TxtValoresEnc", 1), vb::RuntimeError);
}

TEST(Alcanzable, DisabledHiddenOrInsideADisabledPanel) {
    banco::Banco banco;
    auto& f = banco.f();
    EXPECT_TRUE(dialog::alcanzable(f, u"TextMedEsp", 0));
    f.PanelMedEsp.Enabled = false;
    EXPECT_FALSE(dialog::alcanzable(f, u"TextMedEsp", 0));
    EXPECT_FALSE(dialog::alcanzable(f, u"FormaSelect", 0));  // hidden at design
    EXPECT_FALSE(dialog::alcanzable(f, u"TextValores", 0));  // disabled at design
}

TEST(MuestraDialogo, ABuildWithoutADialogRaises) {
    banco::Banco banco;
    EXPECT_THROW(dialog::muestraDialogo(banco.env), vb::RuntimeError);
}

}  // namespace
