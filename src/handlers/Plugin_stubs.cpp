// Interface methods not built yet; each moves to its own area file when it is built.
#include "handlers/NotBuilt.h"
#include "handlers/Plugin.h"

namespace handlers {

bool Plugin::OnObjectComponentsB(int32_t) { notBuilt(u"Plugin.OnObjectComponentsB"); }
bool Plugin::OnObjectAttributsDlgValidation(int32_t) { notBuilt(u"Plugin.OnObjectAttributsDlgValidation"); }
bool Plugin::OnObjectPlaceAfter(int32_t) { notBuilt(u"Plugin.OnObjectPlaceAfter"); }
bool Plugin::OnObjectFinishesAfter(int32_t) { notBuilt(u"Plugin.OnObjectFinishesAfter"); }
bool Plugin::OnSceneGenericFinishesAfter(int32_t) { notBuilt(u"Plugin.OnSceneGenericFinishesAfter"); }
bool Plugin::OnAppStartAfter(int32_t) { notBuilt(u"Plugin.OnAppStartAfter"); }
bool Plugin::SceneCheck(int32_t) { notBuilt(u"Plugin.SceneCheck"); }

}  // namespace handlers
