// The recess panel ("Encastres de pilar"): the title and value rows of each recess, laid out in
// the scrolling content as the tree walk finds the recesses. The content height is 16-bit; when
// the rows stop fitting, the panel is laid out again after the walk with titles first (see
// PanelEncastres.h) and one message says what is shown.
#include "dialog/frmEspEnc.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace dialog {

namespace {

constexpr int32_t kHuecoEncastre = 100;  // before each recess's title, and after its rows

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

}  // namespace

AltosPanel frmEspEnc::altosPanel() const {
    return {panel_.valorDiseno.Top, kHuecoEncastre, EtiqTituloEnc[0].Height,
            panel_.cajaDiseno.Height, kHuecoEncastre};
}

void frmEspEnc::creaFilasEncastre(const String& texto, int16_t i, const String& script) {
    if (i < 0) return;
    if (i > 0) {
        Label& titulo = nuevoElemento(EtiqTituloEnc, i);
        titulo.Tag.clear();
        titulo.Caption = texto;
    }
    leeEncastre(texto, i, script);
    const AltosPanel altos = altosPanel();
    const int32_t desde = i == 0 ? altos.inicio : altoContenido;
    if (!panel_.lleno &&
        desde + altoDeEncastre(altos, panel_.encastres[i].medida, i, true) <= kAltoMaximo)
        colocaEncastre(i, true);
    else
        panel_.lleno = true;
}

// What recess i shows: its title and, when it has data, one row per parameter of its record.
void frmEspEnc::leeEncastre(const String& texto, int16_t i, const String& script) {
    if (panel_.encastres.size() <= static_cast<size_t>(i)) panel_.encastres.resize(i + 1);
    EncastreEnPanel& e = panel_.encastres[i];
    e.texto = texto;
    if (static_cast<size_t>(i) >= encastres.size() ||
        vb::equalText(encastres[i].titulo, kNoDisponible))
        return;
    e.medida.conDatos = true;
    const std::vector<String>& datos = encastres[i].datos;
    for (size_t d = 1; d < datos.size(); ++d) {  // datos(0) is the picture
        if (datos[d].empty()) continue;
        FilaEncastre fila;
        fila.etiqueta = etiquetaParametro(datos[d]);
        fila.rango = rangoParametro(datos[d], script);
        e.filas.push_back(fila);
    }
    e.medida.filas = e.filas.size();
}

// Places recess i's title at the end of the content and, with its values, its rows below it.
void frmEspEnc::colocaEncastre(size_t i, bool conValores) {
    const EncastreEnPanel& e = panel_.encastres[i];
    Label& titulo = EtiqTituloEnc[i];
    if (i == 0) {
        altoContenido = static_cast<int16_t>(altosPanel().inicio);  // title 0 keeps its place
    } else {
        // With its values a recess keeps the gap its record adds (cargaDatosEncastre) before
        // its title; a title alone follows the previous one directly.
        if (conValores) altoContenido = static_cast<int16_t>(altoContenido + kHuecoEncastre);
        titulo.Top = altoContenido;
        altoContenido = static_cast<int16_t>(altoContenido + titulo.Height);
        picin.Height = altoContenido;
        sizing();
    }
    titulo.Visible = true;
    titulo.Caption = e.texto;
    if (!conValores || !e.medida.conDatos) return;
    titulo.Tag.clear();
    for (const FilaEncastre& fila : e.filas) {
        const int16_t r = filasEncastre;
        if (r > 0) {
            Label& etiqueta = nuevoElemento(EtiqValorEnc, r);
            TextBox& caja = nuevoElemento(TxtValoresEnc, r);
            etiqueta.Top = caja.Top = altoContenido;
            caja.TabIndex = TxtValoresEnc[0].TabIndex + r;
        }
        EtiqValorEnc[r].Caption = fila.etiqueta;
        EtiqValorEnc[r].Visible = TxtValoresEnc[r].Visible = true;
        TxtValoresEnc[r].Text = fila.rango;
        TxtValoresEnc[r].Tag = fila.rango;  // the row's maximum
        altoContenido = static_cast<int16_t>(altoContenido + TxtValoresEnc[r].Height);
        EtiqTituloEnc[i].Tag += vb::numberText(r) + u"-";
        filasEncastre = static_cast<int16_t>(r + 1);
        picin.Height = altoContenido;
        sizing();
    }
    String& tag = EtiqTituloEnc[i].Tag;
    if (!tag.empty() && tag.back() == u'-') tag.pop_back();
    altoContenido = static_cast<int16_t>(altoContenido + kHuecoEncastre);
    sizing();
}

// After the walk, when something did not fit: the panel from its designed state again, the
// first recesses with their values and every later one with its title only.
void frmEspEnc::completaPanel() {
    if (!panel_.lleno) return;
    const AltosPanel altos = altosPanel();
    std::vector<EncastrePanel> medidas;
    for (const EncastreEnPanel& e : panel_.encastres) medidas.push_back(e.medida);
    const size_t conValores = encastresConValores(altos, medidas);
    EtiqValorEnc.assign(1, panel_.valorDiseno);
    TxtValoresEnc.assign(1, panel_.cajaDiseno);
    filasEncastre = 0;
    for (Label& titulo : EtiqTituloEnc) {
        titulo.Visible = false;
        titulo.Tag.clear();
    }
    size_t colocados = 0;
    for (size_t i = 0; i < medidas.size(); ++i) {
        const bool valores = i < conValores;
        const int32_t desde = i == 0 ? altos.inicio : altoContenido;
        if (desde + altoDeEncastre(altos, medidas[i], i, valores) > kAltoMaximo) break;
        colocaEncastre(i, valores);
        ++colocados;
    }
    const ListBox& lista = listComponentes[4];
    for (size_t i = 0; i < conValores && i < lista.entries.size(); ++i)
        habilitaFilasEncastre(static_cast<int16_t>(i), lista.entries[i].selected);
    avisaPanelLleno(conValores, colocados);
}

// The one message of a full panel, naming the first recess shown without its values or, when
// not even the titles fit, the first one left out of the panel.
void frmEspEnc::avisaPanelLleno(size_t conValores, size_t colocados) {
    const auto& e = panel_.encastres;
    if (colocados == e.size() && conValores >= e.size()) return;  // everything fitted after all
    const String prefijo = u"Hay demasiados encastres de pilar: ";
    const String sinValores = u"se muestran sin sus valores, que no caben en el panel";
    const String texto =
        colocados == e.size()
            ? prefijo + u"a partir de \u00AB" + e[conValores].texto + u"\u00BB " + sinValores + u"."
            : prefijo + sinValores + u", y a partir de \u00AB" + e[colocados].texto +
                  u"\u00BB solo en la lista.";
    mensaje(texto, kCaptionAtencion, platform::MsgIcon::Information);
}

}  // namespace dialog
