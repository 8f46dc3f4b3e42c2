// The special types ("Tipos de especiales") and the measures panel.
#include <algorithm>
#include <array>
#include <vector>

#include "common/Explicacion.h"
#include "dialog/Explicaciones.h"
#include "dialog/Teclado.h"
#include "dialog/frmEspEnc.h"
#include "rules/Modelos.h"
#include "rules/Refresco.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace dialog {

using host::use;

namespace {

// Measure boxes of each special type: width 0, height 1, depth 2.
const std::array<std::vector<int>, 7> kCajasDeTipo{
    {{0}, {1}, {2}, {0, 1}, {0, 2}, {1, 2}, {0, 1, 2}}};

}  // namespace

void frmEspEnc::ofreceTipos() {
    auto& scene = use(mv_.miScene);
    String modelo = vb::CStr(scene.ObjectGetInfo(mv_.miSessionId, -2, 64));
    String referencia = vb::CStr(scene.ObjectGetInfo(mv_.miSessionId, -2, 8));
    const auto fila = rules::filaDelModelo(mv_.modelos, mv_.numModelos, modelo, true);
    const size_t r = static_cast<size_t>(fila.value_or(0));
    const bool hallado = fila.has_value();
    for (int k = 0; k < 7; ++k) {
        bool excepcion = rules::estaEnLista(referencia, mv_.excepciones[k]);
        bool permiso = r < mv_.permisosModelo.size() &&
                       static_cast<size_t>(k) < mv_.permisosModelo[r].size() &&
                       mv_.permisosModelo[r][k];
        bool ofrecido = (mv_.idsHijosEsp[k] != -2 && permiso) || excepcion;
        common::explica([&] {
            return explicaTipo({k, ofrecido, excepcion, permiso, mv_.idsHijosEsp[k], modelo,
                                referencia, static_cast<int>(r), hallado});
        });
        PictureEsp[k].Enabled = ofrecido;
        PictureEsp[k].Visible = ofrecido;
        EtiqCuadEsp[k].Enabled = ofrecido;
    }
}

void frmEspEnc::seleccionInicial() {
    PanelMedEsp.Enabled = true;
    std::array<bool, 3> d{};
    for (int m = 0; m < 3; ++m) {
        d[m] = !vb::equalText(medidasActuales[m], medidasDefecto[m]);
        TextMedEsp[m].Enabled = d[m];
        EtiqMedEsp[m].Enabled = d[m];
    }
    auto existe = [&](int k) { return mv_.idsHijosEsp[k] != -2; };
    auto marca = [&](int k) {
        FormaSelect[k].Visible = true;
        EtiqCuadEsp[k].ForeColor = kRojo;
    };
    auto marcaSiExiste = [&](int k) {
        if (existe(k)) marca(k);
    };
    const bool W = d[0], H = d[1], P = d[2];
    if (W && H && P) {
        if (existe(6))
            marca(6);
        else if (existe(5))
            marca(5), marca(0);
        else if (existe(4))
            marca(4), marca(1);
        else if (existe(3))
            marca(3), marca(2);
        else
            marca(0), marca(1), marca(2);
    } else if (W && H) {
        if (existe(3))
            marca(3);
        else
            marcaSiExiste(0), marcaSiExiste(1);
    } else if (W && P) {
        if (existe(4))
            marca(4);
        else
            marca(0), marca(2);
    } else if (H && P) {
        if (existe(5))
            marca(5);
        else
            marca(1), marca(2);
    } else if (W) {
        marcaSiExiste(0);
    } else if (H) {
        marcaSiExiste(1);
    } else if (P) {
        marcaSiExiste(2);
    }
}

