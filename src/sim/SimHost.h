#pragma once
// The host's automation objects over the simulated world. Every member counts itself in the
// transcript; object id -2 means the call's object, and events carry real ids.
#include <memory>

#include "host/Factory.h"
#include "host/Host.h"
#include "sim/HostState.h"

namespace sim {

using host::Member;
using host::String;
using host::Variant;

// Counts the host objects alive, so that a run can tell that every one was released.
class LiveCount {
  public:
    explicit LiveCount(int& live) : live_(live) { ++live_; }
    ~LiveCount() { --live_; }
    LiveCount(const LiveCount&) = delete;
    LiveCount& operator=(const LiveCount&) = delete;

  private:
    int& live_;
};

class SimAppli : public host::Appli {
  public:
    explicit SimAppli(HostState& state) : s_(state) {}
    QUORBEL_APPLI_MEMBERS(QUORBEL_DECLARE_OVERRIDE)

  private:
    HostState& s_;
    LiveCount live_{s_.liveHostObjects};
};

class SimScene : public host::Scene {
  public:
    explicit SimScene(HostState& state) : s_(state) {}
    QUORBEL_SCENE_MEMBERS(QUORBEL_DECLARE_OVERRIDE)

  private:
    const SceneObject* object(int32_t id) const;
    HostState& s_;
    LiveCount live_{s_.liveHostObjects};
};

class SimCatalog : public host::Catalog {
  public:
    explicit SimCatalog(HostState& state) : s_(state) {}
    QUORBEL_CATALOG_MEMBERS(QUORBEL_DECLARE_OVERRIDE)

  private:
    const Table* table(int32_t number) const;
    HostState& s_;
    LiveCount live_{s_.liveHostObjects};
};

// ProgID -> object; the comparison ignores case, as the registry does. A ProgID the fault plan
// refuses raises 429, as one that is not registered.
class SimFactory : public host::Factory {
  public:
    explicit SimFactory(HostState& state) : s_(state) {}
    std::shared_ptr<host::HostObject> CreateObject(const String& progId) override;

  private:
    HostState& s_;
};

}  // namespace sim
