#include "dialog/TextoCajeos.h"

#include <array>
#include <cstdint>

#include "vb/Strings.h"

namespace dialog {

namespace {

constexpr std::array<const char16_t*, 8> kEtiquetas = {u"CAJEOS", u"CAJEO", u"TITULO",   u"PARAM",
                                                       u"ETIQ",   u"VALOR", u"VALORMAX", u"INDICE"};
constexpr std::array<const char16_t*, 5> kEntidades = {u"amp", u"lt", u"gt", u"quot", u"apos"};

bool esCaracterXml(uint32_t c) {
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) ||
           (c >= 0xE000 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0x10FFFF);
}

int valorDigito(char16_t c, int base) {
    int v = c >= u'0' && c <= u'9'   ? c - u'0'
            : c >= u'a' && c <= u'f' ? c - u'a' + 10
            : c >= u'A' && c <= u'F' ? c - u'A' + 10
                                     : 99;
    return v < base ? v : -1;
}

// Whether the digits of a character reference ("65" or "x41") name a character XML allows.
bool esReferenciaCaracter(const String& cuerpo) {
    const bool hexa = !cuerpo.empty() && cuerpo[0] == u'x';
    const int base = hexa ? 16 : 10;
    const size_t desde = hexa ? 1 : 0;
    if (cuerpo.size() <= desde) return false;
    uint32_t valor = 0;
    for (size_t i = desde; i < cuerpo.size(); ++i) {
        int d = valorDigito(cuerpo[i], base);
        if (d < 0) return false;
        valor = valor * base + d;
        if (valor > 0x10FFFF) return false;
    }
    return esCaracterXml(valor);
}

// Position of the first `c` after `i` within `maximo` characters, or npos.
size_t cercano(const String& t, size_t i, char16_t c, size_t maximo) {
    for (size_t j = i + 1; j < t.size() && j <= i + maximo; ++j)
        if (t[j] == c) return j;
    return String::npos;
}

// Length of the reference that starts at `i` (a "&"), or 0 when none starts there.
size_t referenciaEn(const String& t, size_t i) {
    const size_t fin = cercano(t, i, u';', 12);  // "&#x10FFFF;" with room for leading zeros
    if (fin == String::npos) return 0;
    const String cuerpo = t.substr(i + 1, fin - i - 1);
    bool valida =
        !cuerpo.empty() && cuerpo[0] == u'#' ? esReferenciaCaracter(cuerpo.substr(1)) : false;
    for (const char16_t* e : kEntidades) valida = valida || cuerpo == e;
    return valida ? fin - i + 1 : 0;
}

// Length of the format's tag that starts at `i` (a "<"), or 0 when none starts there.
size_t etiquetaEn(const String& t, size_t i) {
    const size_t fin = cercano(t, i, u'>', 10);  // "</VALORMAX>" is the longest
    if (fin == String::npos) return 0;
    String nombre = t.substr(i + 1, fin - i - 1);
    if (!nombre.empty() && nombre[0] == u'/') nombre.erase(0, 1);
    for (const char16_t* e : kEtiquetas)
        if (vb::equalText(nombre, e)) return fin - i + 1;
    return 0;
}

}  // namespace

String cajeosParaXml(const String& texto) {
    String xml;
    xml.reserve(texto.size());
    for (size_t i = 0; i < texto.size();) {
        const char16_t c = texto[i];
        size_t n = c == u'&' ? referenciaEn(texto, i) : c == u'<' ? etiquetaEn(texto, i) : 0;
        if (n > 0) {
            xml.append(texto, i, n);
            i += n;
            continue;
        }
        if (c == u'&')
            xml += u"&amp;";
        else if (c == u'<')
            xml += u"&lt;";
        else if (c == u'>')
            xml += u"&gt;";
        else
            xml += c;
        ++i;
    }
    return xml;
}

std::unique_ptr<platform::XmlDocument> cargaCajeos(platform::Platform& plataforma,
                                                   const String& texto) {
    auto documento = plataforma.createXmlDocument();
    documento->loadXML(cajeosParaXml(texto));
    return documento;
}

}  // namespace dialog
