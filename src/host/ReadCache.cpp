#include "host/ReadCache.h"

namespace host {

void ReadCache::loaded(const vb::String& path) {
    current_ = &files_[path];
}

void ReadCache::loadFailed() {
    current_ = nullptr;
}

void ReadCache::clear() {
    decltype(files_)().swap(files_);
    atCallStart_ = File{};
    current_ = &atCallStart_;
    scene_.clear();
}

}  // namespace host
