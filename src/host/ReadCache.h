#pragma once
// The answers the host gave during one entry-point call, shared by the three host objects of
// that call. Catalogue answers are kept per loaded catalogue file (a later load of another
// file switches to that file's answers; a return finds them again); answers read before any
// load are kept as those of the catalogue current when the call began. Scene answers and the
// application's language are kept until the plug-in writes into the scene.
#include <any>
#include <string>
#include <type_traits>
#include <unordered_map>

#include "host/ReadKeys.h"

namespace host {

class ReadCache {
  public:
    // Catalogue answers of the current file; null after a load that failed, until the next
    // successful one (nothing is known of what the host then reads from).
    Reads* catalogue() { return current_ ? &current_->reads : nullptr; }
    // What a caller derived from the current file's answers (see fileMemo); null as above.
    std::any* memo() { return current_ ? &current_->memo : nullptr; }
    void loaded(const vb::String& path);  // a successful FileLoad of `path`
    void loadFailed();

    Reads& scene() { return scene_; }  // and the application's language
    void sceneWritten() { scene_.clear(); }

    // Forgets everything: the call begins or ends.
    void clear();

    // A kept answer, or the host's (kept unless it raised an error).
    template <class Key, class Ask>
    vb::Variant read(Reads* reads, const Key& key, Ask&& ask);

  private:
    struct File {
        Reads reads;
        std::any memo;
    };
    std::unordered_map<vb::String, File> files_;  // by the path given to FileLoad
    File atCallStart_;
    File* current_ = &atCallStart_;
    Reads scene_;
};

template <class Key, class Ask>
vb::Variant ReadCache::read(Reads* reads, const Key& key, Ask&& ask) {
    if (!reads) return ask();
    auto& kept = [&]() -> auto& {
        if constexpr (std::is_same_v<Key, NumKey>) {
            return reads->numeric;
        } else {
            return reads->text;
        }
    }
    ();
    if (const auto it = kept.find(key); it != kept.end()) return it->second;
    vb::Variant answer = ask();
    if constexpr (std::is_same_v<Key, NumKey>) {
        kept.emplace(key, answer);
    } else {
        kept.emplace(TextKey(key), answer);
    }
    return answer;
}

}  // namespace host
