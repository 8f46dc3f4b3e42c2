// The components handlers open the special-editing dialog; not built yet.
#include "handlers/NotBuilt.h"
#include "wizard/Wizard.h"

namespace wizard {

bool Wizard::OnObjectComponentsBefore(int32_t) { handlers::notBuilt(u"Wizard.OnObjectComponentsBefore"); }
bool Wizard::ObjectWizard(int32_t) { handlers::notBuilt(u"Wizard.ObjectWizard"); }

}  // namespace wizard
