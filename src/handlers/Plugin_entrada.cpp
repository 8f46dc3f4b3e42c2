// Start-up, the menu item's callback and the diagnostic components method.
#include "handlers/Entrada.h"
#include "handlers/Plugin.h"
#include "host/Session.h"
#include "rules/ModVariables.h"
#include "vb/Conversions.h"

namespace handlers {

namespace {

void muestra(Env& env, const String& text) {
    env.platform.messageBox(text, platform::kTituloComponente, platform::MsgIcon::None);
}

}  // namespace

bool Plugin::OnAppStartAfter(int32_t lCallParamsBlock) {
    host::AppliRef appli;
    int32_t session = 0;
    host::SessionScope scope(env_.factory, {&appli, nullptr, nullptr, &session}, lCallParamsBlock);
    if (scope.isOpen()) {
        String command = u"ViewRefresh";
        host::use(appli).InsertMenuItem(session, command, 0, 0, u"", 8, 10, u"Quorbel.dll",
                                        u"Plugin", u"SceneCheck");
        scope.endSession();
    }
    return true;
}

bool Plugin::SceneCheck(int32_t lCallParamsBlock) {
    host::AppliRef appli;
    host::SceneRef scene;
    int32_t session = 0;
    host::SessionScope scope(env_.factory, {&appli, &scene, nullptr, &session}, lCallParamsBlock);
    if (scope.isOpen()) {
        host::use(scene).ViewRefresh(session);
        scope.endSession();
    }
    return false;
}

bool Plugin::OnObjectComponentsB(int32_t lCallParamsBlock) {
    return componentesB(env_, lCallParamsBlock);
}

bool componentesB(Env& env, int32_t lCallParamsBlock) {
    auto& mv = rules::modVariables();
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

}  // namespace handlers
