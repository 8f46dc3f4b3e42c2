#include "common/Entrada.h"

#include "common/ModVariables.h"
#include "host/Session.h"
#include "vb/Conversions.h"

namespace common {

namespace {

void muestra(Env& env, const vb::String& text) {
    env.platform.messageBox(text, platform::kTituloComponente, platform::MsgIcon::None);
}

}  // namespace

bool componentesB(Env& env, int32_t lCallParamsBlock) {
    auto& mv = modVariables();
    host::SessionScope scope(env.factory, {&mv.miAppli, &mv.miScene, nullptr, &mv.miSessionId},
                             lCallParamsBlock);
    auto& scene = host::use(mv.miScene);
    const auto info = [&](int32_t code) {
        return vb::CStr(scene.ObjectGetInfo(mv.miSessionId, -2, code));
    };
    muestra(env, info(7));
    muestra(env, info(8));
    bool result = true;
    if (info(0) == u"forma10") {
        host::use(mv.miAppli).GetCallParamsInfo(mv.miSessionId, 5);
        muestra(env, info(0));
        result = false;
    }
    scope.endSession();
    return result;
}

}  // namespace common
