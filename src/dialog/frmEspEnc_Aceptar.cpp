// "Aceptar Componentes": one pass that checks the measures, the cut-out document and the
// diagonal values, then writes everything and closes, or shows the first failing message.
#include <cmath>
#include <optional>

#include "common/Explicacion.h"
#include "dialog/Explicaciones.h"
#include "dialog/ScriptParametros.h"
#include "dialog/TextoCajeos.h"
#include "dialog/frmEspEnc.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace dialog {

using host::use;

namespace {

const String kCrLf = u"\r\n";

struct Limites {
    double min[3] = {kMinimoDefecto, kMinimoDefecto, kMinimoDefecto};  // width, height, depth
    double max[3] = {kMaximoDefecto, kMaximoDefecto, kMaximoDefecto};
};

// LMIN, LMAX, PMIN, PMAX, HMIN, HMAX in that order; a script that cannot be read has none.
Limites leeLimites(const String& script) {
    Limites l;
    try {
        l.min[0] = valorScript(script, u"LMIN", kMinimoDefecto);
        l.max[0] = valorScript(script, u"LMAX", kMaximoDefecto);
        l.min[2] = valorScript(script, u"PMIN", kMinimoDefecto);
        l.max[2] = valorScript(script, u"PMAX", kMaximoDefecto);
        l.min[1] = valorScript(script, u"HMIN", kMinimoDefecto);
        l.max[1] = valorScript(script, u"HMAX", kMaximoDefecto);
    } catch (const vb::RuntimeError&) {
        return Limites{};
    }
    return l;
}

std::optional<double> numero(const String& text) {
    try {
        return vb::CDbl(vb::Variant(text));
    } catch (const vb::RuntimeError&) {
        return std::nullopt;
    }
}

// A whole number within 32 bits, or nothing (text, fractions and overflow are refused).
std::optional<int64_t> enteroExacto(const String& text) {
    auto d = numero(text);
    if (!d || std::floor(*d) != *d || *d < -2147483648.0 || *d > 2147483647.0) return std::nullopt;
    return static_cast<int64_t>(*d);
}

// Leading-number reading rounded halves to even.
double redondeado(double d) {
    return std::nearbyint(d);
}

// A diagonal value: its leading number rounded to a 16-bit integer, or nothing on overflow.
std::optional<int32_t> valorDiagonal(const String& text) {
    double r = redondeado(vb::Val(text));
    if (r < -32768 || r > 32767) return std::nullopt;
    return static_cast<int32_t>(r);
}

bool enRango(std::optional<int32_t> v, double min, double max) {
    return v && *v >= min && *v <= max;
}

}  // namespace

struct frmEspEnc::Pasada {
    common::Idiomas idiomas;
    bool cambiado = true, enLimites = true, documento = true, diagonal = true;
    String erroresMedidas, medidasSinCambio, errorCajeos, errorDiagonal, rotuloDiagonal;
};

void frmEspEnc::btnAcptComp_Click() {
    Pasada p;
    p.idiomas = idiomas();
    Limites lim = leeLimites(vb::CStr(use(mv_.miScene).ObjectGetScript(mv_.miSessionId, -2)));
    compruebaMedidas(p, lim.min, lim.max);
    compruebaCajeos(p);
    if (!textoCajeosNuevo.empty())
        use(mv_.miScene).ObjectSetInfo(mv_.miSessionId, -2, textoCajeosNuevo, 53);
    compruebaDiagonal(p);
    auto texto = [&](const String& clave) { return textoClave(p.idiomas, clave); };
    auto aviso = [&](const String& prompt, const String& titulo) {
        mensaje(prompt, titulo, platform::MsgIcon::Information);
    };
    auto porque = [](const char16_t* texto) { common::explica([&] { return String(texto); }); };
    if (p.cambiado && p.enLimites && p.documento && p.diagonal) {
        porque(u"Every check passed: the edits are written and the dialog closes.");
        escriturasCompletas(p);
    } else if (!p.erroresMedidas.empty()) {
        porque(
            u"Measures outside their limits: message TR_9001 lists them; the dialog stays open.");
        aviso(texto(u"TR_9001") + kCrLf + p.erroresMedidas, texto(u"TR_9001"));
    } else if (!p.medidasSinCambio.empty() && vb::equalText(estadoCambios, estadoInicial)) {
        porque(
            u"A special measure was left unchanged and nothing else was edited: message "
            u"TR_9003; the dialog stays open.");
        aviso(texto(u"TR_9003") + p.medidasSinCambio, texto(u"TR_9004"));
    } else if (!p.documento) {
        porque(
            u"The recess values failed their check: the message is titled TR_9006, the "
            u"cut-out document is not written; the dialog stays open.");
        aviso(p.errorCajeos, texto(u"TR_9006"));
    } else if (p.diagonal) {
        porque(
            u"A special measure was left unchanged but the dialog was otherwise edited: the "
            u"other edits are written and the dialog closes.");
        escriturasReducidas();
    } else {
        porque(
            u"The diagonal values failed their check: message titled TR_9007; the dialog "
            u"stays open.");
        aviso(p.errorDiagonal, texto(u"TR_9007"));
    }
}

