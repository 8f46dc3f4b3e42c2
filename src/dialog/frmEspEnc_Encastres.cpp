// Pillar recesses (the title and value rows of the scrolling panel) and the diagonal cut.
#include "dialog/Teclado.h"
#include "dialog/frmEspEnc.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace dialog {

using host::use;
using vb::CStr;

namespace {

const String kCrLf = u"\r\n";

// A new element of a control array: a copy of element 0, hidden until the program shows it.
template <typename T>
T& nuevoElemento(std::vector<T>& arreglo, size_t indice) {
    while (arreglo.size() <= indice) {
        T copia = arreglo[0];
        copia.Visible = false;
        arreglo.push_back(copia);
    }
    return arreglo[indice];
}

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

void frmEspEnc::creaFilasEncastre(const String& texto, int16_t i, const String& script) {
    if (i < 0) return;
    if (i == 0) {
        altoContenido = static_cast<int16_t>(EtiqValorEnc[0].Top);
    } else {
        Label& nuevo = nuevoElemento(EtiqTituloEnc, i);
        nuevo.Tag.clear();
        if (!cabeEnPanel(nuevo.Height)) return;
        nuevo.Top = altoContenido;
        sumaAlto(nuevo.Height);
        picin.Height = altoContenido;
        sizing();
    }
    Label& titulo = EtiqTituloEnc[i];
    titulo.Visible = true;
    titulo.Caption = texto;
    if (static_cast<size_t>(i) >= encastres.size() ||
        vb::equalText(encastres[i].titulo, kNoDisponible))
        return;
    creaFilasDe(i, script);
}

// The value rows of recess i, one per parameter spec of its record.
void frmEspEnc::creaFilasDe(int16_t i, const String& script) {
    const std::vector<String> datos = encastres[i].datos;
    for (size_t e = 0; e < datos.size(); ++e) {
        if (e == 0) {
            EtiqTituloEnc[i].Tag.clear();
            continue;
        }
        if (datos[e].empty()) continue;
        int16_t r = filasEncastre;
        if (!cabeEnPanel(TxtValoresEnc[0].Height)) break;
        if (r > 0) {
            Label& etiqueta = nuevoElemento(EtiqValorEnc, r);
            TextBox& caja = nuevoElemento(TxtValoresEnc, r);
            etiqueta.Top = caja.Top = altoContenido;
            caja.TabIndex = TxtValoresEnc[0].TabIndex + r;
        }
        EtiqValorEnc[r].Caption = etiquetaParametro(datos[e]);
        EtiqValorEnc[r].Visible = TxtValoresEnc[r].Visible = true;
        String rango = rangoParametro(datos[e], script);
        TxtValoresEnc[r].Text = rango;
        TxtValoresEnc[r].Tag = rango;  // the row's maximum
        sumaAlto(TxtValoresEnc[r].Height);
        EtiqTituloEnc[i].Tag += vb::numberText(r) + u"-";
        filasEncastre = r + 1;
        picin.Height = altoContenido;
        sizing();
    }
    String& tag = EtiqTituloEnc[i].Tag;
    if (!tag.empty() && tag.back() == u'-') tag.pop_back();
    sumaAlto(100);
    sizing();
}

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
