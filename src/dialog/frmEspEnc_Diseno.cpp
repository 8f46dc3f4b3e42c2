// The form as designed: captions, translation keys in the Tag, and the geometry (twips) that
// the recess panel's scrolling works with.
#include "dialog/frmEspEnc.h"

namespace dialog {

namespace {

constexpr int32_t kAltoEtiqueta = 255;
constexpr int32_t kAltoCaja = 285;

Label etiqueta(const String& caption, const String& tag, int32_t top,
               int32_t height = kAltoEtiqueta) {
    Label l;
    l.Caption = caption;
    l.Tag = tag;
    l.Top = top;
    l.Height = height;
    return l;
}

CommandButton boton(const String& caption, const String& tag, int32_t top, int32_t height) {
    CommandButton b;
    b.Caption = caption;
    b.Tag = tag;
    b.Top = top;
    b.Height = height;
    return b;
}

template <typename T>
T situado(int32_t top, int32_t height) {
    T c;
    c.Top = top;
    c.Height = height;
    return c;
}

void disenaComponentes(frmEspEnc& f) {
    f.Label8 = etiqueta(u"Costados", u"TR_0002", 120);
    f.Label11 = etiqueta(u"Frentes", u"TR_0003", 1680);
    f.Label9 = etiqueta(u"Equip. interior", u"TR_0004", 3240);
    f.Label13 = etiqueta(u"Otros", u"TR_0005", 4800);
    const int32_t listas[4] = {360, 1920, 3480, 5040};
    for (int k = 0; k < 4; ++k) f.listComponentes[k] = situado<ListBox>(listas[k], 1230);
    f.listComponentes[4] = situado<ListBox>(360, 1035);
    f.Label14 = etiqueta(u"Valores:", u"TR_0038", 6360);
    const String prefijos[4] = {u"L1:", u"L2:", u"L3:", u"\u00C1ngulo:"};
    for (int k = 0; k < 4; ++k) {
        f.EtiqValores[k] = etiqueta(prefijos[k], u"", 6600 + k * 360);
        f.EtiqValores[k].Enabled = false;
        f.TextValores[k] = situado<TextBox>(6600 + k * 360, kAltoCaja);
        f.TextValores[k].Enabled = false;
        f.TextValores[k].TabIndex = 10 + k;
    }
    f.BotonCnlValores = boton(u"", u"", 8100, 375);
    f.BotonCnlValores.Enabled = false;
    f.EtiqCnlValores = etiqueta(u"Cancelar valores", u"TR_0021", 8160);
    f.EtiqCnlValores.Enabled = false;
    f.EtiqCnlValores.ForeColor = kRojo;
    f.btnAcptComp = boton(u"Aceptar Componentes", u"TR_0027", 8640, 495);
    f.btnCnlComps = boton(u"Salir sin guardar", u"TR_0028", 8640, 495);
}

void disenaTipos(frmEspEnc& f) {
    f.Label3 = etiqueta(u"Tipos de especiales", u"TR_0006", 120);
    const String nombres[7] = {u"ANCHO",
                               u"ALTO",
                               u"FONDO",
                               u"ANCHO - ALTO",
                               u"ANCHO - FONDO",
                               u"ALTO - FONDO",
                               u"ANCHO - ALTO - FONDO"};
    const String claves[7] = {u"TR_0009", u"TR_0010", u"TR_0011", u"TR_0012",
                              u"TR_0013", u"TR_0014", u"TR_0015"};
    for (int k = 0; k < 7; ++k) {
        int32_t top = k < 4 ? 360 : 1800;
        f.PictureEsp[k] = situado<PictureBox>(top, 1095);
        f.PictureEspOc[k] = situado<PictureBox>(top, 1095);
        f.btnNoDisponible[k] = boton(u"No Disponible", u"TR_0024", top + 360, 375);
        f.EtiqCuadEsp[k] = etiqueta(nombres[k], claves[k], top + 1125);
        f.EtiqCuadEsp[k].ForeColor = kAzulMarino;
        f.FormaSelect[k] = situado<Shape>(top - 30, 1155);
        f.FormaSelect[k].Visible = false;
    }
    f.EtiqInfoEsp = etiqueta(
        u"Seleccione el tipo de especial a modificar haciendo clic en el dibujo correspondiente.",
        u"TR_0022", 3360, 495);
}

void disenaMedidas(frmEspEnc& f) {
    f.PanelMedEsp.Caption = u"Medidas";
    f.PanelMedEsp.Tag = u"TR_0016";
    f.PanelMedEsp.Top = 3960;
    f.PanelMedEsp.Height = 1815;
    const String nombres[3] = {u"Ancho:", u"Alto:", u"Fondo:"};
    const String claves[3] = {u"TR_0017", u"TR_0018", u"TR_0019"};
    for (int m = 0; m < 3; ++m) {
        f.EtiqMedEsp[m] = etiqueta(nombres[m], claves[m], 4320 + m * 420);
        f.TextMedEsp[m] = situado<TextBox>(4320 + m * 420, kAltoCaja);
        f.TextMedEsp[m].TabIndex = 20 + m;
    }
    f.BotonCnlMed = boton(u"", u"", 5280, 375);
    f.EtiqCnlMed = etiqueta(u"Medidas por defecto", u"TR_0044", 5340);
    f.EtiqCnlMed.ForeColor = kAzulMarino;
    f.Label12 = etiqueta(u"Vista previa:", u"TR_0037", 5880);
    f.ImagePreview = situado<PictureBox>(6120, 2295);
    f.ImagePreview.Visible = false;
    f.EtiqEncNoDisp = etiqueta(u"No Disponible", u"TR_0024", 7080);
    f.EtiqEncNoDisp.Visible = false;
}

void disenaEncastres(frmEspEnc& f) {
    f.Label2 = etiqueta(u"Encastres de pilar", u"TR_0008", 120);
    f.picout = situado<PictureBox>(1500, 3000);
    f.picout.BorderStyle = 0;
    f.picin = situado<PictureBox>(0, 3000);
    f.picin.BorderStyle = 0;
    f.barraScrolEnc = situado<ScrollBar>(1500, 3000);
    Label titulo = etiqueta(u"", u"", 60);
    titulo.Visible = false;
    f.EtiqTituloEnc = {titulo};
    Label valor = etiqueta(u"", u"", 360, kAltoCaja);
    valor.Visible = false;
    f.EtiqValorEnc = {valor};
    TextBox caja = situado<TextBox>(360, kAltoCaja);
    caja.Visible = false;
    caja.TabIndex = 40;
    f.TxtValoresEnc = {caja};
}

void disenaDiagonales(frmEspEnc& f) {
    f.Label5 = etiqueta(u"Diagonales", u"TR_0007", 4620);
    for (int i = 0; i < 2; ++i) {
        f.ImageDiagonal[i] = situado<PictureBox>(4860, 1455);
        f.FormaDiagonal[i] = situado<Shape>(4830, 1515);
        f.FormaDiagonal[i].Visible = false;
    }
    f.EtiqInfoDiag = etiqueta(
        u"Seleccione la forma en la que quiere determinar la diagonal haciendo clic en el dibujo "
        u"correspondiente.",
        u"TR_0023", 6420, 495);
}

}  // namespace

frmEspEnc::frmEspEnc(env::Env& env) : env_(env), mv_(common::modVariables()) {
    diseno();
    panel_.valorDiseno = EtiqValorEnc[0];
    panel_.cajaDiseno = TxtValoresEnc[0];
}

void frmEspEnc::diseno() {
    Caption = u"Especiales";
    disenaComponentes(*this);
    disenaTipos(*this);
    disenaMedidas(*this);
    disenaEncastres(*this);
    disenaDiagonales(*this);
}

}  // namespace dialog
