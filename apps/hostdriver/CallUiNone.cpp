// No dialog player in this build: calls with user actions are played without them.
#include "CallUi.h"

namespace hostdriver {

std::unique_ptr<CallUi> startCallUi(const sim::CallSpec&, sim::Recorder&) {
    return std::make_unique<CallUi>();
}

}  // namespace hostdriver
