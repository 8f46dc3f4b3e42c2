#pragma once
// The host application's automation interface as the plug-in calls it. Argument types keep the
// host's shapes: the session id by reference as a 32-bit integer, int16_t where the host takes
// a 16-bit integer, bool for OLE booleans. Every answer is a Variant the caller converts.
// A failing call raises vb::RuntimeError with the host's description.
#include <cstdint>
#include <memory>

#include "vb/Variant.h"

namespace host {

using vb::String;
using vb::Variant;

class HostObject {
  public:
    virtual ~HostObject() = default;
};

// "Pelmora.Appli"
class Appli : public HostObject {
  public:
    virtual Variant StartSessionFromCallParams(int32_t& callParamsBlock) = 0;
    virtual Variant EndSession(int32_t& sessionId) = 0;
    virtual Variant GetLanguage(int32_t& sessionId) = 0;
    virtual Variant GetCallParamsInfo(int32_t& sessionId, int32_t code) = 0;
    virtual Variant InsertMenuItem(int32_t& sessionId, String& command, int16_t a, int16_t b,
                                   const String& text, int16_t c, int16_t d, const String& dll,
                                   const String& className, const String& method) = 0;
};

// "Pelmora.Scene"
class Scene : public HostObject {
  public:
    virtual Variant ObjectGetInfo(int32_t& sessionId, int32_t objectId, int32_t code) = 0;
    virtual Variant ObjectSetInfo(int32_t& sessionId, int32_t objectId, const String& value,
                                  int32_t code) = 0;
    virtual Variant ViewRefresh(int32_t& sessionId) = 0;
    virtual Variant SceneGetObjectsNb(int32_t& sessionId) = 0;
    virtual Variant SceneGetObjectId(int32_t& sessionId, int32_t position) = 0;
    virtual Variant ObjectGetParentId(int32_t& sessionId, int32_t objectId) = 0;
    virtual Variant ObjectGetChildrenNb(int32_t& sessionId, int32_t objectId, int16_t mode) = 0;
    virtual Variant ObjectGetChildId(int32_t& sessionId, int32_t objectId, int32_t position,
                                     int16_t mode) = 0;
    virtual Variant ObjectGetScript(int32_t& sessionId, int32_t objectId) = 0;
    virtual Variant EditReplaceSelection(int32_t& sessionId, const String& catalog,
                                         const String& reference, int16_t a, int32_t width,
                                         int32_t depth, int32_t height, int16_t b) = 0;
};

// "Pelmora.Catalog": works on the catalogue loaded last with FileLoad.
class Catalog : public HostObject {
  public:
    virtual Variant FileLoad(int32_t& sessionId, const String& path) = 0;
    virtual Variant GetInfo(int32_t& sessionId, int32_t code) = 0;
    virtual Variant DicoGetStringFromKey(int32_t& sessionId, const String& text,
                                         const String& language) = 0;
    virtual Variant TableGetLinesNb(int32_t& sessionId, int32_t table, int16_t zero) = 0;
    virtual Variant TableGetLineRankFromCode(int32_t& sessionId, int32_t table, int32_t zero,
                                             int16_t selector, const String& code, bool flag) = 0;
    virtual Variant TableGetLineRankFromName(int32_t& sessionId, int32_t table, int32_t zero,
                                             int16_t selector, const String& name, bool flag) = 0;
    virtual Variant TableGetLineInfo(int32_t& sessionId, int32_t table, int32_t zero, int32_t rank,
                                     int16_t column) = 0;
    virtual Variant FileExportResource(int32_t& sessionId, int32_t rank, const String& path) = 0;
};

using AppliRef = std::shared_ptr<Appli>;
using SceneRef = std::shared_ptr<Scene>;
using CatalogRef = std::shared_ptr<Catalog>;

}  // namespace host
