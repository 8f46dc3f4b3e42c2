#include "handlers/HostCache.h"

#include <functional>
#include <tuple>
#include <unordered_map>

#include "vb/Conversions.h"

namespace handlers {

namespace {

using host::String;
using host::Variant;

// Hash of a key tuple of numbers and texts.
struct HashClave {
    template <class... T>
    size_t operator()(const std::tuple<T...>& key) const {
        size_t h = 0;
        std::apply([&](const auto&... part) { ((h = h * 1000003u ^ hashDe(part)), ...); }, key);
        return h;
    }
    template <class T>
    static size_t hashDe(const T& part) {
        return std::hash<T>{}(part);
    }
};

template <class... T>
using Memo = std::unordered_map<std::tuple<T...>, Variant, HashClave>;

// A read answered once per key; `ask` reaches the host only on a miss.
template <class Map, class Key, class Ask>
Variant recuerda(Map& memo, Key key, Ask ask) {
    auto it = memo.find(key);
    if (it != memo.end()) return it->second;
    Variant answer = ask();
    memo.emplace(std::move(key), answer);
    return answer;
}

class CachingAppli : public host::Appli {
  public:
    explicit CachingAppli(host::AppliRef inner) : in_(std::move(inner)) {}

    Variant StartSessionFromCallParams(int32_t& block) override {
        language_.clear();
        return in_->StartSessionFromCallParams(block);
    }
    Variant EndSession(int32_t& s) override {
        language_.clear();
        return in_->EndSession(s);
    }
    Variant GetLanguage(int32_t& s) override {
        return recuerda(language_, std::tuple(s), [&] { return in_->GetLanguage(s); });
    }
    Variant GetCallParamsInfo(int32_t& s, int32_t code) override {
        return in_->GetCallParamsInfo(s, code);
    }
    Variant InsertMenuItem(int32_t& s, String& command, int16_t a, int16_t b, const String& text,
                           int16_t c, int16_t d, const String& dll, const String& className,
                           const String& method) override {
        return in_->InsertMenuItem(s, command, a, b, text, c, d, dll, className, method);
    }

  private:
    host::AppliRef in_;
    Memo<int32_t> language_;
};

class CachingScene : public host::Scene {
  public:
    explicit CachingScene(host::SceneRef inner) : in_(std::move(inner)) {}

    Variant ObjectGetInfo(int32_t& s, int32_t id, int32_t code) override {
        return recuerda(info_, std::tuple(s, id, code),
                        [&] { return in_->ObjectGetInfo(s, id, code); });
    }
    Variant ObjectSetInfo(int32_t& s, int32_t id, const String& value, int32_t code) override {
        olvida();
        return in_->ObjectSetInfo(s, id, value, code);
    }
    Variant ViewRefresh(int32_t& s) override { return in_->ViewRefresh(s); }
    Variant SceneGetObjectsNb(int32_t& s) override { return in_->SceneGetObjectsNb(s); }
    Variant SceneGetObjectId(int32_t& s, int32_t position) override {
        return in_->SceneGetObjectId(s, position);
    }
    Variant ObjectGetParentId(int32_t& s, int32_t id) override {
        return in_->ObjectGetParentId(s, id);
    }
    Variant ObjectGetChildrenNb(int32_t& s, int32_t id, int16_t mode) override {
        return recuerda(childrenNb_, std::tuple(s, id, mode),
                        [&] { return in_->ObjectGetChildrenNb(s, id, mode); });
    }
    Variant ObjectGetChildId(int32_t& s, int32_t id, int32_t position, int16_t mode) override {
        return recuerda(childId_, std::tuple(s, id, position, mode),
                        [&] { return in_->ObjectGetChildId(s, id, position, mode); });
    }
    Variant ObjectGetScript(int32_t& s, int32_t id) override { return in_->ObjectGetScript(s, id); }
    Variant EditReplaceSelection(int32_t& s, const String& catalog, const String& reference,
                                 int16_t a, int32_t width, int32_t depth, int32_t height,
                                 int16_t b) override {
        olvida();
        return in_->EditReplaceSelection(s, catalog, reference, a, width, depth, height, b);
    }

  private:
    void olvida() {
        info_.clear();
        childrenNb_.clear();
        childId_.clear();
    }

