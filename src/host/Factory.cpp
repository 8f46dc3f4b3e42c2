#include "host/Factory.h"

#include "vb/Errors.h"

namespace host {

namespace {

template <class T>
std::shared_ptr<T> createAs(Factory& factory, const String& progId) {
    auto object = std::dynamic_pointer_cast<T>(factory.CreateObject(progId));
    if (!object) throw vb::RuntimeError(vb::err::kCantCreateObject);
    return object;
}

template <class T>
T& deref(const std::shared_ptr<T>& ref) {
    if (!ref) throw vb::RuntimeError(vb::err::kObjectNotSet);
    return *ref;
}

}  // namespace

AppliRef createAppli(Factory& factory) {
    return createAs<Appli>(factory, kProgIdAppli);
}
SceneRef createScene(Factory& factory) {
    return createAs<Scene>(factory, kProgIdScene);
}
CatalogRef createCatalog(Factory& factory) {
    return createAs<Catalog>(factory, kProgIdCatalog);
}

Appli& use(const AppliRef& ref) {
    return deref(ref);
}
Scene& use(const SceneRef& ref) {
    return deref(ref);
}
Catalog& use(const CatalogRef& ref) {
    return deref(ref);
}

}  // namespace host
