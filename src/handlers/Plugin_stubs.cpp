// Interface methods not built yet; each moves to its own area file when it is built.
#include "handlers/NotBuilt.h"
#include "handlers/Plugin.h"

namespace handlers {

Variant Plugin::construyeMensaje(bool&, bool&, bool&, int16_t&) { notBuilt(u"Plugin.construyeMensaje"); }
bool Plugin::procesaDimension(int32_t&, String&, String&, String&, String&, String&, String&, String&, String&, int32_t&) { notBuilt(u"Plugin.procesaDimension"); }
bool Plugin::procesaObjeto(String&, String&, String&, int32_t&, String&, int16_t&) { notBuilt(u"Plugin.procesaObjeto"); }
bool Plugin::OnObjectComponentsB(int32_t) { notBuilt(u"Plugin.OnObjectComponentsB"); }
bool Plugin::OnObjectAttributsDlgValidation(int32_t) { notBuilt(u"Plugin.OnObjectAttributsDlgValidation"); }
bool Plugin::OnObjectPlaceAfter(int32_t) { notBuilt(u"Plugin.OnObjectPlaceAfter"); }
bool Plugin::OnObjectFinishesAfter(int32_t) { notBuilt(u"Plugin.OnObjectFinishesAfter"); }
bool Plugin::OnSceneGenericFinishesAfter(int32_t) { notBuilt(u"Plugin.OnSceneGenericFinishesAfter"); }
void Plugin::InicEsp() { notBuilt(u"Plugin.InicEsp"); }
void Plugin::InicEspMod(int32_t&, host::CatalogRef&) { notBuilt(u"Plugin.InicEspMod"); }
void Plugin::InicEspMod2() { notBuilt(u"Plugin.InicEspMod2"); }
void Plugin::InicEspMod3(int32_t&, host::CatalogRef&) { notBuilt(u"Plugin.InicEspMod3"); }
void Plugin::GenModEsp(int32_t&, host::AppliRef&, host::SceneRef&, host::CatalogRef&) { notBuilt(u"Plugin.GenModEsp"); }
void Plugin::GenExcepciones(int32_t&, host::AppliRef&, host::SceneRef&, host::CatalogRef&) { notBuilt(u"Plugin.GenExcepciones"); }
bool Plugin::modeloValido(String&, String&, String&) { notBuilt(u"Plugin.modeloValido"); }
bool Plugin::OnAppStartAfter(int32_t) { notBuilt(u"Plugin.OnAppStartAfter"); }
bool Plugin::SceneCheck(int32_t) { notBuilt(u"Plugin.SceneCheck"); }
Variant Plugin::programaST(int32_t&) { notBuilt(u"Plugin.programaST"); }
Variant Plugin::programaST2(String&) { notBuilt(u"Plugin.programaST2"); }

}  // namespace handlers
