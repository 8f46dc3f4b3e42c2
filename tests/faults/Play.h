#pragma once
// One run of a scenario for the sweep: the scenario's calls with a fault plan, checked after
// every call for host objects left alive, then the scenario's first call played once more in
// the same host (same Plugin and Wizard, same thread) on the scene and files the scenario began
// with and the session count and catalogue the run without a fault had at that point.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "sim/Faults.h"
#include "sim/HostState.h"
#include "sim/Json.h"
#include "sim/Scenario.h"

namespace faults {

// Where the host stood when the first call was played again after the run without a fault.
struct FollowUpStart {
    int32_t sessionsOpened = 0;
    std::optional<vb::String> currentCatalog;  // its path
};

struct RunSetup {
    sim::FaultPlan plan;
    int64_t hostCallBudget = 0;                    // 0: none
    std::vector<const char*>* trace = nullptr;     // members called, in order
    const FollowUpStart* followUpStart = nullptr;  // null: the run without a fault
};

struct Played {
    sim::Json calls;      // the scenario's calls as the transcript writes them
    sim::Json followUp;   // the first call played again
    FollowUpStart start;  // how the host stood before the follow-up
    std::vector<sim::FiredFault> fired;
    int64_t hostCalls = 0;
    std::vector<std::string> problems;  // host objects alive after a call
};

Played play(const sim::Scenario& loaded, const RunSetup& setup);

}  // namespace faults
