// What an accepted dialog writes for the measures and the special-type markers.
#include "dialog/frmEspEnc.h"
#include "vb/Strings.h"

namespace dialog {

using host::use;

// Width (12), depth (13) and height (14) from the boxes, in that order.
void frmEspEnc::escribeMedidas() {
    auto& scene = use(mv_.miScene);
    scene.ObjectSetInfo(mv_.miSessionId, -2, TextMedEsp[0].Text, 12);
    scene.ObjectSetInfo(mv_.miSessionId, -2, TextMedEsp[2].Text, 13);
    scene.ObjectSetInfo(mv_.miSessionId, -2, TextMedEsp[1].Text, 14);
}

// Information 59 of type t's marker child; skipped when the object has none, so the edited
// object's own information is never written here.
void frmEspEnc::escribeTipo(int t, const String& valor) {
    int32_t id = mv_.idsHijosEsp[t];
    if (id == -2) return;
    use(mv_.miScene).ObjectSetInfo(mv_.miSessionId, id, valor, 59);
}

void frmEspEnc::limpiaTipos() {
    for (int t = 0; t < 7; ++t) escribeTipo(t, u"0");
}

void frmEspEnc::escribeMedidasYTipos() {
    const bool W = TextMedEsp[0].Enabled, H = TextMedEsp[1].Enabled, D = TextMedEsp[2].Enabled;
    auto existe = [&](int t) { return mv_.idsHijosEsp[t] != -2; };
    auto otraVez = [&](int m, int32_t codigo) {
        use(mv_.miScene).ObjectSetInfo(mv_.miSessionId, -2, TextMedEsp[m].Text, codigo);
    };
    if (W || H || D) escribeMedidas();
    if (W && H && D) {
        if (existe(6))
            escribeTipo(6, u"1");
        else
            escribeTipo(0, u"1"), escribeTipo(2, u"1"), escribeTipo(1, u"1");
    } else if (W && H) {
        if (existe(3))
            escribeTipo(3, u"1"), escribeTipo(0, u"0"), escribeTipo(1, u"0");
        else
            escribeTipo(0, u"1"), escribeTipo(1, u"1");
    } else if (W && D) {
        if (existe(4))
            escribeTipo(4, u"1"), escribeTipo(0, u"0"), escribeTipo(2, u"0");
        else
            escribeTipo(0, u"1"), escribeTipo(2, u"1");
    } else if (H && D) {
        if (existe(5))
            escribeTipo(5, u"1");
        else
            escribeTipo(1, u"1"), escribeTipo(2, u"1");
    } else if (W) {
        limpiaTipos(), otraVez(0, 12), escribeTipo(0, u"1");
    } else if (H) {
        limpiaTipos(), otraVez(1, 14), escribeTipo(1, u"1");
    } else if (D) {
        limpiaTipos(), otraVez(2, 13), escribeTipo(2, u"1");
    } else {
        bool cambia = false;
        for (int m = 0; m < 3; ++m)
            cambia = cambia || !vb::equalText(TextMedEsp[m].Text, medidasActuales[m]);
        if (cambia) limpiaTipos(), escribeMedidas();
    }
}

}  // namespace dialog
