#include "host/Session.h"

#include "vb/Conversions.h"

namespace host {

void openSession(Factory& factory, HostSlots slots, int32_t callParamsBlock) {
    *slots.appli = createAppli(factory);
    if (slots.scene) *slots.scene = createScene(factory);
    if (slots.catalog) *slots.catalog = createCatalog(factory);
    int32_t block = callParamsBlock;
    *slots.sessionId = vb::CLng(use(*slots.appli).StartSessionFromCallParams(block));
}

SessionScope::SessionScope(Factory& factory, HostSlots slots, int32_t callParamsBlock)
    : slots_(slots) {
    // A failure here ends the entry point before the destructor could run: release the objects
    // already created, so that none outlives the call.
    try {
        openSession(factory, slots, callParamsBlock);
    } catch (...) {
        release();
        throw;
    }
}

SessionScope::~SessionScope() {
    release();
}

void SessionScope::release() noexcept {
    if (slots_.catalog) slots_.catalog->reset();
    if (slots_.scene) slots_.scene->reset();
    slots_.appli->reset();
}

void SessionScope::endSession() {
    use(*slots_.appli).EndSession(*slots_.sessionId);
}

}  // namespace host
