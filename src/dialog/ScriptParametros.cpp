#include "dialog/ScriptParametros.h"

#include <cmath>
#include <cstdint>
#include <optional>

#include "common/Explicacion.h"
#include "dialog/Explicaciones.h"
#include "vb/Conversions.h"
#include "vb/Errors.h"
#include "vb/Strings.h"

namespace dialog {

using vb::Compare;

namespace {

int posicion(const String& text, const String& find) {
    return vb::InStr(text, find, Compare::Text);
}

// A 32-bit integer from text, or nothing when the text is not a number or overflows.
std::optional<int32_t> entero(const String& text) {
    try {
        return vb::CLng(vb::Variant(text));
    } catch (const vb::RuntimeError&) {
        return std::nullopt;
    }
}

std::optional<int32_t> medidaDeReferencia(const String& right, const std::array<String, 3>& cajas) {
    static const std::array<String, 3> referencias{u"@L", u"@H", u"@P"};
    for (size_t m = 0; m < referencias.size(); ++m)
        if (vb::equalText(right, referencias[m])) return entero(cajas[m]);
    return std::nullopt;
}

bool esReferencia(const String& right) {
    return vb::equalText(right, u"@L") || vb::equalText(right, u"@H") ||
           vb::equalText(right, u"@P");
}

// One "key=right" item of a range list.
void leeItem(const String& item, const std::array<String, 3>& cajas, int32_t& hi, int32_t& lo) {
    auto piezas = vb::Split(item, u"=");
    if (piezas.size() < 2) return;  // no "=": unreadable, skipped
    const String& key = piezas[0];
    const String& right = piezas[1];
    if (esReferencia(right)) {
        if (!vb::equalText(key, u"MAX")) return;
        if (auto v = medidaDeReferencia(right, cajas)) hi = *v;
    } else if (vb::equalText(key, u"MIN")) {
        if (auto v = entero(right)) lo = *v;
    }
}

}  // namespace

double valorScript(const String& script, const String& name, double defaultValue) {
    int p = posicion(script, name);
    if (p == 0) return defaultValue;
    String s = vb::Mid(script, p);
    int c = posicion(s, u")");
    s = vb::Left(s, c);
    int k = posicion(s, u",");
    if (k < 1 || k > c) k = c;
    if (k - 1 < 0) throw vb::RuntimeError(vb::err::kInvalidCall);
    s = vb::Left(s, k - 1);
    int e = posicion(s, u"=");
    s = vb::Mid(s, e + 1);
    return vb::CDbl(vb::Variant(s));
}

bool limitesScript(const String& script, bool checkL, bool checkH, bool checkP,
                   const String& valueL, const String& valueH, const String& valueP,
                   const std::function<void(const String&)>& avisaError) {
    bool ok = true;
    auto par = [&](const String& nMin, const String& nMax, const String& value,
                   const char16_t* medida) {
        double lo = valorScript(script, nMin, kMinimoDefecto);
        double hi = valorScript(script, nMax, kMaximoDefecto);
        if (hi == kMaximoDefecto && lo == kMinimoDefecto) return;
        double v = vb::CDbl(vb::Variant(value));
        ok = v >= lo && v <= hi;
        if (!ok) common::explica([&] { return explicaLimites(nMin, lo, nMax, hi, medida, value); });
    };
    try {
        if (checkL) par(u"LMIN", u"LMAX", valueL, u"width");
        if (checkH && ok) par(u"HMIN", u"HMAX", valueH, u"height");
        if (checkP && ok) par(u"PMIN", u"PMAX", valueP, u"depth");
    } catch (const vb::RuntimeError& e) {
        common::explica([&] { return explicaScriptIlegible(e.description()); });
        avisaError(e.description());
    }
    return ok;
}

String rangoParametro(const String& definicion, const String& script,
                      const std::array<String, 3>& cajas) {
    int32_t hi = static_cast<int32_t>(kMaximoDefecto), lo = 0;
    int p = posicion(script, definicion);
    if (p == 0 || definicion.empty()) return u"0";
    String s = vb::Mid(script, p);
    int a = posicion(s, u"(");
    if (a != 0) {
        s = vb::Mid(s, a + 1);
        int b = posicion(s, u")");
        if (b != 0) {
            s = vb::Left(s, b - 1);
            if (posicion(s, u",") == 0) {
                auto piezas = vb::Split(s, u"=");
                if (posicion(s, u"=") != 0 && piezas.size() >= 2)
                    if (auto v = medidaDeReferencia(piezas[1], cajas)) hi = *v;
            } else {
                for (const String& item : vb::Split(s, u",")) leeItem(item, cajas, hi, lo);
            }
        }
    }
    return vb::numberText(static_cast<double>(static_cast<int64_t>(hi) - lo));
}

String codigoParametro(const String& definicion) {
    int k = posicion(definicion, u"(");
    return k >= 1 ? vb::Left(definicion, k - 1) : definicion;
}

}  // namespace dialog
