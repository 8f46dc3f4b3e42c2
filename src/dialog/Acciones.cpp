#include "dialog/Acciones.h"

#include <algorithm>

#include "dialog/Eventos.h"
#include "dialog/Instantanea.h"
#include "vb/Conversions.h"
#include "vb/Errors.h"

namespace dialog {

namespace {

constexpr int kValorNoValido = 380;  // "Invalid property value"

void escribe(frmEspEnc& form, const UserAction& a) {
    TextBox& caja = cajaDe(form, a.control, a.index);
    if (!alcanzable(form, a.control, a.index)) return;
    disparaGotFocus(form, a.control, a.index);
    for (char16_t c : a.text) {
        int key = c;
        disparaKeyPress(form, a.control, a.index, key);
        if (key != 0) aplicaTecla(caja, key);
    }
    disparaLostFocus(form, a.control, a.index);
}

void pulsaLista(frmEspEnc& form, const UserAction& a) {
    ListBox& lista = static_cast<ListBox&>(controlDe(form, u"listComponentes", a.list));
    if (a.entry < 0 || a.entry >= lista.ListCount())
        throw vb::RuntimeError(kValorNoValido, u"Invalid property value: listComponentes(" +
                                                   vb::numberText(a.list) + u") has no entry " +
                                                   vb::numberText(a.entry));
    if (!alcanzable(form, u"listComponentes", a.list)) return;
    lista.entries[a.entry].selected = !lista.entries[a.entry].selected;
    lista.ListIndex = a.entry;
    form.listComponentes_MouseUp(a.list);
}

void desplaza(frmEspEnc& form, const UserAction& a) {
    ScrollBar& barra = form.barraScrolEnc;
    if (!barra.Enabled || !barra.Visible) return;
    int32_t valor = std::clamp(a.value, 0, std::max(barra.Max, 0));
    if (valor == barra.Value) return;
    barra.Value = valor;
    form.barraScrolEnc_Change();
}

}  // namespace

void realizaAccion(frmEspEnc& form, const UserAction& a, DialogObserver& observer) {
    using Kind = UserAction::Kind;
    switch (a.kind) {
        case Kind::Snapshot:
            observer.snapshot(instantanea(form));
            return;
        case Kind::ListClick:
            pulsaLista(form, a);
            return;
        case Kind::Scroll:
            desplaza(form, a);
            return;
        case Kind::Type:
            escribe(form, a);
            return;
        default:
            break;
    }
    if (!alcanzable(form, a.control, a.index)) return;  // a user cannot reach it
    switch (a.kind) {
        case Kind::Click:
            disparaMouseDown(form, a.control, a.index);
            disparaMouseUp(form, a.control, a.index);
            if (!form.descargado()) disparaClick(form, a.control, a.index);
            return;
        case Kind::MouseDown:
            disparaMouseDown(form, a.control, a.index);
            return;
        case Kind::MouseUp:
            disparaMouseUp(form, a.control, a.index);
            return;
        case Kind::Paste:
            pegaTexto(form, a.control, a.index, a.text);
            return;
        default:
            return;
    }
}

}  // namespace dialog
