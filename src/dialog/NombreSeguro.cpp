#include "dialog/NombreSeguro.h"

#include "vb/Strings.h"

namespace dialog {

namespace {

bool esDispositivo(vb::String base) {
    while (!base.empty() && (base.back() == u' ' || base.back() == u'.')) base.pop_back();
    base = vb::UCase(base);
    if (base == u"CON" || base == u"PRN" || base == u"AUX" || base == u"NUL") return true;
    if (base.size() != 4) return false;
    vb::String raiz = base.substr(0, 3);
    return (raiz == u"COM" || raiz == u"LPT") && base[3] >= u'1' && base[3] <= u'9';
}

}  // namespace

bool nombreSeguro(const vb::String& nombre) {
    if (nombre.empty()) return false;
    for (const char16_t* prohibido : {u"\\", u"/", u":", u".."})
        if (nombre.find(prohibido) != vb::String::npos) return false;
    return !esDispositivo(nombre.substr(0, nombre.find(u'.')));
}

}  // namespace dialog
