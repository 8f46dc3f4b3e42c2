#pragma once
// Host faults the simulated host can be told to make, so that a run shows what the plug-in does
// when the host fails in the middle of a call. Host calls are counted over the whole scenario,
// from 1, every member alike; the K-th one can fail in one of four ways:
//   raise      the member raises error 440 "Host failure injected at call K (Member)";
//   emptyText  the member answers "" (a number, boolean or id read from it then fails as VB's
//              conversions fail);
//   minusOne   the member answers -1 (a 32-bit integer): an id, count or rank of -1;
//   hugeText   the member answers a text of 1,048,576 characters.
// The answer faults replace whatever the member answers, whatever its type; a member with no
// answer (ObjectSetInfo, ViewRefresh) does its work and its Empty answer is replaced the same way.
// Besides, a ProgID can be refused (creating it raises 429) and a member left out (calling it
// raises 438; it does its work nowhere and is not counted, as a call that never reaches the host).
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "vb/Variant.h"

namespace sim {

enum class FaultKind { Raise, EmptyText, MinusOne, HugeText };

struct CountedFault {
    int64_t call = 0;  // the host call that fails, from 1
    FaultKind kind = FaultKind::Raise;
};

struct FaultPlan {
    std::vector<CountedFault> counted;
    std::vector<vb::String> refusedProgIds;   // compared without regard to case
    std::vector<std::string> missingMembers;  // compared exactly, as the member names are

    bool empty() const {
        return counted.empty() && refusedProgIds.empty() && missingMembers.empty();
    }
    bool refuses(const vb::String& progId) const;
    bool lacks(const char* member) const;
    std::optional<FaultKind> at(int64_t call) const;
};

constexpr int kInjectedError = 440;
constexpr size_t kHugeTextLength = 1 << 20;

const char* faultKindName(FaultKind kind);
vb::String injectedDescription(int64_t call, const char* member);
// What a member answers instead of `answer` under an answer fault (kind is not Raise).
vb::Variant faultyAnswer(FaultKind kind);

// Takes the runners' fault options out of `args` into `plan`:
//   --fault K:KIND      KIND one of raise, emptyText, minusOne, hugeText
//   --refuse PROGID     creating PROGID fails (429)
//   --missing MEMBER    the host objects do not have MEMBER (438)
// Options may repeat. Raises std::invalid_argument, saying what is wrong, for a bad option.
void takeFaultOptions(std::vector<std::string>& args, FaultPlan& plan);

extern const char* const kFaultOptionsUsage;

}  // namespace sim
