#pragma once
// What every fuzz target shares: a property check that aborts (so that libFuzzer, and the
// corpus replay under CTest, report the input), and the reading of the input bytes as text.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "vb/Strings.h"

#define FUZZ_CHECK(condition) \
    ((condition) ? (void)0 : fuzzcheck::violated(#condition, __FILE__, __LINE__))

namespace fuzzcheck {

[[noreturn]] inline void violated(const char* condition, const char* file, int line) {
    std::fprintf(stderr, "%s:%d: property violated: %s\n", file, line, condition);
    std::abort();
}

inline std::string bytes(const uint8_t* data, size_t size) {
    return std::string(reinterpret_cast<const char*>(data), size);
}

// The input cut into `count` texts at the byte 0xFF, which never occurs in UTF-8; the last
// text takes the rest, missing ones are empty. Each is read as UTF-8 (bad bytes give U+FFFD).
inline std::vector<vb::String> texts(const uint8_t* data, size_t size, size_t count) {
    std::vector<vb::String> out;
    std::string piece;
    for (size_t i = 0; i < size; ++i) {
        if (data[i] == 0xFF && out.size() + 1 < count) {
            out.push_back(vb::fromUtf8(piece));
            piece.clear();
        } else {
            piece.push_back(static_cast<char>(data[i]));
        }
    }
    out.push_back(vb::fromUtf8(piece));
    out.resize(count);
    return out;
}

}  // namespace fuzzcheck
