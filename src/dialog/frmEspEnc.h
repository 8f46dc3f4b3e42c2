#pragma once
// The special-editing dialog as a model: its controls, its state and every procedure and event
// handler under its own name. The procedures live in one file per area (frmEspEnc_*.cpp).
// A view (DialogView) shows it and forwards the user's actions to the handlers.
#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "common/ModVariables.h"
#include "common/Textos.h"
#include "dialog/Controles.h"
#include "dialog/PanelEncastres.h"
#include "env/Env.h"

namespace dialog {

// One recess of the recess list: "no disponible" when it has no data; datos(0) is the exported
// picture, datos(1..) the parameter specs, with one spare empty element at the end.
struct RegistroEncastre {
    String titulo;
    std::vector<String> datos;
};

inline const String kNoDisponible = u"no disponible";
inline const String kCaptionAtencion = u"\u00A1\u00A1Atenci\u00F3n!!";

class frmEspEnc {
  public:
    explicit frmEspEnc(env::Env& env);

    // ---- controls (design in frmEspEnc_Diseno.cpp) ----
    String Caption;  // the window title
    String Icon;     // file of the window's icon ("" = as designed)
    Label Label8, Label11, Label9, Label13;
    std::array<ListBox, 5> listComponentes;
    CommandButton btnAcptComp, btnCnlComps;
    std::array<TextBox, 4> TextValores;
    std::array<Label, 4> EtiqValores;
    CommandButton BotonCnlValores;
    Label EtiqCnlValores, Label14;
    PictureBox ImagePreview;
    Label Label12, Label3;
    std::array<PictureBox, 7> PictureEsp, PictureEspOc;
    std::array<CommandButton, 7> btnNoDisponible;
    std::array<Label, 7> EtiqCuadEsp;
    std::array<Shape, 7> FormaSelect;
    Label EtiqInfoEsp;
    Frame PanelMedEsp;
    std::array<Label, 3> EtiqMedEsp;
    std::array<TextBox, 3> TextMedEsp;
    CommandButton BotonCnlMed;
    Label EtiqCnlMed, Label2;
    PictureBox picout, picin;
    ScrollBar barraScrolEnc;
    std::vector<Label> EtiqTituloEnc, EtiqValorEnc;
    std::vector<TextBox> TxtValoresEnc;
    Label EtiqEncNoDisp, Label5;
    std::array<PictureBox, 2> ImageDiagonal;
    std::array<Shape, 2> FormaDiagonal;
    Label EtiqInfoDiag;

    // ---- form state ----
    String textoCajeosNuevo, textoCajeos, textoEncastre1, textoEncastre2;
    std::array<String, 4> medidasActuales, medidasDefecto;
    String estadoCambios, estadoInicial;
    int16_t altoContenido = 0;
    std::array<int16_t, 5> numListas{};
    int16_t nivelArbol = 0;
    int16_t filasEncastre = 0;
    std::array<std::vector<int32_t>, 5> idsListas;
    int32_t idDiagonal = 0;
    std::vector<RegistroEncastre> encastres;

    bool cargado() const { return cargado_; }
    bool descargado() const { return descargado_; }

    // ---- frame (frmEspEnc_Marco.cpp) ----
    void Form_Load();
    void Form_Unload();
    void Unload();  // "Unload Me": runs Form_Unload once and closes the form
    String CadenaMedidas(int k);
    void traduceControles();
    void sizing();
    void picout_Resize();
    void barraScrolEnc_Change();
    void PictureEsp_MouseDown(int i);
    void PictureEsp_MouseUp(int i);
    void ImageDiagonal_MouseDown(int i);
    void ImageDiagonal_MouseUp(int i);
    void BotonCnlMed_MouseDown();
    void BotonCnlMed_MouseUp();
    void BotonCnlValores_MouseDown();
    void BotonCnlValores_MouseUp();

    // ---- special types and measures (frmEspEnc_Tipos.cpp) ----
    void ofreceTipos();
    void seleccionInicial();
    void ocultaTiposFijos();
    bool estaSeleccionado(int k) const;
    void marcaTipo(int k, bool on);
    void alternaTipo(int k);
    void cambiaCombinado(int a, int b, int c);
    void alternaCombinado(int b, int s);
    void PictureEsp_Click(int k);
    void BotonCnlMed_Click();
    void TextMedEsp_GotFocus(int m);
    void TextMedEsp_KeyPress(int m, int& keyAscii);
    void TextMedEsp_LostFocus(int m);

