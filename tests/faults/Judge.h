#pragma once
// What a faulted run must show, judged from its transcript against the run without a fault.
#include <string>
#include <vector>

#include "Play.h"

namespace faults {

// The problems of `faulted`, a run whose plan failed host call `call` with `kind`; `clean` is
// the run without a fault. Empty when the run behaved.
std::vector<std::string> judge(const Played& clean, const Played& faulted, int64_t call,
                               sim::FaultKind kind, int64_t hostCallBudget);

// How the faulted call ended: "failed" (an error left it), "trapped" (the trap's message) or
// "completed".
std::string outcome(const Played& faulted);

}  // namespace faults
