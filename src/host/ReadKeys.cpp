#include "host/ReadKeys.h"

#include <functional>

namespace host {

namespace {

// splitmix64's finaliser: every input bit reaches every output bit.
uint64_t mix(uint64_t x) {
    x ^= x >> 30;
    x *= 0xbf58476d1ce4e5b9ULL;
    x ^= x >> 27;
    x *= 0x94d049bb133111ebULL;
    return x ^ (x >> 31);
}

uint64_t numbers(Member member, int32_t a, int32_t b, int32_t c, int32_t d) {
    const auto u = [](int32_t v) { return static_cast<uint64_t>(static_cast<uint32_t>(v)); };
    uint64_t h = mix(static_cast<uint64_t>(member) << 32 | u(a));
    h = mix(h ^ (u(b) << 32 | u(c)));
    return mix(h ^ u(d));
}

}  // namespace

size_t KeyHash::operator()(const NumKey& k) const {
    return static_cast<size_t>(numbers(k.member, k.a, k.b, k.c, k.d));
}

size_t KeyHash::operator()(const TextKeyView& k) const {
    const std::hash<std::u16string_view> text;
    uint64_t h = numbers(k.member, k.a, k.b, k.c, k.d);
    h = mix(h ^ text(k.s));
    return static_cast<size_t>(mix(h ^ text(k.t)));
}

bool KeyEqual::operator()(const TextKeyView& x, const TextKeyView& y) const {
    return x.member == y.member && x.a == y.a && x.b == y.b && x.c == y.c && x.d == y.d &&
           x.s == y.s && x.t == y.t;
}

}  // namespace host
