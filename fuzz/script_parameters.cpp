// The readers of an object's script: valorScript, limitesScript, rangoParametro and
// codigoParametro, on any script and any name. The input is the texts script, name, and the
// width, height and depth (measures or box texts), cut at 0xFF, after a first byte whose low
// three bits say which measures limitesScript checks.
//
// Properties:
// - valorScript gives a finite number or raises 5, 6 or 13 (an entry that cannot be read);
//   a name that does not occur gives the default, and the default changes nothing else;
// - limitesScript never raises; it reports at most one failure, and after one answers true;
//   with nothing to check, or no limit named in the script, it answers true silently;
// - rangoParametro never raises and answers the decimal text of a whole number that two
//   32-bit ends can span: "0" for an empty or absent definition, "10000000" when no "("
//   follows it;
// - codigoParametro is the definition up to its first "(".
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>

#include "FuzzCheck.h"
#include "dialog/ScriptParametros.h"
#include "vb/Conversions.h"
#include "vb/Errors.h"
#include "vb/Strings.h"

namespace {

using vb::Compare;
using vb::String;

struct Reading {
    std::optional<double> value;
    int error = 0;
};

Reading valor(const String& script, const String& name, double defaultValue) {
    try {
        return {dialog::valorScript(script, name, defaultValue), 0};
    } catch (const vb::RuntimeError& e) {
        FUZZ_CHECK(e.number() == vb::err::kInvalidCall || e.number() == vb::err::kOverflow ||
                   e.number() == vb::err::kTypeMismatch);
        return {std::nullopt, e.number()};
    }
}

void checkValorScript(const String& script, const String& name) {
    const Reading low = valor(script, name, dialog::kMinimoDefecto);
    const Reading high = valor(script, name, dialog::kMaximoDefecto);
    if (vb::InStr(script, name, Compare::Text) == 0) {
        FUZZ_CHECK(low.value == dialog::kMinimoDefecto && high.value == dialog::kMaximoDefecto);
        return;
    }
    FUZZ_CHECK(low.value == high.value && low.error == high.error);
    if (low.value) FUZZ_CHECK(std::isfinite(*low.value));
}

bool namesALimit(const String& script) {
    for (const String name : {u"LMIN", u"LMAX", u"HMIN", u"HMAX", u"PMIN", u"PMAX"})
        if (vb::InStr(script, name, Compare::Text) > 0) return true;
    return false;
}

void checkLimitesScript(const String& script, unsigned checks, const std::array<String, 3>& m) {
    int reports = 0;
    const auto avisa = [&](const String&) { ++reports; };
    const bool ok =
        dialog::limitesScript(script, checks & 1, checks & 2, checks & 4, m[0], m[1], m[2], avisa);
    FUZZ_CHECK(reports <= 1);
    if (reports == 1) FUZZ_CHECK(ok);
    if (checks == 0 || !namesALimit(script)) FUZZ_CHECK(ok && reports == 0);
}

void checkRangoParametro(const String& script, const String& definicion,
                         const std::array<String, 3>& cajas) {
    const String rango = dialog::rangoParametro(definicion, script, cajas);
    const double span = vb::CDbl(vb::Variant(rango));  // must be a number
    FUZZ_CHECK(std::trunc(span) == span && std::fabs(span) <= 4294967295.0);
    FUZZ_CHECK(vb::numberText(span) == rango);
    const int p = definicion.empty() ? 0 : vb::InStr(script, definicion, Compare::Text);
    if (p == 0) FUZZ_CHECK(rango == u"0");
    if (p > 0 && vb::InStr(script, u"(", Compare::Text, p) == 0) FUZZ_CHECK(rango == u"10000000");
}

void checkCodigoParametro(const String& definicion) {
    const String codigo = dialog::codigoParametro(definicion);
    FUZZ_CHECK(definicion.compare(0, codigo.size(), codigo) == 0);
    FUZZ_CHECK(codigo.size() == definicion.size() || definicion[codigo.size()] == u'(');
    FUZZ_CHECK(codigo.find(u'(') == String::npos);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const unsigned checks = data[0] & 7u;
    const auto t = fuzzcheck::texts(data + 1, size - 1, 5);
    const String& script = t[0];
    const String& name = t[1];
    const std::array<String, 3> measures{t[2], t[3], t[4]};
    checkValorScript(script, name);
    checkLimitesScript(script, checks, measures);
    checkRangoParametro(script, name, measures);
    checkCodigoParametro(name);
    return 0;
}
