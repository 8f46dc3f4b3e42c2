#pragma once
// The host contract over late-bound IDispatch, and the factory creating host objects by ProgID.
#include <oaidl.h>
#include <windows.h>

#include "host/Factory.h"
#include "host/Host.h"

namespace quorbel {

class DispatchFactory : public host::Factory {
  public:
    std::shared_ptr<host::HostObject> CreateObject(const vb::String& progId) override;
};

// The IDispatch behind a host object made here (null for any other object).
IDispatch* dispatchOf(const host::HostObject* object);

// Host objects around an IDispatch the caller received (null stays null).
host::AppliRef wrapAppli(IDispatch* object);
host::SceneRef wrapScene(IDispatch* object);
host::CatalogRef wrapCatalog(IDispatch* object);

}  // namespace quorbel
