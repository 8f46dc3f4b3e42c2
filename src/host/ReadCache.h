#pragma once
// The answers the host gave during one entry-point call, shared by the three host objects of
// that call. Catalogue answers are kept per loaded catalogue file (a later load of another
// file switches to that file's answers; a return finds them again); answers read before any
// load are kept as those of the catalogue current when the call began. Scene answers and the
// application's language are kept until the plug-in writes into the scene. Forgotten answers
// leave their memory for the next ones.
#include <any>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/Reads.h"

namespace host {

class ReadCache {
  public:
    // Catalogue answers of the current file; null after a load that failed, until the next
    // successful one (nothing is known of what the host then reads from).
    Reads* catalogue() { return current_ ? &current_->reads : nullptr; }
    // What a caller derived from the current file's answers (see fileMemo); null as above.
    std::any* memo() { return current_ ? &current_->memo : nullptr; }
    void loaded(std::u16string_view path);  // a successful FileLoad of `path`
    void loadFailed() { current_ = nullptr; }

    Reads& scene() { return scene_; }  // and the application's language
    void sceneWritten() { scene_.clear(); }

    // Forgets everything: the session begins or ends, or the call is over.
    void clear() noexcept;

  private:
    struct File {
        Reads reads;
        std::any memo;
    };
    struct PathHash {
        using is_transparent = void;
        size_t operator()(std::u16string_view path) const {
            return std::hash<std::u16string_view>{}(path);
        }
    };
    // The files loaded since the cache was last cleared, by the path given to FileLoad; they
    // are the first of `files_`, whose others wait for new paths.
    std::unordered_map<vb::String, File*, PathHash, std::equal_to<>> byPath_;
    std::vector<std::unique_ptr<File>> files_;
    File atCallStart_;
    File* current_ = &atCallStart_;
    Reads scene_;
};

}  // namespace host
