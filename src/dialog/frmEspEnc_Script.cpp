// The form's script readings: limits with the script-error message, ranges read against the
// measure boxes, and parameter captions from the catalogue.
#include "dialog/ScriptParametros.h"
#include "dialog/frmEspEnc.h"
#include "vb/Conversions.h"

namespace dialog {

using host::use;

bool frmEspEnc::limitesScript(const String& script, bool checkL, bool checkH, bool checkP,
                              const String& valueL, const String& valueH, const String& valueP) {
    return dialog::limitesScript(
        script, checkL, checkH, checkP, valueL, valueH, valueP, [this](const String& descripcion) {
            mensaje(u"Entrada de Script no valida.", u"Atenci\u00F3n: " + descripcion,
                    platform::MsgIcon::Critical);
        });
}

String frmEspEnc::rangoParametro(const String& spec, const String& script) {
    return dialog::rangoParametro(spec, script,
                                  {TextMedEsp[0].Text, TextMedEsp[1].Text, TextMedEsp[2].Text});
}

String frmEspEnc::etiquetaParametro(const String& spec) {
    auto& catalog = use(mv_.miCatalog);
    int32_t rango = vb::CLng(
        catalog.TableGetLineRankFromCode(mv_.miSessionId, 2, 0, 1, codigoParametro(spec), false));
    return vb::CStr(catalog.TableGetLineInfo(mv_.miSessionId, 2, 0, rango, 9));
}

}  // namespace dialog
