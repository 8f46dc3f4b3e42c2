#pragma once
// Creation of host objects by ProgID, as CreateObject does.
#include <memory>

#include "host/Host.h"

namespace host {

inline const String kProgIdAppli = u"Pelmora.Appli";
inline const String kProgIdScene = u"Pelmora.Scene";
inline const String kProgIdCatalog = u"Pelmora.Catalog";

class Factory {
  public:
    virtual ~Factory() = default;
    // Raises vb::RuntimeError (429 "ActiveX component can't create object" or the shell's own
    // description) when the object cannot be created.
    virtual std::shared_ptr<HostObject> CreateObject(const String& progId) = 0;
};

AppliRef createAppli(Factory& factory);
SceneRef createScene(Factory& factory);
CatalogRef createCatalog(Factory& factory);

// Calls through an object that is Nothing raise 91, as VB does.
Appli& use(const AppliRef& ref);
Scene& use(const SceneRef& ref);
Catalog& use(const CatalogRef& ref);

}  // namespace host
