#include "host/ReadCache.h"

namespace host {

void ReadCache::loaded(std::u16string_view path) {
    auto it = byPath_.find(path);
    if (it == byPath_.end()) {
        const size_t used = byPath_.size();
        if (used == files_.size()) files_.push_back(std::make_unique<File>());
        it = byPath_.emplace(vb::String(path), files_[used].get()).first;
    }
    current_ = it->second;
}

void ReadCache::clear() noexcept {
    for (size_t f = 0; f < byPath_.size(); ++f) {
        files_[f]->reads.clear();
        files_[f]->memo.reset();
    }
    byPath_.clear();
    atCallStart_.reads.clear();
    atCallStart_.memo.reset();
    current_ = &atCallStart_;
    scene_.clear();
}

}  // namespace host
