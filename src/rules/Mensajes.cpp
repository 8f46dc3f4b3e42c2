#include "rules/Mensajes.h"

#include <array>

#include "common/Explicacion.h"
#include "common/ModVariables.h"
#include "common/Textos.h"
#include "host/Factory.h"
#include "vb/Conversions.h"

namespace rules {

namespace {

constexpr std::array<const char16_t*, 36> kModelosST = {u"TURIA ST",
                                                        u"TIBER ST",
                                                        u"CORCEGA ST",
                                                        u"MONZA ST",
                                                        u"HAVANA ST",
                                                        u"LAZIO ST",
                                                        u"MIAMI ST",
                                                        u"MIKONOS ST",
                                                        u"LAZIO brillo ST",
                                                        u"OREGON ST",
                                                        u"CAPRI ST (1)",
                                                        u"MARBELLA ST (2)",
                                                        u"MURANO ST (3)",
                                                        u"AVANT ST (3)",
                                                        u"ALPINA ST (3)",
                                                        u"SIENA ST (1)",
                                                        u"ALPINA BRILLO ST (4)",
                                                        u"AQUARELA ST (4)",
                                                        u"MADEIRA ST (4)",
                                                        u"MICHIGAN ST (4)",
                                                        u"SIENA BRILLO ST (5)",
                                                        u"AQUARELA ST (5)",
                                                        u"NORDICA ST (5)",
                                                        u"SIENA MADERA ST (7)",
                                                        u"IMOLA (3)",
                                                        u"IMOLA BRILLO (4)",
                                                        u"MUNICH ST",
                                                        u"MALTA ST",
                                                        u"BALI ST",
                                                        u"YORK ST",
                                                        u"YORK BRILLO ST",
                                                        u"AQUA ST",
                                                        u"KORFU ST",
                                                        u"DAKOTA ST",
                                                        u"DAKAR ST",
                                                        u"AQUA G.5 ST"};

bool esModeloST(const String& name) {
    for (const char16_t* model : kModelosST) {
        if (name == model) return true;
    }
    return false;
}

bool esFrenteST(int16_t front) {
    return front == 39 || front == 101 || (front >= 307 && front <= 310);
}

}  // namespace

String construyeMensaje(platform::Platform& platform, bool valAncho, bool valAlto, bool valFondo,
                        int16_t tipoFuncion) {
    const auto idiomas = common::leeIdiomas();
    const int rechazados = !valAncho + !valAlto + !valFondo;
    if (rechazados == 0 || tipoFuncion < 1 || tipoFuncion > 3) return String();
    const String main = common::textoTraducido(idiomas, rechazados == 1 ? u"TR_9015" : u"TR_9014");
    const String title = common::textoTraducido(idiomas, u"TR_9001");
    String message = main;
    if (tipoFuncion != 2) message += u"\r\n" + common::textoTraducido(idiomas, u"TR_9016");
    common::explica([&] {
        return String(u"Notice ") +
               (rechazados == 1 ? u"TR_9015 (one measure refused)"
                                : u"TR_9014 (several measures refused)") +
               (tipoFuncion != 2 ? u" shown, with TR_9016 as its second line." : u" shown.");
    });
    platform.messageBox(message, title, platform::MsgIcon::Information);
    return message;
}

void programaST2(platform::Platform& platform, const String& nombreModelo) {
    const auto idiomas = common::leeIdiomas();
    if (!esModeloST(nombreModelo)) return;
    common::explica([&] {
        return u"Door model " + common::entreComillas(nombreModelo) +
               u" belongs to the ST programme: notice TR_9021 shown.";
    });
    const String text = common::textoTraducido(idiomas, u"TR_9021");
    const String caption = common::textoTraducido(idiomas, u"TR_9001");
    platform.messageBox(text, caption, platform::MsgIcon::Information);
}

void programaST(platform::Platform& platform, int32_t elId) {
    auto& mv = common::modVariables();
    auto& scene = host::use(mv.miScene);
    const double n = vb::CDbl(scene.ObjectGetInfo(mv.miSessionId, elId, 2));
    if (n != 31 && n != 32 && n != 33) return;
    const int16_t frente = vb::CInt(scene.ObjectGetInfo(mv.miSessionId, elId, 65));
    if (!esFrenteST(frente)) return;
    common::explica([&] {
        return u"Catalogue number " + vb::numberText(n) + u" with front code " +
               vb::numberText(frente) + u" belongs to the ST programme: notice TR_9021 shown.";
    });
    const String text = common::textoCatalogo(u"TR_9021");
    const String caption = common::textoCatalogo(u"TR_9001");
    platform.messageBox(text, caption, platform::MsgIcon::Information);
}

}  // namespace rules
