#pragma once
// The user's side of one call: whatever plays the call's `ui` actions on the plug-in's real
// dialog window. It is created before the call and destroyed after it, so it can watch for the
// dialog (e.g. a thread or a hook) while the call runs. Message boxes are answered by the
// driver's own hook; `messageBoxOpen()` (MessageBoxHook.h) tells when one is on screen.
#include <memory>

#include "sim/Recorder.h"
#include "sim/Scenario.h"

namespace hostdriver {

class CallUi {
  public:
    virtual ~CallUi() = default;
};

std::unique_ptr<CallUi> startCallUi(const sim::CallSpec& call, sim::Recorder& recorder);

}  // namespace hostdriver