    // ---- components lists (frmEspEnc_Listas.cpp) ----
    void listComponentes_MouseUp(int index);
    void fijaEstadoInicial();
    void cambiaEstado(int16_t lista, int16_t entrada);
    void cambiaEstadoMedida(int k);
    void guardaSeleccion();
    void guardaComponente(std::vector<int32_t>& ids, int lista, int entrada);
    void cargaDiagonal();
    void BotonCnlValores_Click();
    void TextValores_GotFocus(int i);
    void TextValores_KeyPress(int i, int& keyAscii);
    void btnCnlComps_Click();

    // ---- cut-out document (frmEspEnc_Cajeos.cpp) ----
    String CadenaCajeos();
    void cargaValoresCajeos();
    void anotaCajeos();

    // ---- acceptance (frmEspEnc_Aceptar.cpp) ----
    void btnAcptComp_Click();

    // ---- script parameters (frmEspEnc_Script.cpp) ----
    bool limitesScript(const String& script, bool checkL, bool checkH, bool checkP,
                       const String& valueL, const String& valueH, const String& valueP);
    String rangoParametro(const String& spec, const String& script);
    String etiquetaParametro(const String& spec);

    // ---- tree walk (frmEspEnc_Arbol.cpp) ----
    void recorreHijos(int32_t id, bool& tieneHijos, std::array<int16_t, 5>& cuentas,
                      int16_t& nivel);
    void clasificaHijo(int32_t child, bool& tieneHijos, std::array<int16_t, 5>& cuentas,
                       int16_t& nivel);

    // ---- recesses and diagonals (frmEspEnc_Encastres.cpp) ----
    void creaFilasEncastre(const String& texto, int16_t i, const String& script);
    void habilitaFilasEncastre(int16_t i, bool enabled);
    void EstadoTriangulacionT(bool enabled);
    void EstadoTriangulacionD(bool enabled);
    void ImageDiagonal_Click(int index);
    void describeDiagonal(const String& mode, const String& a, int32_t id, const String& b,
                          const String& c);
    void TxtValoresEnc_GotFocus(int i);
    void TxtValoresEnc_KeyPress(int i, int& keyAscii);

    // ---- previews (frmEspEnc_Vistas.cpp) ----
    bool cargaDatosEncastre(int32_t child, int16_t n);
    String carpetaTemporal();

    // Host context and platform of the current call.
    common::ModVariables& mv() { return mv_; }
    platform::Platform& plataforma() { return env_.platform; }
    env::Env& env() { return env_; }

  private:
    void diseno();
    void leeObjeto();
    void mensaje(const String& texto, const String& titulo, platform::MsgIcon icono);
    common::Idiomas idiomas();  // both languages; traducir ignores case
    String textoClave(const common::Idiomas& idiomas, const String& clave);
    // The recess panel (frmEspEnc_Panel.cpp): each recess's title and rows as read at load, so
    // that the panel can be laid out again, titles first, when they do not all fit.
    struct FilaEncastre {
        String etiqueta, rango;
    };
    struct EncastreEnPanel {
        String texto;
        EncastrePanel medida;
        std::vector<FilaEncastre> filas;
    };
    struct Panel {
        std::vector<EncastreEnPanel> encastres;
        bool lleno = false;  // something did not fit: laid out again after the walk
        Label valorDiseno;   // value row 0 as designed
        TextBox cajaDiseno;
    };
    AltosPanel altosPanel() const;
    void leeEncastre(const String& texto, int16_t i, const String& script);
    void colocaEncastre(size_t i, bool conValores);
    void completaPanel();
    void avisaPanelLleno(size_t conValores, size_t colocados);
    struct Pasada;  // working state of one acceptance pass
    void compruebaMedidas(Pasada& p, const double* min, const double* max);
    void compruebaCajeos(Pasada& p);
    void compruebaDiagonal(Pasada& p);
    void escriturasCompletas(const Pasada& p);
    void escriturasReducidas();
    void escribeMedidasYTipos();
    void escribeMedidas();
    void escribeTipo(int t, const String& valor);
    void limpiaTipos();
    struct Recorrido;  // the levels being walked and the objects already walked
    void entraEn(int32_t id, Recorrido& recorrido);
    bool siguienteHijo(bool& tieneHijos, std::array<int16_t, 5>& cuentas, int16_t& nivel,
                       Recorrido& recorrido);
    void listaComponente(int32_t child, int lista, std::array<int16_t, 5>& cuentas, int16_t nivel,
                         const String& script);
    bool exportaImagen(const String& nombre, const String& ruta);
    void creaCarpetaTemporal();

    env::Env& env_;
    common::ModVariables& mv_;
    bool cargado_ = false;
    bool descargado_ = false;
    Panel panel_;
};

}  // namespace dialog