void frmEspEnc::compruebaMedidas(Pasada& p, const double* min, const double* max) {
    static const char16_t* const claves[3] = {u"TR_9018", u"TR_9019", u"TR_9020"};
    for (int k = 0; k < 3; ++k) {
        if (!TextMedEsp[k].Enabled) continue;
        const String& t = TextMedEsp[k].Text;
        if (vb::equalText(t, medidasActuales[k])) {
            common::explica([&] {
                return u"The " +
                       String(k == 0   ? u"width"
                              : k == 1 ? u"height"
                                       : u"depth") +
                       u" is special but still " + common::entreComillas(t) +
                       u", its value when the dialog opened.";
            });
            p.cambiado = p.enLimites = false;
            p.medidasSinCambio += u" -- " + CadenaMedidas(k);
        }
        auto v = numero(t);
        bool dentro = v && min[k] <= *v && *v <= max[k];  // text that is not a number is out
        auto linea = [&] {
            return textoClave(p.idiomas, claves[k]) + vb::numberText(min[k]) + u" < " + t + u" < " +
                   vb::numberText(max[k]) + u"." + kCrLf;
        };
        bool anotada = false;
        if (k == 0 || p.enLimites) {
            p.enLimites = dentro;
            if (!dentro) p.erroresMedidas = linea(), anotada = true;
        } else if (!v || (*v < min[k] && *v <= max[k])) {
            // After an earlier failure only a value below its minimum adds its line.
            p.erroresMedidas += linea();
            anotada = true;
        }
        common::explica([&] { return explicaMedida(k, t, min[k], max[k], dentro, anotada); });
    }
}

void frmEspEnc::compruebaCajeos(Pasada& p) {
    textoCajeosNuevo = CadenaCajeos();
    mv_.docCajeos = cargaCajeos(plataforma(), textoCajeosNuevo);
    // Each failure looks its text up at once; the last one found is the one reported.
    auto falla = [&](const String& clave) {
        textoCajeosNuevo.clear();
        p.documento = false;
        p.errorCajeos = textoClave(p.idiomas, clave);
        common::explica([&] {
            return u"A recess value fails its check: " +
                   (clave == u"TR_9010" ? String(u"it is above its maximum (TR_9010).")
                                        : String(u"it is empty or not a whole number (TR_9011)."));
        });
    };
    // 0 until a VALOR is read; a VALOR that is not an integer leaves no value to compare.
    int64_t valor = 0;
    bool hayValor = true;
    for (const auto& param : mv_.docCajeos->getElementsByTagName(u"PARAM")) {
        if (!param->hasChildNodes()) continue;
        for (const auto& hijo : param->childNodes()) {
            String t = hijo->text();
            bool esValor = vb::equalText(hijo->nodeName(), u"VALOR");
            bool esMaximo = vb::equalText(hijo->nodeName(), u"VALORMAX");
            if (t.empty()) {
                falla(u"TR_9011");
                continue;
            }
            if (!esValor && !esMaximo) continue;
            auto n = enteroExacto(t);
            if (!n) {
                falla(u"TR_9011");
                if (esValor) hayValor = false;
                continue;
            }
            if (esValor) {
                valor = *n;
                hayValor = true;
            }
            if (esMaximo && hayValor && valor > *n) falla(u"TR_9010");
        }
    }
}

void frmEspEnc::compruebaDiagonal(Pasada& p) {
    auto falla = [&](const String& m) {
        if (!p.diagonal) return;  // the first failure is the one reported
        p.diagonal = false;
        p.errorDiagonal = m;
        common::explica([&] {
            return u"Diagonal: " + common::entreComillas(m) +
                   u" (L1 must lie within 0 and the "
                   u"width, L2 within 0 and the depth, L3 within 0 and L1 + L2, the angle within "
                   u"0 and 180).";
        });
    };
    if (TextValores[0].Enabled) {
        static const char16_t* const mensajes[3] = {u"Valor de L1 no permitido.",
                                                    u"Valor de L2 no permitido.",
                                                    u"Valor de L3 no permitido."};
        for (int k = 0; k < 3; ++k)
            if (TextValores[k].Text.empty()) falla(mensajes[k]);
        if (!p.diagonal) return;
        double ancho = redondeado(vb::Val(TextMedEsp[0].Text));
        double fondo = redondeado(vb::Val(TextMedEsp[2].Text));
        double suma = redondeado(vb::Val(TextValores[0].Text) + vb::Val(TextValores[1].Text));
        if (!enRango(valorDiagonal(TextValores[0].Text), 0, ancho)) falla(mensajes[0]);
        if (!enRango(valorDiagonal(TextValores[1].Text), 0, fondo)) falla(mensajes[1]);
        if (!enRango(valorDiagonal(TextValores[2].Text), 0, suma)) falla(mensajes[2]);
        if (p.diagonal) p.rotuloDiagonal = textoEncastre1;
    } else if (TextValores[3].Enabled) {
        const String& angulo = TextValores[3].Text;
        if (angulo.empty() || !enRango(valorDiagonal(angulo), 0, 180))
            falla(u"Valor de \u00E1ngulo no permitido.");
        else
            p.rotuloDiagonal = textoEncastre2;
    }
}

void frmEspEnc::escriturasCompletas(const Pasada& p) {
    if (!textoCajeosNuevo.empty()) anotaCajeos();
    if (!p.rotuloDiagonal.empty()) {
        if (!vb::equalText(p.rotuloDiagonal, textoEncastre1))
            describeDiagonal(p.rotuloDiagonal, TextValores[3].Text, idDiagonal, u"", u"");
        else
            describeDiagonal(p.rotuloDiagonal, TextValores[0].Text, idDiagonal, TextValores[1].Text,
                             TextValores[2].Text);
    }
    escribeMedidasYTipos();
    guardaSeleccion();
    Unload();
}

void frmEspEnc::escriturasReducidas() {
    if (!textoCajeosNuevo.empty()) anotaCajeos();
    if (!vb::equalText(estadoCambios, estadoInicial)) {
        for (int t = 0; t < 7; ++t) escribeTipo(t, u"1");
        escribeMedidas();
    }
    guardaSeleccion();
    Unload();
}

}  // namespace dialog
