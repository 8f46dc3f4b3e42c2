#include "host/CachingFactory.h"

namespace host {

CacheRef CachingFactory::sharedCache() {
    if (CacheRef cache = cache_.lock()) return cache;
    std::unique_ptr<ReadCache> storage = std::move(spare_->cache);
    if (!storage) storage = std::make_unique<ReadCache>();
    const auto giveBack = [spare = std::weak_ptr<Spare>(spare_)](ReadCache* used) {
        std::unique_ptr<ReadCache> emptied(used);
        emptied->clear();
        if (const auto waiting = spare.lock()) waiting->cache = std::move(emptied);
    };
    CacheRef cache(storage.release(), giveBack);  // a failure here gives it back too
    cache_ = cache;
    return cache;
}

std::shared_ptr<HostObject> CachingFactory::CreateObject(const String& progId) {
    std::shared_ptr<HostObject> object = inner_.CreateObject(progId);
    if (mode_ == ReadMode::Literal) return object;
    auto appli = std::dynamic_pointer_cast<Appli>(object);
    auto scene = std::dynamic_pointer_cast<Scene>(object);
    auto catalog = std::dynamic_pointer_cast<Catalog>(object);
    // An object that is none or several of the three is handed out as it is.
    if ((appli ? 1 : 0) + (scene ? 1 : 0) + (catalog ? 1 : 0) != 1) return object;
    if (appli) return std::make_shared<CachedAppli>(std::move(appli), sharedCache());
    if (scene) return std::make_shared<CachedScene>(std::move(scene), sharedCache());
    return std::make_shared<CachedCatalog>(std::move(catalog), sharedCache());
}

}  // namespace host
