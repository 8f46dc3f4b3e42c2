// The components lists: selection with its parent/child rules, the change-state strings, the
// selection write-back, and the diagonal values of the components area.
#include "dialog/Teclado.h"
#include "dialog/frmEspEnc.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace dialog {

using host::use;
using vb::CStr;

namespace {

bool esHijo(const ListEntry& e) {
    return vb::InStr(e.text, u"==>", vb::Compare::Text) > 0;
}

}  // namespace

void frmEspEnc::listComponentes_MouseUp(int index) {
    ListBox& lista = listComponentes[index];
    if (lista.ListCount() == 0) return;
    int cur = lista.ListIndex;
    if (cur < 0 || cur >= lista.ListCount()) return;  // no current entry
    cambiaEstado(static_cast<int16_t>(index), static_cast<int16_t>(cur));
    if (index == 4) {
        const RegistroEncastre* r =
            static_cast<size_t>(cur) < encastres.size() ? &encastres[cur] : nullptr;
        if (!r || vb::equalText(r->titulo, kNoDisponible) || r->datos.empty()) {
            ImagePreview.Picture.clear();
            EtiqEncNoDisp.Visible = true;
        } else {
            ImagePreview.Picture = r->datos[0];
            ImagePreview.Visible = true;
            EtiqEncNoDisp.Visible = false;
            habilitaFilasEncastre(static_cast<int16_t>(cur), lista.entries[cur].selected);
        }
    }
    const bool sel = lista.entries[cur].selected;
    if (esHijo(lista.entries[cur])) {
        for (int j = cur; j >= 0; --j) {
            if (!esHijo(lista.entries[j])) {
                lista.entries[j].selected = true;
                break;
            }
        }
        return;
    }
    const auto& ids = idsListas[index];
    for (int i = cur + 1;
         i < lista.ListCount() && esHijo(lista.entries[i]) && static_cast<size_t>(i) < ids.size();
         ++i) {
        if (!sel) {
            lista.entries[i].selected = false;
            continue;
        }
        bool elegido =
            vb::equalText(CStr(use(mv_.miScene).ObjectGetInfo(mv_.miSessionId, ids[i], 59)), u"1");
        if (elegido && !lista.entries[i].selected) lista.entries[i].selected = true;
    }
}

void frmEspEnc::cambiaEstado(int16_t lista, int16_t entrada) {
    int p = entrada;
    for (int k = 0; k < lista; ++k) p += listComponentes[k].ListCount();
    if (p < 0 || static_cast<size_t>(p) >= estadoCambios.size()) return;
    estadoCambios[p] = estadoCambios[p] == u'0' ? u'1' : u'0';
}

void frmEspEnc::cambiaEstadoMedida(int k) {
    if (estadoCambios.size() < 3) return;
    size_t p = estadoCambios.size() - 3 + k;
    estadoCambios[p] = vb::equalText(TextMedEsp[k].Text, medidasActuales[k]) ? u'0' : u'1';
}

void frmEspEnc::fijaEstadoInicial() {
    estadoCambios.clear();
    for (const ListBox& lista : listComponentes)
        for (const ListEntry& e : lista.entries) estadoCambios += e.selected ? u'1' : u'0';
    for (int k = 0; k < 3; ++k)
        estadoCambios += vb::equalText(TextMedEsp[k].Text, medidasActuales[k]) ? u'0' : u'1';
    estadoInicial = estadoCambios;
}

void frmEspEnc::guardaSeleccion() {
    for (int k = 0; k < 5; ++k)
        for (int i = 0; i < listComponentes[k].ListCount(); ++i)
            guardaComponente(idsListas[k], k, i);
}

void frmEspEnc::guardaComponente(std::vector<int32_t>& ids, int lista, int entrada) {
    if (entrada < 0 || static_cast<size_t>(entrada) >= ids.size()) return;
    auto& scene = use(mv_.miScene);
    int32_t id = ids[entrada];
    String actual = CStr(scene.ObjectGetInfo(mv_.miSessionId, id, 59));
    bool elegido = listComponentes[lista].entries[entrada].selected;
    if (elegido && !vb::equalText(actual, u"1")) scene.ObjectSetInfo(mv_.miSessionId, id, u"1", 59);
    if (!elegido && !vb::equalText(actual, u"0"))
        scene.ObjectSetInfo(mv_.miSessionId, id, u"0", 59);
}

void frmEspEnc::cargaDiagonal() {
    if (idDiagonal < 1) return;
    auto& scene = use(mv_.miScene);
    if (!vb::equalText(CStr(scene.ObjectGetInfo(mv_.miSessionId, idDiagonal, 59)), u"1")) return;
    String desc = CStr(scene.ObjectGetInfo(mv_.miSessionId, idDiagonal, 49));
    auto busca = [&](const String& rotulo) {
        return rotulo.empty() ? 0 : vb::InStr(desc, rotulo, vb::Compare::Text);
    };
    auto sinPrefijo = [&](const String& parte, int k) {
        return vb::Trim(vb::Mid(parte, vb::Len(EtiqValores[k].Caption) + 1));
    };
    if (int p = busca(textoEncastre1); p > 0) {
        auto partes = vb::Split(vb::Mid(desc, p + vb::Len(textoEncastre1) + 4), u" - ");
        for (int k = 0; k < 3; ++k) {
            TextValores[k].Text =
                static_cast<size_t>(k) < partes.size() ? sinPrefijo(partes[k], k) : String();
            EtiqValores[k].Enabled = true;
            TextValores[k].Enabled = true;
        }
        FormaDiagonal[0].Visible = true;
        return;
    }
    if (int p = busca(textoEncastre2); p > 0) {
        TextValores[3].Text = sinPrefijo(vb::Mid(desc, p + vb::Len(textoEncastre2) + 4), 3);
        EtiqValores[3].Enabled = true;
        FormaDiagonal[1].Visible = true;
        TextValores[3].Enabled = true;
    }
}

void frmEspEnc::BotonCnlValores_Click() {
    EstadoTriangulacionD(false);
    EstadoTriangulacionT(false);
    for (Shape& forma : FormaDiagonal) forma.Visible = false;
    use(mv_.miScene).ObjectSetInfo(mv_.miSessionId, idDiagonal, u"0", 59);
}

void frmEspEnc::TextValores_GotFocus(int i) {
    seleccionaTodo(TextValores[i]);
}

void frmEspEnc::TextValores_KeyPress(int, int& keyAscii) {
    if (teclaDeValor(keyAscii)) return;
    keyAscii = 0;
    plataforma().beep();
}

void frmEspEnc::btnCnlComps_Click() {
    Unload();
}

}  // namespace dialog
