// Case mapping of single UTF-16 units for ASCII and Latin-1 letters (plus ÿ/Ÿ), the letters
// the catalogues' texts use. Other units map to themselves.
#include "vb/Strings.h"

namespace vb {

namespace {

constexpr char16_t kYDiaeresisLower = 0x00FF;
constexpr char16_t kYDiaeresisUpper = 0x0178;
constexpr char16_t kMultiply = 0x00D7;
constexpr char16_t kDivide = 0x00F7;

}  // namespace

char16_t upperUnit(char16_t c) {
    if (c >= u'a' && c <= u'z') return c - 0x20;
    if (c >= 0x00E0 && c <= 0x00FE && c != kDivide) return c - 0x20;
    if (c == kYDiaeresisLower) return kYDiaeresisUpper;
    return c;
}

char16_t lowerUnit(char16_t c) {
    if (c >= u'A' && c <= u'Z') return c + 0x20;
    if (c >= 0x00C0 && c <= 0x00DE && c != kMultiply) return c + 0x20;
    if (c == kYDiaeresisUpper) return kYDiaeresisLower;
    return c;
}

String UCase(const String& text) {
    String out(text);
    for (auto& c : out) c = upperUnit(c);
    return out;
}

String LCase(const String& text) {
    String out(text);
    for (auto& c : out) c = lowerUnit(c);
    return out;
}

bool equalText(const String& a, const String& b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (lowerUnit(a[i]) != lowerUnit(b[i])) return false;
    return true;
}

}  // namespace vb
