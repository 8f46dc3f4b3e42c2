// Start-up, the menu item's callback and the diagnostic components method.
#include "common/Entrada.h"
#include "handlers/Plugin.h"
#include "host/Session.h"

namespace handlers {

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
    return common::componentesB(env_, lCallParamsBlock);
}

}  // namespace handlers
