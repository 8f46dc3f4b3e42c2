#pragma once
// The keys under which answers are kept: the host member and every argument but the session
// id. Lookups take views of the caller's texts, so a hit allocates nothing.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "host/HostMembers.h"

namespace host {

// A read whose arguments are all numbers (unused places stay 0).
struct NumKey {
    Member member;
    int32_t a = 0, b = 0, c = 0, d = 0;
    bool operator==(const NumKey&) const = default;
};

// A read with texts among its arguments; TextKeyView is its borrowed form for lookups.
struct TextKeyView {
    Member member;
    int32_t a = 0, b = 0, c = 0, d = 0;
    std::u16string_view s, t;
};

struct TextKey {
    explicit TextKey(const TextKeyView& v)
        : member(v.member), a(v.a), b(v.b), c(v.c), d(v.d), s(v.s), t(v.t) {}
    Member member;
    int32_t a, b, c, d;
    vb::String s, t;
    TextKeyView view() const { return {member, a, b, c, d, s, t}; }
};

struct KeyHash {
    using is_transparent = void;
    size_t operator()(const NumKey& k) const;
    size_t operator()(const TextKeyView& k) const;
    size_t operator()(const TextKey& k) const { return (*this)(k.view()); }
};

struct KeyEqual {
    using is_transparent = void;
    bool operator()(const TextKeyView& x, const TextKeyView& y) const;
    bool operator()(const TextKey& x, const TextKey& y) const {
        return (*this)(x.view(), y.view());
    }
    bool operator()(const TextKeyView& x, const TextKey& y) const { return (*this)(x, y.view()); }
    bool operator()(const TextKey& x, const TextKeyView& y) const { return (*this)(x.view(), y); }
};

// The answers kept for one domain (a catalogue file, or the scene and language).
struct Reads {
    std::unordered_map<NumKey, vb::Variant, KeyHash> numeric;
    std::unordered_map<TextKey, vb::Variant, KeyHash, KeyEqual> text;
    // Forgets every answer and gives the memory back.
    void clear() {
        decltype(numeric)().swap(numeric);
        decltype(text)().swap(text);
    }
};

}  // namespace host
