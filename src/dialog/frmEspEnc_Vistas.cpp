// Preview pictures: the recess data line of a component's script, the picture exported from
// the catalogue into the plug-in's temporary folder, and the recess record.
#include <algorithm>

#include "dialog/NombreSeguro.h"
#include "dialog/frmEspEnc.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace dialog {

using host::use;

String frmEspEnc::carpetaTemporal() {
    return plataforma().moduleFolder() + u"\\Textures\\Temp\\";
}

// Creates the missing levels of the temporary folder, from the deepest existing one down.
void frmEspEnc::creaCarpetaTemporal() {
    String ruta = plataforma().moduleFolder() + u"\\Textures\\Temp";
    std::vector<String> faltan;
    while (!ruta.empty() && !plataforma().folderExists(ruta)) {
        faltan.push_back(ruta);
        size_t corte = ruta.find_last_of(u'\\');
        if (corte == String::npos || corte == 0) break;
        ruta.resize(corte);
    }
    try {
        for (auto it = faltan.rbegin(); it != faltan.rend(); ++it) plataforma().createFolder(*it);
    } catch (const vb::RuntimeError&) {
        // The export below then fails and the recess shows "No Disponible".
    }
}

bool frmEspEnc::exportaImagen(const String& nombre, const String& ruta) {
    auto& catalog = use(mv_.miCatalog);
    int32_t& sid = mv_.miSessionId;
    int32_t rango = vb::CLng(catalog.TableGetLineRankFromName(sid, 19, 0, 1, nombre, false));
    bool ok = vb::CBool(catalog.FileExportResource(sid, rango, ruta));
    if (!ok && rango != 0) {
        creaCarpetaTemporal();
        ok = vb::CBool(catalog.FileExportResource(sid, rango, ruta));
    }
    return ok;
}

bool frmEspEnc::cargaDatosEncastre(int32_t child, int16_t n) {
    String script = vb::CStr(use(mv_.miScene).ObjectGetScript(mv_.miSessionId, child));
    std::vector<String> campos;
    bool ok = false;
    if (int p = vb::InStr(script, u"/// ", vb::Compare::Text); p > 0) {
        campos = vb::Split(vb::Mid(script, p + 4), u" ");
        const String nombre = campos.empty() ? String() : campos[0];
        if (nombreSeguro(nombre)) ok = exportaImagen(nombre, carpetaTemporal() + nombre);
    }
    if (encastres.size() < static_cast<size_t>(n) + 1) encastres.resize(n + 1);
    RegistroEncastre& registro = encastres[n - 1];
    if (ok) {
        registro.datos = campos;
        registro.datos.push_back(u"");
        registro.datos[0] = carpetaTemporal() + registro.datos[0];
    } else {
        registro.titulo = kNoDisponible;
    }
    // The 100 twips this record adds to altoContenido are added when the recess is placed in
    // the panel (colocaEncastre), just before its title.
    sizing();
    return true;
}

}  // namespace dialog
