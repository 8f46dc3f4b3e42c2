#pragma once
// The answers kept for one member in one domain: open addressing over a vector of entries, each
// a key and a KeptValue. A slot is four bytes, the entry's number and a few bits of its key's
// hash, so the slots stay small enough for the processor's caches and a lookup looks at no entry
// but the one it wants; a hit allocates nothing (a long text is shared). Forgetting the answers
// empties the slots in use; the slots and the entries stay for the next answers.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "host/KeptValue.h"
#include "host/TextStore.h"
#include "vb/Variant.h"

namespace host {

template <class Key>
class KeptAnswers {
  public:
    // The answer kept for `key`, or the one `ask` gives, kept unless `ask` raises; the kept key
    // views copies of its texts in `texts`.
    template <class Ask>
    vb::Variant read(const Key& key, TextStore& texts, Ask&& ask) {
        const size_t hash = key.hash();
        const uint32_t tag = tagOf(hash);
        size_t i = hash & mask_;
        for (uint32_t slot; (slot = slots_[i]) != kEmpty; i = (i + 1) & mask_) {
            const Entry& entry = entries_[(slot & kEntryBits) - 1];
            if ((slot & kTagBits) == tag && entry.key == key) return entry.value.answer(texts_);
        }
        // Not kept: `i` is where it goes, unless the table must grow first.
        vb::Variant answer = ask();
        if (used_ == kMostEntries) return answer;  // sixteen million answers: no more are kept
        if ((used_ + 1) * 2 > mask_ + 1) {
            grow();
            i = freeSlot(hash);
        }
        if (used_ == entries_.size()) entries_.emplace_back();
        Entry& entry = entries_[used_];
        entry.key = key;
        entry.key.keepTexts(texts);
        entry.value = KeptValue(answer, texts_);
        slots_[i] = tag | ++used_;
        return answer;
    }

    // Forgets every answer: the slots in use are emptied, one by one when they are few.
    void clear() noexcept {
        if (used_ * 16 > mask_ + 1) {
            std::memset(slots_.get(), 0, (mask_ + 1) * sizeof(uint32_t));
        } else {
            for (uint32_t e = 0; e < used_; ++e) slots_[slotOf(e)] = kEmpty;
        }
        used_ = 0;
        texts_.clear();
    }

  private:
    struct Entry {
        Key key;
        KeptValue value;
    };
    // A slot: the entry's number in the low bits, bits of the hash in the high ones; an entry
    // number is stored plus one, so that 0 is an empty slot.
    static constexpr uint32_t kEmpty = 0;
    static constexpr uint32_t kEntryBits = 0x00ffffff;
    static constexpr uint32_t kTagBits = 0xff000000;
    static constexpr uint32_t kMostEntries = kEntryBits - 1;

    static uint32_t tagOf(size_t hash) {
        return static_cast<uint32_t>((static_cast<uint64_t>(hash) * 0x9e3779b97f4a7c15ULL) >> 32) &
               kTagBits;
    }

    // The first empty slot for `hash`; the table is never more than half full.
    size_t freeSlot(size_t hash) const {
        size_t i = hash & mask_;
        while (slots_[i] != kEmpty) i = (i + 1) & mask_;
        return i;
    }

    // Where entry `e` sits.
    size_t slotOf(uint32_t e) const {
        size_t i = entries_[e].key.hash() & mask_;
        while ((slots_[i] & kEntryBits) != e + 1) i = (i + 1) & mask_;
        return i;
    }

    void grow() {
        const size_t size = (mask_ + 1) * 2;
        slots_ = std::make_unique<uint32_t[]>(size);
        mask_ = size - 1;
        for (uint32_t e = 0; e < used_; ++e) {
            const size_t hash = entries_[e].key.hash();
            slots_[freeSlot(hash)] = tagOf(hash) | (e + 1);
        }
    }

    static constexpr size_t kFirstSlots = 8;
    std::unique_ptr<uint32_t[]> slots_ = std::make_unique<uint32_t[]>(kFirstSlots);
    size_t mask_ = kFirstSlots - 1;
    std::vector<Entry> entries_;  // those from used_ on hold forgotten answers until reused
    uint32_t used_ = 0;
    KeptValue::Texts texts_;  // the long texts of the answers
};

}  // namespace host
