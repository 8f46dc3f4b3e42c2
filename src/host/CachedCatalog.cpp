#include "host/CachedHost.h"

namespace host {

namespace {

bool isTrue(const Variant& answer) {
    return answer.type() == vb::VarType::Boolean && answer.boolean();
}

}  // namespace

// Always asked: the load is the host's own work (and seen in its record). Only an answer of
// True makes the file's answers current.
Variant CachedCatalog::FileLoad(int32_t& sessionId, const String& path) {
    cache_->loadFailed();
    Variant answer = inner_->FileLoad(sessionId, path);
    if (isTrue(answer)) cache_->loaded(path);
    return answer;
}

Variant CachedCatalog::GetInfo(int32_t& sessionId, int32_t code) {
    return read(NumKey{Member::GetInfo, code}, [&] { return inner_->GetInfo(sessionId, code); });
}

Variant CachedCatalog::DicoGetStringFromKey(int32_t& sessionId, const String& text,
                                            const String& language) {
    return read(TextKeyView{Member::DicoGetStringFromKey, 0, 0, 0, 0, text, language},
                [&] { return inner_->DicoGetStringFromKey(sessionId, text, language); });
}

Variant CachedCatalog::TableGetLinesNb(int32_t& sessionId, int32_t table, int16_t zero) {
    return read(NumKey{Member::TableGetLinesNb, table, zero},
                [&] { return inner_->TableGetLinesNb(sessionId, table, zero); });
}

Variant CachedCatalog::TableGetLineRankFromCode(int32_t& sessionId, int32_t table, int32_t zero,
                                                int16_t selector, const String& code, bool flag) {
    return read(
        TextKeyView{Member::TableGetLineRankFromCode, table, zero, selector, flag, code, {}}, [&] {
            return inner_->TableGetLineRankFromCode(sessionId, table, zero, selector, code, flag);
        });
}

Variant CachedCatalog::TableGetLineRankFromName(int32_t& sessionId, int32_t table, int32_t zero,
                                                int16_t selector, const String& name, bool flag) {
    return read(
        TextKeyView{Member::TableGetLineRankFromName, table, zero, selector, flag, name, {}}, [&] {
            return inner_->TableGetLineRankFromName(sessionId, table, zero, selector, name, flag);
        });
}

Variant CachedCatalog::TableGetLineInfo(int32_t& sessionId, int32_t table, int32_t zero,
                                        int32_t rank, int16_t column) {
    return read(NumKey{Member::TableGetLineInfo, table, zero, rank, column},
                [&] { return inner_->TableGetLineInfo(sessionId, table, zero, rank, column); });
}

Variant CachedCatalog::FileExportResource(int32_t& sessionId, int32_t rank, const String& path) {
    return inner_->FileExportResource(sessionId, rank, path);
}

std::any* fileMemo(Catalog& catalog) {
    auto* cached = dynamic_cast<CachedCatalog*>(&catalog);
    return cached ? cached->cache().memo() : nullptr;
}

}  // namespace host
