// Interface methods not built yet; each moves to its own area file when it is built.
#include "handlers/NotBuilt.h"
#include "wizard/Wizard.h"

namespace wizard {

using handlers::notBuilt;

bool Wizard::casoForma(int32_t) { notBuilt(u"Wizard.casoForma"); }
bool Wizard::casoXey(int32_t) { notBuilt(u"Wizard.casoXey"); }
bool Wizard::casoVegasa(int32_t) { notBuilt(u"Wizard.casoVegasa"); }
bool Wizard::OnObjectPlaceAfter(int32_t) { notBuilt(u"Wizard.OnObjectPlaceAfter"); }
bool Wizard::OnObjectComponents(int32_t) { notBuilt(u"Wizard.OnObjectComponents"); }
void Wizard::InicEsp() { notBuilt(u"Wizard.InicEsp"); }
void Wizard::InicEspMod(int32_t&, host::CatalogRef&) { notBuilt(u"Wizard.InicEspMod"); }
void Wizard::InicEspMod2() { notBuilt(u"Wizard.InicEspMod2"); }
void Wizard::GenModEsp(int32_t&, host::AppliRef&, host::SceneRef&, host::CatalogRef&) { notBuilt(u"Wizard.GenModEsp"); }
void Wizard::GenExcepciones(int32_t&, host::AppliRef&, host::SceneRef&, host::CatalogRef&) { notBuilt(u"Wizard.GenExcepciones"); }
bool Wizard::modeloValido(String&, String&, String&) { notBuilt(u"Wizard.modeloValido"); }

}  // namespace wizard
