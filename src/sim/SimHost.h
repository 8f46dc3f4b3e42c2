#pragma once
// The host's automation objects over the simulated world. Every member counts itself in the
// transcript; object id -2 means the call's object, and events carry real ids.
#include <memory>

#include "host/Factory.h"
#include "host/Host.h"
#include "sim/HostState.h"

namespace sim {

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
    Variant StartSessionFromCallParams(int32_t& callParamsBlock) override;
    Variant EndSession(int32_t& sessionId) override;
    Variant GetLanguage(int32_t& sessionId) override;
    Variant GetCallParamsInfo(int32_t& sessionId, int32_t code) override;
    Variant InsertMenuItem(int32_t& sessionId, String& command, int16_t a, int16_t b,
                           const String& text, int16_t c, int16_t d, const String& dll,
                           const String& className, const String& method) override;

  private:
    HostState& s_;
    LiveCount live_{s_.liveHostObjects};
};

class SimScene : public host::Scene {
  public:
    explicit SimScene(HostState& state) : s_(state) {}
    Variant ObjectGetInfo(int32_t& sessionId, int32_t objectId, int32_t code) override;
    Variant ObjectSetInfo(int32_t& sessionId, int32_t objectId, const String& value,
                          int32_t code) override;
    Variant ViewRefresh(int32_t& sessionId) override;
    Variant SceneGetObjectsNb(int32_t& sessionId) override;
    Variant SceneGetObjectId(int32_t& sessionId, int32_t position) override;
    Variant ObjectGetParentId(int32_t& sessionId, int32_t objectId) override;
    Variant ObjectGetChildrenNb(int32_t& sessionId, int32_t objectId, int16_t mode) override;
    Variant ObjectGetChildId(int32_t& sessionId, int32_t objectId, int32_t position,
                             int16_t mode) override;
    Variant ObjectGetScript(int32_t& sessionId, int32_t objectId) override;
    Variant EditReplaceSelection(int32_t& sessionId, const String& catalog, const String& reference,
                                 int16_t a, int32_t width, int32_t depth, int32_t height,
                                 int16_t b) override;

  private:
    const SceneObject* object(int32_t id) const;
    HostState& s_;
    LiveCount live_{s_.liveHostObjects};
};

class SimCatalog : public host::Catalog {
  public:
    explicit SimCatalog(HostState& state) : s_(state) {}
    Variant FileLoad(int32_t& sessionId, const String& path) override;
    Variant GetInfo(int32_t& sessionId, int32_t code) override;
    Variant DicoGetStringFromKey(int32_t& sessionId, const String& text,
                                 const String& language) override;
    Variant TableGetLinesNb(int32_t& sessionId, int32_t table, int16_t zero) override;
    Variant TableGetLineRankFromCode(int32_t& sessionId, int32_t table, int32_t zero,
                                     int16_t selector, const String& code, bool flag) override;
    Variant TableGetLineRankFromName(int32_t& sessionId, int32_t table, int32_t zero,
                                     int16_t selector, const String& name, bool flag) override;
    Variant TableGetLineInfo(int32_t& sessionId, int32_t table, int32_t zero, int32_t rank,
                             int16_t column) override;
    Variant FileExportResource(int32_t& sessionId, int32_t rank, const String& path) override;

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
