#pragma once
// The host-fault sweep: every golden scenario and sample is played once as it is, then again
// with the simulated host failing its K-th call in each of the four ways (sim/Faults.h), and
// every faulted run is judged: the faulted call ends as the plug-in's own code says it must, no
// dialog stays open, no host object outlives a call, the run ends within a budget of host calls,
// and the scenario's first call, played again afterwards in the same host, behaves as it does
// after the run without a fault.
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "sim/Faults.h"

namespace faults {

struct SweepScenario {
    std::string name;  // relative to the source folder
    std::string text;  // the scenario file's bytes
};

// tests/scenarios/**/X.json with an X.expected.json beside it, samples/*.json and
// samples/dialog/*.json, sorted by name.
std::vector<SweepScenario> sweepScenarios(const std::string& sourceDir);

// How many of a scenario's host calls are failed.
enum class Share {
    Members,  // the first and last call of each member: every member's error paths, thinly
    Sampled,  // every call up to kEveryUpTo calls; beyond, the members' and a fixed sample
    Every,    // every call
};

// Which host calls to fail in a scenario whose run makes `trace.size()` calls (trace[i] is the
// member of call i + 1), for `share`; the Sampled share draws with a seed made from `name`, up
// to at least kSampled calls. Sorted.
constexpr size_t kEveryUpTo = 300;
constexpr size_t kSampled = 200;
std::vector<int64_t> callsToFail(const std::string& name, const std::vector<const char*>& trace,
                                 Share share);

struct Figures {
    size_t scenarios = 0;
    size_t runs = 0;
    int64_t hostCalls = 0;                   // of the runs without a fault
    std::map<std::string, size_t> outcomes;  // "KIND OUTCOME" -> runs (Judge.h: outcome)
    std::vector<std::string> findings;
};

// Sweeps one scenario; `beforeRun` is told each run ("name K:KIND") before it is played.
void sweep(const SweepScenario& scenario, Share share, Figures& figures,
           const std::function<void(const std::string&)>& beforeRun);

}  // namespace faults
