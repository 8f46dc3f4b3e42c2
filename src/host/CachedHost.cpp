#include "host/CachedHost.h"

namespace host {

template <Keeping keeping, class Key, class Ask>
Variant CachedObject::keep([[maybe_unused]] const Key& key, Ask&& ask) {
    ReadCache& cache = *cache_;
    if constexpr (keeping == Keeping::SceneRead) {
        return cache.scene().read(key, ask);
    } else if constexpr (keeping == Keeping::FileRead) {
        Reads* reads = cache.catalogue();
        return reads ? reads->read(key, ask) : ask();
    } else if constexpr (keeping == Keeping::SceneWrite) {
        // Any write forgets every scene answer: -2 and the object's own id name the same
        // object, and the host may derive other information from what was written.
        cache.sceneWritten();
        return ask();
    } else if constexpr (keeping == Keeping::FileLoad) {
        // Always asked: the load is the host's own work (and seen in its record). Only an
        // answer of True makes the file's answers current.
        cache.loadFailed();
        Variant answer = ask();
        if (answer.type() == vb::VarType::Boolean && answer.boolean()) cache.loaded(key.path);
        return answer;
    } else if constexpr (keeping == Keeping::Session) {
        cache.clear();
        return ask();
    } else {
        return ask();
    }
}

#define QUORBEL_KEY_ARG_(s, n) n
#define QUORBEL_FORWARD(object, member, keeping, ...)                                          \
    Variant Cached##object::member(QUORBEL_PARAMS(__VA_ARGS__)) {                              \
        return keep<Keeping::keeping>(                                                         \
            keys::member{QUORBEL_AFTER_SESSION(QUORBEL_KEY_ARG_, QUORBEL_COMMA, __VA_ARGS__)}, \
            [&] { return inner_->member(QUORBEL_ARGS(__VA_ARGS__)); });                        \
    }
QUORBEL_HOST_MEMBERS(QUORBEL_FORWARD)
#undef QUORBEL_FORWARD
#undef QUORBEL_KEY_ARG_

bool keepsReads(Catalog& catalog) {
    auto* cached = dynamic_cast<CachedCatalog*>(&catalog);
    return cached && cached->cache().catalogue();
}

std::any* fileMemo(Catalog& catalog) {
    auto* cached = dynamic_cast<CachedCatalog*>(&catalog);
    return cached ? cached->cache().memo() : nullptr;
}

}  // namespace host
