// The components handlers open the special-editing dialog; not built yet.
#include "handlers/NotBuilt.h"
#include "handlers/Plugin.h"

namespace handlers {

bool Plugin::OnObjectComponentsBefore(int32_t) { notBuilt(u"Plugin.OnObjectComponentsBefore"); }
bool Plugin::ObjectWizard(int32_t) { notBuilt(u"Plugin.ObjectWizard"); }

}  // namespace handlers
