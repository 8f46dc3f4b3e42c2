#pragma once
// The key of every member's read: its arguments after the session id, by name, as the member
// list gives them (keys::TableGetLineInfo{table, zero, rank, column}). Texts are views: a
// lookup borrows the caller's texts, a kept key views its copies in a TextStore.
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <type_traits>

#include "host/HostMembers.h"
#include "host/TextStore.h"

namespace host {

// A key part: the argument's value, or a view of its text.
template <class P>
using KeyPart = std::conditional_t<std::is_same_v<std::remove_cvref_t<P>, String>,
                                   std::u16string_view, std::remove_cvref_t<P>>;

namespace key_parts {

inline uint64_t bits(int32_t v) {
    return static_cast<uint32_t>(v);
}
inline uint64_t bits(int16_t v) {
    return static_cast<uint16_t>(v);
}
inline uint64_t bits(bool v) {
    return v ? 1 : 0;
}
inline uint64_t bits(std::u16string_view v) {
    return std::hash<std::u16string_view>{}(v);
}

// A part multiplied in by the golden ratio, the high bits folded into the low ones that choose
// the slot.
inline uint64_t mixed(uint64_t h, uint64_t part) {
    h = (h ^ part) * 0x9e3779b97f4a7c15ULL;
    return h ^ (h >> 29);
}

inline size_t hash() {
    return 0;
}

template <class First, class... Rest>
size_t hash(const First& first, const Rest&... rest) {
    uint64_t h = mixed(0, bits(first));
    ((h = mixed(h, bits(rest))), ...);
    return static_cast<size_t>(h);
}

inline std::u16string_view kept(std::u16string_view text, TextStore& texts) {
    return texts.keep(text);
}
template <class Number>
Number kept(Number value, TextStore&) {
    return value;
}

}  // namespace key_parts

#define QUORBEL_KEY_FIELD_(s, n) KeyPart<::host::shape::s> n;
#define QUORBEL_KEY_NAME_(s, n) n
#define QUORBEL_KEY_KEEP_(s, n) n = key_parts::kept(n, texts);

namespace keys {

#define QUORBEL_KEY(object, member, keeping, ...)                                      \
    struct member {                                                                    \
        QUORBEL_AFTER_SESSION(QUORBEL_KEY_FIELD_, QUORBEL_NOTHING, __VA_ARGS__)        \
        bool operator==(const member&) const = default;                                \
        size_t hash() const {                                                          \
            return key_parts::hash(                                                    \
                QUORBEL_AFTER_SESSION(QUORBEL_KEY_NAME_, QUORBEL_COMMA, __VA_ARGS__)); \
        }                                                                              \
        /* Its texts viewed in copies kept in `texts`. */                              \
        void keepTexts([[maybe_unused]] TextStore& texts) {                            \
            QUORBEL_AFTER_SESSION(QUORBEL_KEY_KEEP_, QUORBEL_NOTHING, __VA_ARGS__)     \
        }                                                                              \
    };
QUORBEL_HOST_MEMBERS(QUORBEL_KEY)
#undef QUORBEL_KEY

}  // namespace keys

#undef QUORBEL_KEY_FIELD_
#undef QUORBEL_KEY_NAME_
#undef QUORBEL_KEY_KEEP_

}  // namespace host
