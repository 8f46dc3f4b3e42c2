#pragma once
// The three host objects with their reads kept in the call's ReadCache. Every member keeps the
// host's shape and does what its Keeping (HostMembers.h) says: reads are answered from what the
// host answered before in the call; writes, exports, the menu item, the view, the call
// parameters and the sessions always reach the host. A session's start or end forgets
// everything kept.
#include <any>
#include <memory>

#include "host/Host.h"
#include "host/ReadCache.h"

namespace host {

using CacheRef = std::shared_ptr<ReadCache>;

class CachedObject {
  protected:
    explicit CachedObject(CacheRef cache) : cache_(std::move(cache)) {}
    // The one way every member goes: `ask` calls the inner object.
    template <Keeping keeping, class Key, class Ask>
    Variant keep(const Key& key, Ask&& ask);
    CacheRef cache_;
};

class CachedAppli : public Appli, CachedObject {
  public:
    CachedAppli(AppliRef inner, CacheRef cache)
        : CachedObject(std::move(cache)), inner_(std::move(inner)) {}
    QUORBEL_APPLI_MEMBERS(QUORBEL_DECLARE_OVERRIDE)

  private:
    AppliRef inner_;
};

class CachedScene : public Scene, CachedObject {
  public:
    CachedScene(SceneRef inner, CacheRef cache)
        : CachedObject(std::move(cache)), inner_(std::move(inner)) {}
    QUORBEL_SCENE_MEMBERS(QUORBEL_DECLARE_OVERRIDE)

  private:
    SceneRef inner_;
};

class CachedCatalog : public Catalog, CachedObject {
  public:
    CachedCatalog(CatalogRef inner, CacheRef cache)
        : CachedObject(std::move(cache)), inner_(std::move(inner)) {}
    QUORBEL_CATALOG_MEMBERS(QUORBEL_DECLARE_OVERRIDE)

    ReadCache& cache() { return *cache_; }

  private:
    CatalogRef inner_;
};

// Whether `catalog` keeps the answers of the file it reads now: false in the literal mode and
// after a failed load, until the next successful one.
bool keepsReads(Catalog& catalog);

// A slot beside the answers of the catalogue file loaded last, where a caller keeps what it
// derived from them; it lives exactly as long as those answers. Null when `catalog` keeps no
// answers (as keepsReads).
std::any* fileMemo(Catalog& catalog);

}  // namespace host
