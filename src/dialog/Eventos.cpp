#include "dialog/Eventos.h"

#include <algorithm>
#include <type_traits>

#include "dialog/Registro.h"
#include "vb/Conversions.h"
#include "vb/Errors.h"

namespace dialog {

namespace {

constexpr int kErrorElemento = 340;  // "Control array element doesn't exist"

struct Encontrado {
    Control* control = nullptr;
    TextBox* caja = nullptr;
};

Encontrado busca(frmEspEnc& form, const String& name, int index) {
    Encontrado e;
    bool existe = false;
    paraCadaControl(form, [&](const char16_t* n, auto* c, size_t count) {
        if (existe || name != n) return;
        existe = true;
        if (index < 0 || static_cast<size_t>(index) >= count) return;
        e.control = &c[index];
        if constexpr (std::is_same_v<std::remove_cv_t<std::remove_pointer_t<decltype(c)>>, TextBox>)
            e.caja = &c[index];
    });
    if (!existe)
        throw vb::RuntimeError(vb::err::kNoSuchMember,
                               u"The dialog has no control named '" + name + u"'");
    if (!e.control)
        throw vb::RuntimeError(kErrorElemento, u"Control array element '" + name + u"(" +
                                                   vb::numberText(index) + u")' doesn't exist");
    return e;
}

bool es(const String& name, const char16_t* n) {
    return name == n;
}

}  // namespace

Control& controlDe(frmEspEnc& form, const String& name, int index) {
    return *busca(form, name, index).control;
}

TextBox& cajaDe(frmEspEnc& form, const String& name, int index) {
    Encontrado e = busca(form, name, index);
    if (!e.caja)
        throw vb::RuntimeError(vb::err::kNoSuchMember,
                               u"The control '" + name + u"' is not a text box");
    return *e.caja;
}

bool alcanzable(frmEspEnc& form, const String& name, int index) {
    const Control& c = controlDe(form, name, index);
    if (!c.Enabled || !c.Visible) return false;
    if (es(name, u"TextMedEsp") || es(name, u"EtiqMedEsp"))
        return form.PanelMedEsp.Enabled && form.PanelMedEsp.Visible;
    return true;
}

void disparaMouseDown(frmEspEnc& f, const String& name, int i) {
    controlDe(f, name, i);
    if (es(name, u"PictureEsp") || es(name, u"EtiqCuadEsp")) f.PictureEsp_MouseDown(i);
    if (es(name, u"ImageDiagonal")) f.ImageDiagonal_MouseDown(i);
    if (es(name, u"BotonCnlMed") || es(name, u"EtiqCnlMed")) f.BotonCnlMed_MouseDown();
    if (es(name, u"BotonCnlValores") || es(name, u"EtiqCnlValores")) f.BotonCnlValores_MouseDown();
}

void disparaMouseUp(frmEspEnc& f, const String& name, int i) {
    controlDe(f, name, i);
    if (es(name, u"PictureEsp") || es(name, u"EtiqCuadEsp")) f.PictureEsp_MouseUp(i);
    if (es(name, u"ImageDiagonal")) f.ImageDiagonal_MouseUp(i);
    if (es(name, u"BotonCnlMed") || es(name, u"EtiqCnlMed")) f.BotonCnlMed_MouseUp();
    if (es(name, u"BotonCnlValores") || es(name, u"EtiqCnlValores")) f.BotonCnlValores_MouseUp();
    if (es(name, u"listComponentes")) f.listComponentes_MouseUp(i);
}

void disparaClick(frmEspEnc& f, const String& name, int i) {
    controlDe(f, name, i);
    if (es(name, u"PictureEsp") || es(name, u"EtiqCuadEsp")) f.PictureEsp_Click(i);
    if (es(name, u"ImageDiagonal")) f.ImageDiagonal_Click(i);
    if (es(name, u"BotonCnlMed") || es(name, u"EtiqCnlMed")) f.BotonCnlMed_Click();
    if (es(name, u"BotonCnlValores") || es(name, u"EtiqCnlValores")) f.BotonCnlValores_Click();
    if (es(name, u"btnAcptComp")) f.btnAcptComp_Click();
    if (es(name, u"btnCnlComps")) f.btnCnlComps_Click();
}

void disparaGotFocus(frmEspEnc& f, const String& name, int i) {
    cajaDe(f, name, i);
    if (es(name, u"TextMedEsp")) f.TextMedEsp_GotFocus(i);
    if (es(name, u"TextValores")) f.TextValores_GotFocus(i);
    if (es(name, u"TxtValoresEnc")) f.TxtValoresEnc_GotFocus(i);
}

void disparaKeyPress(frmEspEnc& f, const String& name, int i, int& keyAscii) {
    cajaDe(f, name, i);
    if (es(name, u"TextMedEsp")) f.TextMedEsp_KeyPress(i, keyAscii);
    if (es(name, u"TextValores")) f.TextValores_KeyPress(i, keyAscii);
    if (es(name, u"TxtValoresEnc")) f.TxtValoresEnc_KeyPress(i, keyAscii);
}

void disparaLostFocus(frmEspEnc& f, const String& name, int i) {
    cajaDe(f, name, i);
    if (es(name, u"TextMedEsp")) f.TextMedEsp_LostFocus(i);
}

void aplicaTecla(TextBox& caja, int keyAscii) {
    int32_t largo = static_cast<int32_t>(caja.Text.size());
    int32_t inicio = std::clamp(caja.SelStart, 0, largo);
    int32_t cuenta = std::clamp(caja.SelLength, 0, largo - inicio);
    if (keyAscii == 8 && cuenta == 0) {
        if (inicio == 0) return;
        --inicio;
        cuenta = 1;
    }
    caja.Text.erase(inicio, cuenta);
    if (keyAscii != 8)
        caja.Text.insert(caja.Text.begin() + inicio++, static_cast<char16_t>(keyAscii));
    caja.SelStart = inicio;
    caja.SelLength = 0;
}

void pegaTexto(frmEspEnc& f, const String& name, int i, const String& texto) {
    TextBox& caja = cajaDe(f, name, i);
    disparaGotFocus(f, name, i);
    caja.Text = texto;
    caja.SelStart = static_cast<int32_t>(texto.size());
    caja.SelLength = 0;
    disparaLostFocus(f, name, i);
}

}  // namespace dialog
