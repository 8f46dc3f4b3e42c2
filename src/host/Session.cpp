#include "host/Session.h"

#include "vb/Conversions.h"

namespace host {

SessionScope::SessionScope(Factory& factory, HostSlots slots, int32_t callParamsBlock)
    : slots_(slots) {
    *slots_.appli = createAppli(factory);
    if (slots_.scene) *slots_.scene = createScene(factory);
    if (slots_.catalog) *slots_.catalog = createCatalog(factory);
    int32_t block = callParamsBlock;
    *slots_.sessionId = vb::CLng(use(*slots_.appli).StartSessionFromCallParams(block));
}

SessionScope::~SessionScope() {
    if (slots_.catalog) slots_.catalog->reset();
    if (slots_.scene) slots_.scene->reset();
    slots_.appli->reset();
}

void SessionScope::endSession() {
    use(*slots_.appli).EndSession(*slots_.sessionId);
}

}  // namespace host
