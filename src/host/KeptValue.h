#pragma once
// An answer as a table of kept answers holds it: sixteen bytes with nothing to destroy, so that
// keeping and forgetting answers costs little memory and no clean-up of each. A text that fits
// is held in it; a longer one is the answer's shared text, held in the table's list of texts.
#include <cstdint>
#include <cstring>
#include <vector>

#include "vb/Variant.h"

namespace host {

class KeptValue {
  public:
    using Texts = std::vector<vb::Variant::SharedText>;

    KeptValue() = default;
    KeptValue(const vb::Variant& answer, Texts& texts);
    // The answer again; a long text is shared, not copied.
    vb::Variant answer(const Texts& texts) const;

  private:
    static constexpr size_t kUnits = 7;  // the text units that fit
    void keepText(const vb::Variant& answer, Texts& texts);
    template <class T>
    void put(const T& value) {
        std::memcpy(payload_, &value, sizeof value);
    }
    template <class T>
    T get() const {
        T value;
        std::memcpy(&value, payload_, sizeof value);
        return value;
    }
    // The length_ of a text held in the list: payload_ is its index there.
    static constexpr uint8_t kInTexts = 0xff;
    uint8_t type_ = 0;       // a vb::VarType
    uint8_t length_ = 0;     // of a text held here
    char payload_[14] = {};  // a number, a text's units, or a list index
};

static_assert(sizeof(KeptValue) <= 16);

}  // namespace host