    host::SceneRef in_;
    Memo<int32_t, int32_t, int32_t> info_;
    Memo<int32_t, int32_t, int16_t> childrenNb_;
    Memo<int32_t, int32_t, int32_t, int16_t> childId_;
};

// Reads of each catalogue are kept apart: loading catalogue A, then B, then A again answers A's
// reads from memory, since a catalogue does not change within one call.
class CachingCatalog : public host::Catalog {
  public:
    explicit CachingCatalog(host::CatalogRef inner) : in_(std::move(inner)) {}

    Variant FileLoad(int32_t& s, const String& path) override {
        Variant answer = in_->FileLoad(s, path);
        const bool loaded = answer.type() == vb::VarType::Boolean && answer.boolean();
        if (loaded) {
            actual_ = &porRuta_[path];
        } else {
            // Which catalogue is current now is the host's business: ask it afresh.
            sinRuta_ = Lecturas{};
            actual_ = &sinRuta_;
        }
        return answer;
    }
    Variant GetInfo(int32_t& s, int32_t code) override {
        return recuerda(actual_->getInfo, std::tuple(s, code),
                        [&] { return in_->GetInfo(s, code); });
    }
    Variant DicoGetStringFromKey(int32_t& s, const String& text, const String& lang) override {
        return recuerda(actual_->dico, std::tuple(s, text, lang),
                        [&] { return in_->DicoGetStringFromKey(s, text, lang); });
    }
    Variant TableGetLinesNb(int32_t& s, int32_t table, int16_t zero) override {
        return recuerda(actual_->linesNb, std::tuple(s, table, zero),
                        [&] { return in_->TableGetLinesNb(s, table, zero); });
    }
    Variant TableGetLineRankFromCode(int32_t& s, int32_t table, int32_t zero, int16_t selector,
                                     const String& code, bool flag) override {
        return recuerda(actual_->byCode, std::tuple(s, table, zero, selector, code, flag), [&] {
            return in_->TableGetLineRankFromCode(s, table, zero, selector, code, flag);
        });
    }
    Variant TableGetLineRankFromName(int32_t& s, int32_t table, int32_t zero, int16_t selector,
                                     const String& name, bool flag) override {
        return recuerda(actual_->byName, std::tuple(s, table, zero, selector, name, flag), [&] {
            return in_->TableGetLineRankFromName(s, table, zero, selector, name, flag);
        });
    }
    Variant TableGetLineInfo(int32_t& s, int32_t table, int32_t zero, int32_t rank,
                             int16_t column) override {
        return recuerda(actual_->lineInfo, std::tuple(s, table, zero, rank, column),
                        [&] { return in_->TableGetLineInfo(s, table, zero, rank, column); });
    }
    Variant FileExportResource(int32_t& s, int32_t rank, const String& path) override {
        return in_->FileExportResource(s, rank, path);
    }

  private:
    using RankMemo = Memo<int32_t, int32_t, int32_t, int16_t, String, bool>;
    struct Lecturas {
        Memo<int32_t, int32_t> getInfo;
        Memo<int32_t, String, String> dico;
        Memo<int32_t, int32_t, int16_t> linesNb;
        RankMemo byCode;
        RankMemo byName;
        Memo<int32_t, int32_t, int32_t, int32_t, int16_t> lineInfo;
    };

    host::CatalogRef in_;
    std::unordered_map<String, Lecturas> porRuta_;
    Lecturas sinRuta_;  // before any load, or after a load that failed
    Lecturas* actual_ = &sinRuta_;
};

}  // namespace

std::shared_ptr<host::HostObject> CachingFactory::CreateObject(const String& progId) {
    auto object = inner_.CreateObject(progId);
    if (progId == host::kProgIdAppli) {
        if (auto appli = std::dynamic_pointer_cast<host::Appli>(object)) {
            return std::make_shared<CachingAppli>(appli);
        }
    } else if (progId == host::kProgIdScene) {
        if (auto scene = std::dynamic_pointer_cast<host::Scene>(object)) {
            return std::make_shared<CachingScene>(scene);
        }
    } else if (progId == host::kProgIdCatalog) {
        if (auto catalog = std::dynamic_pointer_cast<host::Catalog>(object)) {
            return std::make_shared<CachingCatalog>(catalog);
        }
    }
    return object;
}

}  // namespace handlers
