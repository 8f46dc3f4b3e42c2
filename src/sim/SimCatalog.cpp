#include "sim/SimHost.h"

namespace sim {

namespace {

constexpr int32_t kLanguageInfo = 17;
constexpr int32_t kResourceTable = 19;
const String kEmpty;

}  // namespace

const Table* SimCatalog::table(int32_t number) const {
    return s_.currentCatalog ? s_.currentCatalog->table(number) : nullptr;
}

Variant SimCatalog::FileLoad(int32_t&, const String& path) {
    return s_.member(Member::FileLoad, [&] {
        const CatalogData* catalog = s_.world.catalog(path);
        if (catalog) s_.currentCatalog = catalog;
        s_.recorder.fileLoad(path, catalog != nullptr);
        return Variant(catalog != nullptr);
    });
}

Variant SimCatalog::GetInfo(int32_t&, int32_t code) {
    return s_.member(Member::GetInfo, [&] {
        if (code == kLanguageInfo && s_.currentCatalog) return Variant(s_.currentCatalog->language);
        return Variant(kEmpty);
    });
}

Variant SimCatalog::DicoGetStringFromKey(int32_t&, const String& text, const String& language) {
    return s_.member(Member::DicoGetStringFromKey, [&] {
        const auto& dictionary = s_.world.application.dictionary;
        const auto lang = dictionary.find(language);
        if (lang == dictionary.end()) return Variant(text);
        const auto it = lang->second.find(text);
        return Variant(it == lang->second.end() ? text : it->second);
    });
}

Variant SimCatalog::TableGetLinesNb(int32_t&, int32_t number, int16_t) {
    return s_.member(Member::TableGetLinesNb, [&] {
        const Table* t = table(number);
        return Variant(static_cast<int16_t>(t ? t->size() : 0));
    });
}

Variant SimCatalog::TableGetLineRankFromCode(int32_t&, int32_t number, int32_t, int16_t,
                                             const String& code, bool) {
    return s_.member(Member::TableGetLineRankFromCode, [&] {
        const Table* t = table(number);
        return Variant(t ? t->rankFromCode(code) : int32_t{0});
    });
}

Variant SimCatalog::TableGetLineRankFromName(int32_t&, int32_t number, int32_t, int16_t,
                                             const String& name, bool) {
    return s_.member(Member::TableGetLineRankFromName, [&] {
        const Table* t = table(number);
        return Variant(t ? t->rankFromName(name) : int32_t{0});
    });
}

Variant SimCatalog::TableGetLineInfo(int32_t&, int32_t number, int32_t, int32_t rank,
                                     int16_t column) {
    return s_.member(Member::TableGetLineInfo, [&] {
        const Table* t = table(number);
        const TableLine* line = t ? t->line(rank) : nullptr;
        if (!line) return Variant(kEmpty);
        const auto it = line->cols.find(column);
        return Variant(it == line->cols.end() ? kEmpty : it->second);
    });
}

Variant SimCatalog::FileExportResource(int32_t&, int32_t rank, const String& path) {
    return s_.member(Member::FileExportResource, [&] {
        const Table* t = table(kResourceTable);
        const TableLine* line = t ? t->line(rank) : nullptr;
        bool ok = false;
        if (line) {
            const WriteResult written = s_.writeResource(path, line->data);
            ok = written != WriteResult::Failed;
            if (written == WriteResult::Created) s_.noteCreatedFile(path);
        }
        s_.recorder.exportResource(rank, path, ok);
        return Variant(ok);
    });
}

}  // namespace sim
