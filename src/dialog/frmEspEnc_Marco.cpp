// The frame: loading in its fixed order, caption translation, the recess panel's scrolling,
// press feedback and the write-back at unload.
#include "common/Catalogo.h"
#include "dialog/Registro.h"
#include "dialog/TextoCajeos.h"
#include "dialog/frmEspEnc.h"
#include "rules/Refresco.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace dialog {

using host::use;
using vb::CLng;
using vb::CStr;

namespace {

String celdaTabla2(common::ModVariables& mv, const String& codigo) {
    int32_t rango =
        CLng(use(mv.miCatalog).TableGetLineRankFromCode(mv.miSessionId, 2, 0, 1, codigo, false));
    return CStr(use(mv.miCatalog).TableGetLineInfo(mv.miSessionId, 2, 0, rango, 9));
}

}  // namespace

void frmEspEnc::Form_Load() {
    estadoCambios.clear();
    filasEncastre = 0;
    altoContenido =
        vb::CInt(vb::Variant(static_cast<double>(EtiqValorEnc[0].Top) + EtiqValorEnc[0].Height));
    picout_Resize();
    String icono = plataforma().moduleFolder() + u"\\IconAsist.ico";
    if (common::tamanoArchivo(env_, icono) != 0) Icon = icono;
    leeObjeto();
    numListas = {};
    nivelArbol = 0;
    bool tieneHijos = false;
    recorreHijos(-2, tieneHijos, numListas, nivelArbol);
    completaPanel();
    if (altoContenido < picout.Height) {
        altoContenido = static_cast<int16_t>(picout.Height);
        picin.Height = altoContenido;
        sizing();
    }
    rules::buscaHijosEsp(mv_.prefijosEsp);
    ofreceTipos();
    seleccionInicial();
    ocultaTiposFijos();
    traduceControles();
    cargaValoresCajeos();
    cargaDiagonal();
    fijaEstadoInicial();
    barraScrolEnc.Enabled = EtiqTituloEnc[0].Visible;
    cargado_ = true;
}

// Load steps 5 to 12: the cut-out document, the measures and the catalogue's texts.
void frmEspEnc::leeObjeto() {
    auto& scene = use(mv_.miScene);
    auto& catalog = use(mv_.miCatalog);
    int32_t& sid = mv_.miSessionId;
    textoCajeos = CStr(scene.ObjectGetInfo(sid, -2, 53));
    mv_.docCajeos = cargaCajeos(plataforma(), textoCajeos);
    rules::iniciaPrefijosEsp();
    medidasActuales = {mv_.medidaAncho, mv_.medidaAlto, mv_.medidaFondo, u""};
    String nombre = CStr(scene.ObjectGetInfo(sid, -2, 7));
    int32_t rango = CLng(catalog.TableGetLineRankFromName(sid, 3, 0, 1, nombre, false));
    if (rango > 0) {
        medidasDefecto[0] = CStr(catalog.TableGetLineInfo(sid, 3, 0, rango, 3));
        medidasDefecto[2] = CStr(catalog.TableGetLineInfo(sid, 3, 0, rango, 4));
        medidasDefecto[1] = CStr(catalog.TableGetLineInfo(sid, 3, 0, rango, 5));
    }
    textoCajeosNuevo.clear();
    for (int m = 0; m < 3; ++m) TextMedEsp[m].Text = medidasActuales[m];
    ImageDiagonal[0].Enabled = ImageDiagonal[1].Enabled = false;
    textoEncastre1 = celdaTabla2(mv_, u"TR_0046");
    textoEncastre2 = celdaTabla2(mv_, u"TR_0047");
}

void frmEspEnc::Form_Unload() {
    String valor = CStr(use(mv_.miScene).ObjectGetInfo(mv_.miSessionId, -2, 2));
    if (!valor.empty()) use(mv_.miScene).ObjectSetInfo(mv_.miSessionId, -2, valor, 2);
}

void frmEspEnc::Unload() {
    if (descargado_) return;
    descargado_ = true;
    Form_Unload();
}

