// UTF-8 <-> UTF-16 at the edges. Malformed input never throws: each bad sequence becomes
// U+FFFD, as does a lone surrogate on the way out.
#include <cstdint>

#include "vb/Strings.h"

namespace vb {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isContinuation(unsigned char c) {
    return (c & 0xC0) == 0x80;
}

// Decodes one code point at `i`, advancing `i`; returns U+FFFD for a malformed sequence.
char32_t decodeOne(const std::string& s, size_t& i) {
    const auto lead = static_cast<unsigned char>(s[i++]);
    if (lead < 0x80) return lead;
    int extra;
    char32_t cp;
    char32_t minimum;
    if (lead >= 0xC2 && lead <= 0xDF) {
        extra = 1, cp = lead & 0x1F, minimum = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        extra = 2, cp = lead & 0x0F, minimum = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        extra = 3, cp = lead & 0x07, minimum = 0x10000;
    } else {
        return kReplacement;
    }
    for (int k = 0; k < extra; ++k) {
        if (i >= s.size() || !isContinuation(static_cast<unsigned char>(s[i]))) return kReplacement;
        cp = (cp << 6) | (static_cast<unsigned char>(s[i++]) & 0x3F);
    }
    const bool surrogate = cp >= 0xD800 && cp <= 0xDFFF;
    if (cp < minimum || cp > 0x10FFFF || surrogate) return kReplacement;
    return cp;
}

void appendUtf16(String& out, char32_t cp) {
    if (cp < 0x10000) {
        out.push_back(static_cast<char16_t>(cp));
        return;
    }
    cp -= 0x10000;
    out.push_back(static_cast<char16_t>(0xD800 + (cp >> 10)));
    out.push_back(static_cast<char16_t>(0xDC00 + (cp & 0x3FF)));
}

void appendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out.push_back(static_cast<char>(cp));
    } else if (cp < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else if (cp < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (cp >> 18)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    }
}

bool isHigh(char16_t u) {
    return u >= 0xD800 && u <= 0xDBFF;
}
bool isLow(char16_t u) {
    return u >= 0xDC00 && u <= 0xDFFF;
}

}  // namespace

String fromUtf8(const std::string& text) {
    String out;
    out.reserve(text.size());
    size_t i = 0;
    while (i < text.size()) appendUtf16(out, decodeOne(text, i));
    return out;
}

std::string toUtf8(const String& text) {
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        const char16_t u = text[i];
        if (isHigh(u) && i + 1 < text.size() && isLow(text[i + 1])) {
            const char32_t cp = 0x10000 + ((char32_t(u) - 0xD800) << 10) + (text[i + 1] - 0xDC00);
            appendUtf8(out, cp);
            ++i;
        } else if (isHigh(u) || isLow(u)) {
            appendUtf8(out, kReplacement);
        } else {
            appendUtf8(out, u);
        }
    }
    return out;
}

}  // namespace vb
