// Pillar recesses (enabling the value rows of the scrolling panel) and the diagonal cut.
#include "dialog/Teclado.h"
#include "dialog/frmEspEnc.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace dialog {

using host::use;
using vb::CStr;

namespace {

const String kCrLf = u"\r\n";

// The row indices a title's Tag names ("3-4-5"); pieces that name no row are left out.
std::vector<size_t> filasDeTag(const String& tag, size_t numFilas) {
    std::vector<size_t> filas;
    if (tag.empty()) return filas;
    for (const String& pieza : vb::Split(tag, u"-")) {
        try {
            int32_t r = vb::CLng(vb::Variant(pieza));
            if (r >= 0 && static_cast<size_t>(r) < numFilas) filas.push_back(r);
        } catch (const vb::RuntimeError&) {
        }
    }
    return filas;
}

}  // namespace

void frmEspEnc::habilitaFilasEncastre(int16_t i, bool enabled) {
    if (i < 0 || static_cast<size_t>(i) >= EtiqTituloEnc.size()) return;
    for (size_t r : filasDeTag(EtiqTituloEnc[i].Tag, TxtValoresEnc.size())) {
        TxtValoresEnc[r].Enabled = enabled;
        EtiqValorEnc[r].Enabled = TxtValoresEnc[r].Enabled;
    }
}

void frmEspEnc::EstadoTriangulacionT(bool enabled) {
    for (size_t k = 0; k + 2 <= TextValores.size(); ++k) {
        TextValores[k].Enabled = enabled;
        EtiqValores[k].Enabled = enabled;
    }
}

void frmEspEnc::EstadoTriangulacionD(bool enabled) {
    TextValores[3].Enabled = enabled;
    EtiqValores[3].Enabled = enabled;
}

void frmEspEnc::ImageDiagonal_Click(int index) {
    FormaDiagonal[index].Visible = true;
    EstadoTriangulacionT(index == 0);
    EstadoTriangulacionD(index != 0);
    FormaDiagonal[index == 0 ? 1 : 0].Visible = false;
    BotonCnlValores.Enabled = true;
    EtiqCnlValores.Enabled = true;
    use(mv_.miScene).ObjectSetInfo(mv_.miSessionId, idDiagonal, u"1", 59);
}

void frmEspEnc::describeDiagonal(const String& mode, const String& a, int32_t id, const String& b,
                                 const String& c) {
    auto& scene = use(mv_.miScene);
    if (!vb::equalText(CStr(scene.ObjectGetInfo(mv_.miSessionId, id, 59)), u"1")) return;
    String desc = CStr(scene.ObjectGetInfo(mv_.miSessionId, id, 49));
    String base = desc;
    int p = vb::InStr(desc, textoEncastre1 + u".-", vb::Compare::Text);
    if (p == 0) p = vb::InStr(desc, textoEncastre2 + u".-", vb::Compare::Text);
    if (p > 0) base = vb::Left(desc, p - 1);
    if (int q = vb::InStr(base, kCrLf, vb::Compare::Text); q > 0) base = vb::Left(base, q - 1);
    String nueva = base + kCrLf + mode + u".-" + kCrLf;
    if (!vb::equalText(mode, textoEncastre1))
        nueva += u"\u00C1ngulo: " + a;
    else
        nueva += u"L1: " + a + u" - L2: " + b + u" - L3: " + c;
    scene.ObjectSetInfo(mv_.miSessionId, id, nueva, 49);
}

void frmEspEnc::TxtValoresEnc_GotFocus(int i) {
    seleccionaTodo(TxtValoresEnc[i]);
}

void frmEspEnc::TxtValoresEnc_KeyPress(int, int& keyAscii) {
    if (teclaDeValor(keyAscii)) return;
    keyAscii = 0;
    plataforma().beep();
}

}  // namespace dialog
