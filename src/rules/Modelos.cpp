#include "rules/Modelos.h"

#include <algorithm>
#include <array>

#include "rules/LecturaReglas.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace rules {

void GenModEsp(int32_t& sessionId, host::Catalog& catalog) {
    auto& mv = common::modVariables();
    const int16_t n = vb::CInt(catalog.TableGetLinesNb(sessionId, 8, 0));
    int16_t count = 0;
    for (int32_t line = 1; line <= n; ++line) {
        const String name = vb::CStr(catalog.TableGetLineInfo(sessionId, 8, 0, line, 3));
        const String code = vb::CStr(catalog.TableGetLineInfo(sessionId, 8, 0, line, 1));
        const String script = vb::CStr(catalog.TableGetLineInfo(sessionId, 8, 0, line, 4));
        if (!modeloValido(name, code, script)) continue;
        ++count;
        // Entries past the new count keep an earlier catalogue's names; they are never read.
        if (mv.modelos.size() < static_cast<size_t>(count)) mv.modelos.resize(count);
        mv.modelos[count - 1] = name;
    }
    mv.numModelos = count;
}

bool modeloValido(const String& refer, const String& /*code*/, const String& script) {
    return vb::Left(refer, 1) != u"@" && !script.empty();
}

std::optional<int> filaDelModelo(const std::vector<String>& modelos, int numModelos,
                                 const String& modelo, bool ignorarMayusculas) {
    const int n = std::min<int>(numModelos, static_cast<int>(modelos.size()));
    for (int m = 0; m < n; ++m) {
        if (ignorarMayusculas ? vb::equalText(modelos[m], modelo) : modelos[m] == modelo) return m;
    }
    return std::nullopt;
}

ExcepcionesLeidas GenExcepciones(int32_t& sessionId, host::Catalog& catalog) {
    static const std::array<const char16_t*, common::kNumTipos> kCodigos = {
        u"EX_EA", u"EX_EAl", u"EX_EF", u"EX_EAA", u"EX_EAF", u"EX_EAlF", u"EX_EAAF"};
    auto& mv = common::modVariables();
    ExcepcionesLeidas leidas;
    for (int k = 0; k < common::kNumTipos; ++k) {
        const int32_t rank =
            vb::CLng(catalog.TableGetLineRankFromCode(sessionId, 2, 0, 1, kCodigos[k], false));
        const String text = vb::CStr(catalog.TableGetLineInfo(sessionId, 2, 0, rank, 2));
        // An empty text keeps the list as it was, possibly the previous catalogue's.
        leidas[k] = leeExcepcion(text);
        if (leidas[k]) mv.excepciones[k] = leidas[k];
    }
    return leidas;
}

void aplicaExcepciones(const ExcepcionesLeidas& leidas) {
    auto& mv = common::modVariables();
    for (int k = 0; k < common::kNumTipos; ++k) {
        if (leidas[k]) mv.excepciones[k] = leidas[k];
    }
}

}  // namespace rules
