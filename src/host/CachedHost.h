#pragma once
// The three host objects with their reads kept in the call's ReadCache. Every member still
// has the host's shape; writes, exports, the menu item, the view, the call parameters and the
// sessions always reach the host. A session's start or end forgets everything kept.
#include <any>
#include <memory>

#include "host/Host.h"
#include "host/ReadCache.h"

namespace host {

using CacheRef = std::shared_ptr<ReadCache>;

class CachedAppli : public Appli {
  public:
    CachedAppli(AppliRef inner, CacheRef cache)
        : inner_(std::move(inner)), cache_(std::move(cache)) {}
    QUORBEL_APPLI_MEMBERS(QUORBEL_DECLARE_OVERRIDE)

  private:
    AppliRef inner_;
    CacheRef cache_;
};

class CachedScene : public Scene {
  public:
    CachedScene(SceneRef inner, CacheRef cache)
        : inner_(std::move(inner)), cache_(std::move(cache)) {}
    QUORBEL_SCENE_MEMBERS(QUORBEL_DECLARE_OVERRIDE)

  private:
    template <class Ask>
    Variant read(Member member, int32_t a, int32_t b, int32_t c, Ask&& ask);
    SceneRef inner_;
    CacheRef cache_;
};

class CachedCatalog : public Catalog {
  public:
    CachedCatalog(CatalogRef inner, CacheRef cache)
        : inner_(std::move(inner)), cache_(std::move(cache)) {}
    QUORBEL_CATALOG_MEMBERS(QUORBEL_DECLARE_OVERRIDE)

    ReadCache& cache() { return *cache_; }

  private:
    template <class Key, class Ask>
    Variant read(const Key& key, Ask&& ask) {
        return cache_->read(cache_->catalogue(), key, std::forward<Ask>(ask));
    }
    CatalogRef inner_;
    CacheRef cache_;
};

// A slot beside the answers of the catalogue file loaded last, where a caller keeps what it
// derived from them; it lives exactly as long as those answers. Null when `catalog` keeps no
// answers (the literal mode) or when no file is current (after a failed load).
std::any* fileMemo(Catalog& catalog);

}  // namespace host