common::Idiomas frmEspEnc::idiomas() {
    common::Idiomas id;
    id.aplicacion = CStr(use(mv_.miAppli).GetLanguage(mv_.miSessionId));
    id.catalogo = CStr(use(mv_.miCatalog).GetInfo(mv_.miSessionId, 17));
    id.traducir = !vb::equalText(id.aplicacion, id.catalogo);
    return id;
}

String frmEspEnc::textoClave(const common::Idiomas& id, const String& clave) {
    return common::traduce(id, common::textoCatalogo(clave));
}

String frmEspEnc::CadenaMedidas(int k) {
    static const char16_t* const claves[7] = {u"TR_0009", u"TR_0010", u"TR_0011", u"TR_0012",
                                              u"TR_0013", u"TR_0014", u"TR_0015"};
    if (k < 0 || k > 6) return u"";
    return textoClave(idiomas(), claves[k]);
}

void frmEspEnc::traduceControles() {
    auto id = idiomas();
    auto& catalog = use(mv_.miCatalog);
    int32_t& sid = mv_.miSessionId;
    auto traduceUno = [&](Control& c, String* caption) {
        if (vb::InStr(c.Tag, u"TR_", vb::Compare::Text) == 0) return;
        int32_t rango = CLng(catalog.TableGetLineRankFromCode(sid, 2, 0, 1, c.Tag, false));
        if (ImageDiagonal[0].Enabled || !vb::equalText(c.Tag, u"TR_0023")) {
            // Every tagged control reads its cell and translates it, whatever the rank; a key
            // without a line keeps the designed caption.
            String texto = common::traduce(id, CStr(catalog.TableGetLineInfo(sid, 2, 0, rango, 9)));
            if (rango > 0 && caption) *caption = texto;
            return;
        }
        int32_t r43 = CLng(catalog.TableGetLineRankFromCode(sid, 2, 0, 1, u"TR_0043", false));
        if (r43 > 0)
            EtiqInfoDiag.Caption =
                common::traduce(id, CStr(catalog.TableGetLineInfo(sid, 2, 0, r43, 9)));
    };
    paraCadaControl(*this, [&](const char16_t*, auto* c, size_t n) {
        for (size_t i = 0; i < n; ++i) traduceUno(c[i], captionDe(c[i]));
    });
    Caption =
        textoClave(id, u"TR_0001") + u" - " + CStr(use(mv_.miScene).ObjectGetInfo(sid, -2, 8));
}

void frmEspEnc::picout_Resize() {
    barraScrolEnc.Height = picout.Height;
}

void frmEspEnc::barraScrolEnc_Change() {
    picin.Top = -barraScrolEnc.Value;
}

void frmEspEnc::sizing() {
    barraScrolEnc.Max = picin.Height - picout.Height;
    barraScrolEnc.Visible = picout.Height < picin.Height;
}

void frmEspEnc::mensaje(const String& texto, const String& titulo, platform::MsgIcon icono) {
    plataforma().messageBox(texto, titulo, icono);
}

void frmEspEnc::PictureEsp_MouseDown(int i) {
    PictureEsp[i].BorderStyle = 0;
    EtiqCuadEsp[i].ForeColor = kNegro;
}

void frmEspEnc::PictureEsp_MouseUp(int i) {
    PictureEsp[i].BorderStyle = 1;
    EtiqCuadEsp[i].ForeColor = kRojo;
}

void frmEspEnc::ImageDiagonal_MouseDown(int i) {
    ImageDiagonal[i].BorderStyle = 0;
}
void frmEspEnc::ImageDiagonal_MouseUp(int i) {
    ImageDiagonal[i].BorderStyle = 1;
}
void frmEspEnc::BotonCnlMed_MouseDown() {
    EtiqCnlMed.ForeColor = kNegro;
}
void frmEspEnc::BotonCnlMed_MouseUp() {
    EtiqCnlMed.ForeColor = kAzulMarino;
}
void frmEspEnc::BotonCnlValores_MouseDown() {
    EtiqCnlValores.ForeColor = kNegro;
}
void frmEspEnc::BotonCnlValores_MouseUp() {
    EtiqCnlValores.ForeColor = kRojo;
}

}  // namespace dialog
