#pragma once
// Copies of the texts of kept keys, in blocks that never move, so that a kept key can view
// them. Forgetting them keeps the blocks for the next copies.
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace host {

class TextStore {
  public:
    // A copy of `text` that lasts until clear().
    std::u16string_view keep(std::u16string_view text);
    void clear() noexcept {
        block_ = 0;
        used_ = 0;
    }

  private:
    struct Block {
        std::unique_ptr<char16_t[]> units;
        size_t size = 0;
    };
    static constexpr size_t kBlockUnits = 4096;
    std::vector<Block> blocks_;
    size_t block_ = 0;  // the block being filled
    size_t used_ = 0;   // units of it already used
};

}  // namespace host
