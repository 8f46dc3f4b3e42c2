#include "host/TextStore.h"

#include <algorithm>

namespace host {

std::u16string_view TextStore::keep(std::u16string_view text) {
    if (text.empty()) return {};
    while (block_ < blocks_.size() && blocks_[block_].size - used_ < text.size()) {
        ++block_;
        used_ = 0;
    }
    if (block_ == blocks_.size()) {
        const size_t size = std::max(kBlockUnits, text.size());
        blocks_.push_back({std::make_unique_for_overwrite<char16_t[]>(size), size});
    }
    char16_t* at = blocks_[block_].units.get() + used_;
    std::copy(text.begin(), text.end(), at);
    used_ += text.size();
    return {at, text.size()};
}

}  // namespace host
