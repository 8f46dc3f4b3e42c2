#pragma once
// The session pattern every entry point follows: create the host objects it needs, open the
// session from the call-parameter block, and release the objects when the entry point returns,
// also when an error ends it. Ending the session stays explicit, since each entry point places
// EndSession at its own step (and an error skips it, as it did in the host's own plug-ins).
#include <cstdint>

#include "host/Factory.h"

namespace host {

struct HostSlots {
    AppliRef* appli = nullptr;
    SceneRef* scene = nullptr;      // null: the entry point does not create a scene object
    CatalogRef* catalog = nullptr;  // null: the entry point does not create a catalogue object
    int32_t* sessionId = nullptr;
};

// Creates the objects named by `slots` and sets *slots.sessionId from
// StartSessionFromCallParams(callParamsBlock). An error leaves the objects created before it in
// their slots, for an entry point that traps it and still ends the session on them.
void openSession(Factory& factory, HostSlots slots, int32_t callParamsBlock);

class SessionScope {
  public:
    // Creates the objects named by `slots` and sets *slots.sessionId from
    // StartSessionFromCallParams(callParamsBlock).
    SessionScope(Factory& factory, HostSlots slots, int32_t callParamsBlock);
    ~SessionScope();  // releases (sets to nothing) every object it created
    SessionScope(const SessionScope&) = delete;
    SessionScope& operator=(const SessionScope&) = delete;

    bool isOpen() const { return *slots_.sessionId != 0; }
    void endSession();  // EndSession(sessionId) on the application object

  private:
    void release() noexcept;
    HostSlots slots_;
};

}  // namespace host
