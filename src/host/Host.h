#pragma once
// The host application's automation interface as the plug-in calls it: the three objects with
// the members HostMembers.h lists, every argument in its shape at the boundary. Every answer
// is a Variant the caller converts. A failing call raises vb::RuntimeError with the host's
// description.
#include <memory>

#include "host/HostMembers.h"

namespace host {

class HostObject {
  public:
    virtual ~HostObject() = default;
};

#define QUORBEL_DECLARE_PURE(object, member, keeping, ...) \
    virtual Variant member(QUORBEL_PARAMS(__VA_ARGS__)) = 0;

// "Pelmora.Appli"
class Appli : public HostObject {
  public:
    QUORBEL_APPLI_MEMBERS(QUORBEL_DECLARE_PURE)
};

// "Pelmora.Scene"
class Scene : public HostObject {
  public:
    QUORBEL_SCENE_MEMBERS(QUORBEL_DECLARE_PURE)
};

// "Pelmora.Catalog": works on the catalogue loaded last with FileLoad.
class Catalog : public HostObject {
  public:
    QUORBEL_CATALOG_MEMBERS(QUORBEL_DECLARE_PURE)
};

#undef QUORBEL_DECLARE_PURE

using AppliRef = std::shared_ptr<Appli>;
using SceneRef = std::shared_ptr<Scene>;
using CatalogRef = std::shared_ptr<Catalog>;

}  // namespace host
