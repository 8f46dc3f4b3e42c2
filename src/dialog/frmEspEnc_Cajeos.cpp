// The cut-out document (object information 53): built from the recess rows, read back into
// them, and copied as annotation blocks into the recess components' descriptions.
#include <optional>

#include "dialog/frmEspEnc.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace dialog {

using host::use;

namespace {

const String kCrLf = u"\r\n";
const String kTab = u"\t";
const String kSeparador = u"-----------------------";  // 23 hyphens

std::optional<int32_t> enteroLargo(const String& text) {
    try {
        return vb::CLng(vb::Variant(text));
    } catch (const vb::RuntimeError&) {
        return std::nullopt;
    }
}

String elemento(int tabs, const String& nombre, const String& texto) {
    return kCrLf + String(tabs, u'\t') + u"<" + nombre + u">" + texto + u"</" + nombre + u">";
}

}  // namespace

String frmEspEnc::CadenaCajeos() {
    String cuerpo;
    const ListBox& lista = listComponentes[4];
    for (size_t i = 0; i < lista.entries.size(); ++i) {
        if (!lista.entries[i].selected) continue;
        cuerpo += kCrLf + kTab + u"<CAJEO>" + elemento(2, u"TITULO", lista.entries[i].text);
        String tag = i < EtiqTituloEnc.size() ? EtiqTituloEnc[i].Tag : String();
        for (const String& pieza : tag.empty() ? std::vector<String>{} : vb::Split(tag, u"-")) {
            auto j = enteroLargo(pieza);
            if (!j || *j < 0 || static_cast<size_t>(*j) >= TxtValoresEnc.size()) continue;
            cuerpo += kCrLf + kTab + kTab + u"<PARAM>" +
                      elemento(3, u"ETIQ", EtiqValorEnc[*j].Caption) +
                      elemento(3, u"VALOR", TxtValoresEnc[*j].Text) +
                      elemento(3, u"VALORMAX", TxtValoresEnc[*j].Tag) +
                      elemento(3, u"INDICE", pieza) + kCrLf + kTab + kTab + u"</PARAM>";
        }
        cuerpo += kCrLf + kTab + u"</CAJEO>";
    }
    String doc = u"<CAJEOS>" + cuerpo + kCrLf + u"</CAJEOS>";
    return vb::equalText(doc, u"<CAJEOS>" + kCrLf + u"</CAJEOS>") ? String() : doc;
}

void frmEspEnc::cargaValoresCajeos() {
    if (!mv_.docCajeos) return;
    int32_t valor = 0;
    for (const auto& param : mv_.docCajeos->getElementsByTagName(u"PARAM")) {
        if (!param->hasChildNodes()) continue;
        bool legible = true;  // a PARAM whose value cannot be read restores nothing
        for (const auto& hijo : param->childNodes()) {
            String nombre = hijo->nodeName();
            if (vb::equalText(nombre, u"VALOR")) {
                auto v = enteroLargo(hijo->text());
                if (v) valor = *v;
                legible = legible && v.has_value();
            } else if (vb::equalText(nombre, u"INDICE")) {
                auto indice = enteroLargo(hijo->text());
                if (!legible || !indice || *indice < 0 || *indice > 32767 ||
                    static_cast<size_t>(*indice) >= TxtValoresEnc.size())
                    continue;
                TxtValoresEnc[*indice].Text = vb::numberText(valor);
            }
        }
    }
}

void frmEspEnc::anotaCajeos() {
    auto& scene = use(mv_.miScene);
    int32_t& sid = mv_.miSessionId;
    int32_t rango =
        vb::CLng(use(mv_.miCatalog).TableGetLineRankFromCode(sid, 2, 0, 1, u"TR_0008", false));
    if (rango < 1 || !mv_.docCajeos) return;
    String titulo;
    for (const auto& cajeo : mv_.docCajeos->getElementsByTagName(u"CAJEO")) {
        if (!cajeo->hasChildNodes()) continue;
        String lineas;
        for (const auto& hijo : cajeo->childNodes()) {
            if (vb::equalText(hijo->nodeName(), u"TITULO")) titulo = hijo->text();
            if (!vb::equalText(hijo->nodeName(), u"PARAM")) continue;
            for (const auto& dato : hijo->childNodes()) {
                String texto = dato->text();
                if (texto.empty()) continue;
                if (vb::equalText(dato->nodeName(), u"ETIQ")) lineas += kCrLf + texto;
                if (vb::equalText(dato->nodeName(), u"VALOR")) lineas += u" " + texto;
            }
        }
        const ListBox& lista = listComponentes[4];
        for (size_t k = 0; k < lista.entries.size() && k < idsListas[4].size(); ++k) {
            if (!vb::equalText(lista.entries[k].text, titulo)) continue;
            int32_t id = idsListas[4][k];
            String desc = vb::CStr(scene.ObjectGetInfo(sid, id, 49));
            int p = vb::InStr(desc, kCrLf + kSeparador, vb::Compare::Text);
            if (p > 0) desc = vb::Left(desc, p - 1);
            scene.ObjectSetInfo(sid, id, desc + kCrLf + kSeparador + lineas, 49);
        }
    }
}

}  // namespace dialog
