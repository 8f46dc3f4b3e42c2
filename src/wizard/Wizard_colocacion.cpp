// The placement path: dispatch by catalogue number and the manufacturers' fixed rules, on the
// Wizard's own host objects and session.
#include <optional>

#include "common/Explicacion.h"
#include "host/Session.h"
#include "rules/ExplicaObjeto.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"
#include "wizard/Fabricantes.h"
#include "wizard/Wizard.h"

namespace wizard {

namespace {

constexpr int32_t kObjetoEvento = -2;

const String kMensajeAncho =
    u"El mueble no se puede hacer especial en anchura para el modelo seleccionado.\r\n"
    u"Se colocará el inmediato superior.";
const String kMensajeFondo =
    u"El mueble sólo se puede hacer especial en profundidad para el modelo seleccionado\r\n"
    u"Se colocará el inmediato superior.";

// The catalogue number as an integer; nothing when it is empty, not a number or out of range.
std::optional<int32_t> numeroCatalogo(const String& numero) {
    if (numero.empty() || !vb::IsNumeric(numero)) return std::nullopt;
    try {
        return vb::CInt(numero);
    } catch (const vb::RuntimeError&) {
        return std::nullopt;
    }
}

String explicaNumero(const std::optional<int32_t>& numero) {
    if (!numero) return u"The catalogue number is empty or not a number: no manufacturer case.";
    const String n = vb::numberText(*numero);
    if (*numero < 31 || *numero > 33) return u"Catalogue number " + n + u": no manufacturer case.";
    static const char16_t* const kCasos[] = {u"casoForma", u"casoXey", u"casoVegasa"};
    return u"Catalogue number " + n + u": manufacturer case " + kCasos[*numero - 31] + u".";
}

}  // namespace

bool Wizard::OnObjectPlaceAfter(int32_t lCallParamsBlock) {
    host::SessionScope scope(env_.factory, {&wAppli, &wScene, &wCatalog, &wSessionId},
                             lCallParamsBlock);
    bool result = false;
    if (scope.isOpen()) {
        const auto numero =
            numeroCatalogo(vb::CStr(host::use(wScene).ObjectGetInfo(wSessionId, kObjetoEvento, 2)));
        common::explica([&] { return explicaNumero(numero); });
        // The cases' own results are not used: a case that ran makes the result true.
        if (numero == 31) casoForma(lCallParamsBlock);
        if (numero == 32) casoXey(lCallParamsBlock);
        if (numero == 33) casoVegasa(lCallParamsBlock);
        result = numero == 31 || numero == 32 || numero == 33;
    }
    scope.endSession();
    return result;
}

bool Wizard::casoForma(int32_t) {
    aplicaCaso(fabricanteForma(), rutaForma);
    return true;
}

bool Wizard::casoXey(int32_t) {
    aplicaCaso(fabricanteXey(), rutaXey);
    return true;
}

bool Wizard::casoVegasa(int32_t) {
    aplicaCaso(fabricanteVegasa(), rutaVegasa);
    return true;
}

void Wizard::aplicaCaso(const Fabricante& f, String& ruta) {
    auto& scene = host::use(wScene);
    auto& catalog = host::use(wCatalog);
    ruta = env_.platform.moduleFolder() + f.catalogo;
    catalog.FileLoad(wSessionId, ruta);
    const auto info = [&](int32_t code) {
        return vb::CStr(scene.ObjectGetInfo(wSessionId, kObjetoEvento, code));
    };
    refObjeto = info(7);
    const String codigo = vb::Left(refObjeto, f.longitudCodigo);
    (f.longitudCodigo == 3 ? prefijoRef3 : prefijoRef4) = codigo;
    modeloPuerta = info(64);
    const int32_t rank =
        vb::CLng(catalog.TableGetLineRankFromName(wSessionId, 3, 0, 1, refObjeto, false));
    if (rank < 1) {  // no article line: no catalogue measures to hold the cabinet to
        common::explica([&] {
            return u"Article " + common::entreComillas(refObjeto) +
                   u" has no line in table 3: the case changes nothing.";
        });
        return;
    }
    Medidas m;
    m.catAncho = vb::CStr(catalog.TableGetLineInfo(wSessionId, 3, 0, rank, 3));
    m.catFondo = vb::CStr(catalog.TableGetLineInfo(wSessionId, 3, 0, rank, 4));
    m.catAlto = vb::CStr(catalog.TableGetLineInfo(wSessionId, 3, 0, rank, 5));
    m.ancho = info(12);
    m.fondo = info(13);
    m.alto = info(14);
    if (enLista(codigo, f.codigos)) {
        common::explica([&] {
            return u"Article code " + common::entreComillas(codigo) +
                   u" is exempt from every rule of this manufacturer.";
        });
        return;
    }
    if (!enLista(modeloPuerta, f.modelos)) {
        common::explica([&] {
            return u"Door model " + common::entreComillas(modeloPuerta) +
                   u" is not on the manufacturer's list: only the depth may be special.";
        });
        reglaSoloFondo(f, m);
    } else if (f.reglaAncho) {
        reglaAncho(f, m);
    } else {
        common::explica([&] {
            return u"Door model " + common::entreComillas(modeloPuerta) +
                   u" is on the manufacturer's list: no rule of this manufacturer applies.";
        });
    }
}

void Wizard::reglaSoloFondo(const Fabricante& f, const Medidas& m) {
    if (m.catAncho == m.ancho && m.catAlto == m.alto) {
        common::explica(
            [] { return String(u"Width and height are the catalogue's: nothing to do."); });
        return;
    }
    common::explica([&] {
        return u"Width " + common::entreComillas(m.ancho) + u" and height " +
               common::entreComillas(m.alto) + u" go back to the catalogue's " +
               common::entreComillas(m.catAncho) + u" and " + common::entreComillas(m.catAlto) +
               u"; the cabinet is replaced from " + f.reemplazo + u" keeping its depth " +
               common::entreComillas(m.fondo) + u".";
    });
    auto& scene = host::use(wScene);
    scene.ObjectSetInfo(wSessionId, kObjetoEvento, m.catAncho, 12);
    scene.ObjectSetInfo(wSessionId, kObjetoEvento, m.catAlto, 14);
    muestra(kMensajeFondo);
    // Read in this order, so that the trace names the first measure that is no number.
    const int32_t ancho = rules::medidaEntera(m.catAncho, u"The catalogue's width (table 3)");
    const int32_t fondo = rules::medidaEntera(m.fondo, u"The cabinet's depth");
    const int32_t alto = rules::medidaEntera(m.catAlto, u"The catalogue's height (table 3)");
    scene.EditReplaceSelection(wSessionId, f.reemplazo, refObjeto, 0, ancho, fondo, alto, 0);
}

void Wizard::reglaAncho(const Fabricante& f, const Medidas& m) {
    if (enLista(modeloPuerta, f.sinReglaAncho) || m.catAncho == m.ancho) {
        common::explica([&] {
            return enLista(modeloPuerta, f.sinReglaAncho)
                       ? u"Door model " + common::entreComillas(modeloPuerta) +
                             u" may have any width."
                       : u"The width is the catalogue's: nothing to do.";
        });
        return;
    }
    common::explica([&] {
        return u"Door model " + common::entreComillas(modeloPuerta) +
               u" keeps the catalogue's width " + common::entreComillas(m.catAncho) +
               u" instead of " + common::entreComillas(m.ancho) + u".";
    });
    muestra(kMensajeAncho);
    host::use(wScene).ObjectSetInfo(wSessionId, kObjetoEvento, m.catAncho, 12);
}

void Wizard::muestra(const String& text) {
    env_.platform.messageBox(text, platform::kTituloComponente, platform::MsgIcon::None);
}

}  // namespace wizard
