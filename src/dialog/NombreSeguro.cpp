#include "dialog/NombreSeguro.h"

#include <array>

#include "vb/Strings.h"

namespace dialog {

namespace {

using vb::String;

constexpr char16_t kFullwidthFirst = 0xFF01;  // "！", the fullwidth form of "!"
constexpr char16_t kFullwidthLast = 0xFF5E;   // "～"

// What the character becomes where a wide name is turned into a narrow one by best fit.
char16_t comoAscii(char16_t c) {
    if (c >= kFullwidthFirst && c <= kFullwidthLast)
        return static_cast<char16_t>(c - kFullwidthFirst + u'!');
    switch (c) {
        case 0x00A5:  // yen sign
        case 0x20A9:  // won sign
        case 0x2216:  // set minus
        case 0x29F5:  // reverse solidus operator
        case 0xFE68:  // small reverse solidus
            return u'\\';
        case 0x2215:  // division slash
            return u'/';
        default:
            return c;
    }
}

bool esDigitoDispositivo(char16_t c) {
    return (c >= u'0' && c <= u'9') || c == 0x00B9 || c == 0x00B2 || c == 0x00B3;  // ¹ ² ³
}

bool esDispositivo(const String& nombre) {
    String base = nombre.substr(0, nombre.find(u'.'));
    const auto primero = base.find_first_not_of(u' ');
    const auto ultimo = base.find_last_not_of(u' ');
    base =
        primero == String::npos ? String() : vb::UCase(base.substr(primero, ultimo - primero + 1));
    static const std::array<String, 6> kNombres{u"CON", u"PRN",    u"AUX",
                                                u"NUL", u"CONIN$", u"CONOUT$"};
    for (const auto& dispositivo : kNombres)
        if (base == dispositivo) return true;
    const String raiz = base.substr(0, 3);
    return base.size() == 4 && (raiz == u"COM" || raiz == u"LPT") && esDigitoDispositivo(base[3]);
}

}  // namespace

bool nombreSeguro(const String& nombre) {
    String visto;
    for (char16_t c : nombre) {
        if (c < u' ') return false;
        visto.push_back(comoAscii(c));
    }
    if (visto.find_first_not_of(u". ") == String::npos) return false;  // also the empty name
    for (const char16_t* prohibido : {u"\\", u"/", u":", u".."})
        if (visto.find(prohibido) != String::npos) return false;
    return !esDispositivo(visto);
}

}  // namespace dialog
