#pragma once
// Plays a scenario's calls through the real plug-in: one Quorbel.Plugin and one Quorbel.Wizard
// created by ProgID for the whole scenario, each method called by name through IDispatch with
// the call-parameter block or the scenario's arguments, each call recorded as the native
// runner records it. Errors never leave a call: the method's error info becomes the call's
// `error`.
#include <oaidl.h>

#include "sim/Dispatch.h"
#include "sim/Player.h"

namespace hostdriver {

class ComPlayer {
  public:
    // Raises std::runtime_error when a class of the plug-in cannot be created.
    explicit ComPlayer(sim::Simulation& simulation);
    ~ComPlayer();
    ComPlayer(const ComPlayer&) = delete;
    ComPlayer& operator=(const ComPlayer&) = delete;

    void play(const sim::CallSpec& call);

  private:
    sim::MethodOutcome invoke(const sim::CallSpec& call, int32_t block);

    sim::Simulation& sim_;
    IDispatch* plugin_ = nullptr;
    IDispatch* wizard_ = nullptr;
    int32_t callsPlayed_ = 0;
};

}  // namespace hostdriver