void frmEspEnc::ocultaTiposFijos() {
    auto& scene = use(mv_.miScene);
    bool b15 = vb::CBool(scene.ObjectGetInfo(mv_.miSessionId, -2, 15));
    bool b16 = vb::CBool(scene.ObjectGetInfo(mv_.miSessionId, -2, 16));
    bool b17 = vb::CBool(scene.ObjectGetInfo(mv_.miSessionId, -2, 17));
    // Whether each measure (width, height, depth) can vary.
    const std::array<bool, 3> variable{b15, b17, b16};
    for (int k = 0; k < mv_.numTiposEsp && k < 7; ++k) {
        if (mv_.idsHijosEsp[k] == -2) continue;
        bool todas = true;
        for (int m : kCajasDeTipo[k]) {
            if (todas && !variable[m]) {
                static const int32_t kInformacion[3] = {15, 17, 16};
                common::explica([&] { return explicaTipoOculto(k, m, kInformacion[m]); });
            }
            todas = todas && variable[m];
        }
        if (!todas) {
            PictureEsp[k].Visible = false;
            EtiqCuadEsp[k].Enabled = false;
        }
    }
}

bool frmEspEnc::estaSeleccionado(int k) const {
    return FormaSelect[k].Visible;
}

void frmEspEnc::marcaTipo(int k, bool on) {
    FormaSelect[k].Visible = on;
    for (int m : kCajasDeTipo[k]) {
        TextMedEsp[m].Enabled = on;
        EtiqMedEsp[m].Enabled = on;
    }
    EtiqCuadEsp[k].ForeColor = on ? kRojo : kAzulMarino;
}

void frmEspEnc::alternaTipo(int k) {
    marcaTipo(k, !estaSeleccionado(k));
}

void frmEspEnc::cambiaCombinado(int a, int b, int c) {
    if (estaSeleccionado(b)) {
        marcaTipo(a, true);
        marcaTipo(b, false);
    } else if (estaSeleccionado(c)) {
        marcaTipo(b, true);
        marcaTipo(c, false);
    }
}

void frmEspEnc::alternaCombinado(int b, int s) {
    if (estaSeleccionado(b)) {
        marcaTipo(b, false);
        return;
    }
    marcaTipo(b, true);
    if (estaSeleccionado(s)) marcaTipo(s, false);
}

void frmEspEnc::PictureEsp_Click(int k) {
    PanelMedEsp.Enabled = true;
    EtiqCuadEsp[k].ForeColor = kRojo;
    auto existe = [&](int t) { return mv_.idsHijosEsp[t] != -2; };
    auto combinado = [&](int a, int b, int c) {
        if (existe(b)) cambiaCombinado(a, b, c);
    };
    auto alterna = [&](int b, int s) {
        if (existe(s)) alternaCombinado(b, s);
    };
    switch (k) {
        case 0:
            combinado(0, 3, 1), combinado(0, 4, 2), combinado(0, 6, 5), alternaTipo(0);
            break;
        case 1:
            combinado(1, 3, 0), combinado(1, 5, 2), combinado(1, 6, 4), alternaTipo(1);
            break;
        case 2:
            combinado(2, 4, 0), combinado(2, 5, 1), combinado(2, 6, 3), alternaTipo(2);
            break;
        case 3:
            combinado(3, 6, 2), alterna(3, 0), alterna(3, 1), alternaTipo(3);
            break;
        case 4:
            combinado(4, 6, 1), alterna(4, 0), alterna(4, 2), alternaTipo(4);
            break;
        case 5:
            combinado(5, 6, 0), alterna(5, 1), alterna(5, 2), alternaTipo(5);
            break;
        default:
            break;
    }
}

void frmEspEnc::BotonCnlMed_Click() {
    for (int m = 0; m < 3; ++m) {
        TextMedEsp[m].Enabled = false;
        TextMedEsp[m].Text = medidasDefecto[m];
        EtiqMedEsp[m].Enabled = false;
        EtiqCuadEsp[m].ForeColor = kAzulMarino;
        FormaSelect[m].Visible = false;
    }
    for (int k = 3; k < 7; ++k) {
        FormaSelect[k].Visible = false;
        EtiqCuadEsp[k].ForeColor = kAzulMarino;
    }
}

void frmEspEnc::TextMedEsp_GotFocus(int m) {
    seleccionaTodo(TextMedEsp[m]);
}

void frmEspEnc::TextMedEsp_KeyPress(int, int& keyAscii) {
    if (teclaDeMedida(keyAscii)) return;
    keyAscii = 0;
    plataforma().beep();
}

void frmEspEnc::TextMedEsp_LostFocus(int m) {
    cambiaEstadoMedida(m);
}

}  // namespace dialog
