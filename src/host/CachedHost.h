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
    Variant StartSessionFromCallParams(int32_t& callParamsBlock) override;
    Variant EndSession(int32_t& sessionId) override;
    Variant GetLanguage(int32_t& sessionId) override;
    Variant GetCallParamsInfo(int32_t& sessionId, int32_t code) override;
    Variant InsertMenuItem(int32_t& sessionId, String& command, int16_t a, int16_t b,
                           const String& text, int16_t c, int16_t d, const String& dll,
                           const String& className, const String& method) override;

  private:
    AppliRef inner_;
    CacheRef cache_;
};

class CachedScene : public Scene {
  public:
    CachedScene(SceneRef inner, CacheRef cache)
        : inner_(std::move(inner)), cache_(std::move(cache)) {}
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
    template <class Ask>
    Variant read(Member member, int32_t a, int32_t b, int32_t c, Ask&& ask);
    SceneRef inner_;
    CacheRef cache_;
};

class CachedCatalog : public Catalog {
  public:
    CachedCatalog(CatalogRef inner, CacheRef cache)
        : inner_(std::move(inner)), cache_(std::move(cache)) {}
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
