#pragma once
// What the simulated host knows while the plug-in runs: the world, the call in progress, the
// sessions opened so far, the current catalogue and the files the plug-in created.
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "host/HostMembers.h"
#include "sim/Faults.h"
#include "sim/Recorder.h"
#include "sim/Scenario.h"

namespace sim {

struct CurrentCall {
    int32_t block = 0;  // the call-parameter block handed to the plug-in
    const CallSpec* spec = nullptr;
    int32_t dialogHandle = 0;  // a shell's real attribute dialog; 0: the simulated handle
};

// The injected fault that fired: in which call of the scenario (from 0) and which member.
struct FiredFault {
    size_t callIndex = 0;
    int64_t hostCall = 0;
    FaultKind kind = FaultKind::Raise;
    std::string member;
};

// Writes one exported resource; a shell that keeps its files on a real drive sets its own.
using ResourceWriter = std::function<WriteResult(const String& path, const String& content)>;

class HostState {
  public:
    HostState(World& world, Recorder& recorder) : world(world), recorder(recorder) {}

    World& world;
    Recorder& recorder;
    CurrentCall call;
    int32_t sessionsOpened = 0;
    const CatalogData* currentCatalog = nullptr;  // made current by FileLoad, for the whole world

    // Every host member runs its body through here: a member the plan leaves out raises 438
    // uncounted; otherwise the call is counted and recorded, and fails as the plan says.
    template <class Body>
    vb::Variant member(host::Member name, Body&& body) {
        const std::optional<FaultKind> fault = enter(host::memberName(name));
        vb::Variant answer = body();
        return fault ? faultyAnswer(*fault) : answer;
    }

    FaultPlan faults;
    int64_t hostCallsMade = 0;  // over the whole scenario
    // Calls past this many raise error 440, so that a run that would not end does (0: none).
    int64_t hostCallBudget = 0;
    std::vector<FiredFault> fired;
    std::vector<const char*>* callTrace = nullptr;  // when set, receives every member called
    int liveHostObjects = 0;                        // Pelmora objects not yet released

    // -2 is the call's object; any other id is itself.
    int32_t resolve(int32_t id) const;
    // The window handle of the host's attribute dialog during the current call.
    int32_t attributeDialogHandle() const {
        return call.dialogHandle ? call.dialogHandle : kDialogHandleBase + call.block;
    }
    const String* attributeDialogText(int32_t handle, int32_t controlId) const;

    // FileExportResource's write: into the world's files unless `resourceWriter` is set.
    WriteResult writeResource(const String& path, const String& content);
    ResourceWriter resourceWriter;

    void noteCreatedFile(const String& path);
    const std::vector<String>& createdFiles() const { return createdFiles_; }

    // {"100": {"12": "600"}, ...}: every object's information, depth first.
    Json objectsJson() const;
    Json filesJson() const;

    static constexpr int32_t kDialogHandleBase = 0x150000;

  private:
    // Raises for a left-out member, a budget spent or a raise fault; the answer fault, if any.
    std::optional<FaultKind> enter(const char* member);

    std::vector<String> createdFiles_;
    std::unordered_set<String> createdKeys_;
};

}  // namespace sim
