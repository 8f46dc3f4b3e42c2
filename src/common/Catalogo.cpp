#include "common/Catalogo.h"

#include <array>

#include "common/Explicacion.h"
#include "common/ModVariables.h"
#include "host/Factory.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace common {

namespace {

constexpr uint32_t kTamanoBuffer = 64;

String hastaNul(const String& buffer) {
    const auto nul = buffer.find(u'\0');
    String value = nul == String::npos ? buffer : buffer.substr(0, nul);
    return value.substr(0, kTamanoBuffer - 1);
}

bool contiene(const String& line, const String& what) {
    return vb::InStr(line, what, vb::Compare::Binary) > 0;
}

// The text between the first "=" and the next one (or the end).
String valorDeLinea(const String& line) {
    const auto pieces = vb::Split(line, u"=");
    return pieces.size() > 1 ? pieces[1] : String();
}

String explicaCarga(const String& name, const String& directa, const CargaCatalogo& carga) {
    String texto = u"Catalogue " + entreComillas(name) + u" (information 0): ";
    if (carga.ruta != directa) {
        texto += u"not at " + directa + u", found in a sub-folder as " + carga.ruta;
    } else {
        texto += u"looked for at " + carga.ruta;
    }
    return texto + (carga.cargado ? u"; the host loaded it." : u"; the host did not load it.");
}

}  // namespace

String leeDirCatalogos(Env& env) {
    const String file = env.platform.moduleFolder() + u"\\SPACE.INI";
    static const std::array<String, 3> kSecciones = {u"Local", u"InSitu", u"Remote"};
    String buffer;
    for (const auto& section : kSecciones) {
        buffer.clear();
        const uint32_t n = env.platform.GetPrivateProfileString(section, u"CatalogsDir", u"",
                                                                buffer, kTamanoBuffer, file);
        if (n != 0) break;
    }
    return hastaNul(buffer);
}

String leeDirCatalogosTexto(Env& env) {
    const auto lines = env.platform.readTextLines(env.platform.moduleFolder() + u"\\Space.ini");
    size_t next = 0;
    const auto eof = [&] { return next >= lines.size(); };
    String value;
    bool found = false;
    // Reading past the end would fail; the file simply ends the search instead.
    while (!eof()) {
        const String& line = lines[next++];
        if (!contiene(line, u"[Local]") && !contiene(line, u"[Remote]")) continue;
        String inner;
        do {
            if (eof()) break;
            inner = lines[next++];
            if (contiene(inner, u"CatalogsDir=")) {
                value = valorDeLinea(inner);
                found = true;
            }
        } while (contiene(inner, u"[") && !eof() && !found);
    }
    return value;
}

CargaCatalogo cargaCatalogoObjeto(Env& env, int32_t objectId) {
    auto& mv = modVariables();
    const String name = vb::CStr(host::use(mv.miScene).ObjectGetInfo(mv.miSessionId, objectId, 0));
    CargaCatalogo carga;
    carga.ruta = mv.dirCatalogos + name + u".cat";
    const String directa = carga.ruta;
    if (!existeArchivo(env, carga.ruta)) {
        std::vector<platform::DirEntry> entries;
        try {
            entries = env.platform.dir(mv.dirCatalogos, true);
        } catch (const vb::RuntimeError&) {
            // An unreadable directory only means no sub-folder holds the file: the direct
            // path still goes to the host.
        }
        for (const auto& entry : entries) {
            if (!entry.isFolder || entry.name == u"." || entry.name == u"..") continue;
            const String candidate = mv.dirCatalogos + entry.name + u"\\" + name + u".cat";
            if (tamanoArchivo(env, candidate) > 0) carga.ruta = candidate;
        }
    }
    carga.cargado = vb::CBool(host::use(mv.miCatalog).FileLoad(mv.miSessionId, carga.ruta));
    explica([&] { return explicaCarga(name, directa, carga); });
    return carga;
}

bool existeArchivo(Env& env, const String& path) {
    try {
        const auto entries = env.platform.dir(path, false);
        return !entries.empty() && !entries.front().name.empty();
    } catch (const vb::RuntimeError&) {
        return false;
    }
}

int64_t tamanoArchivo(Env& env, const String& path) {
    try {
        return env.platform.fileLength(path);
    } catch (const vb::RuntimeError&) {
        return 0;
    }
}

}  // namespace common
