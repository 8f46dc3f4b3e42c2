// Val: the number at the start of a text, ignoring blanks anywhere, "." as the point.
#include <string>

#include "vb/Conversions.h"
#include "vb/NumberParse.h"

namespace vb {

namespace {

String withoutBlanks(const String& text) {
    String out;
    for (char16_t c : text)
        if (!detail::isBlank(c)) out.push_back(c);
    return out;
}

int radixDigit(char16_t c, int base) {
    int d = 99;
    if (c >= u'0' && c <= u'9') d = c - u'0';
    if (c >= u'a' && c <= u'f') d = c - u'a' + 10;
    if (c >= u'A' && c <= u'F') d = c - u'A' + 10;
    return d < base ? d : -1;
}

// "&H1F", "&O17": as many digits as there are; a trailing "&" asks for a Long.
double radixVal(const String& t) {
    const int base = (t[1] == u'H' || t[1] == u'h') ? 16 : 8;
    uint64_t bits = 0;
    size_t at = 2;
    for (int d; at < t.size() && (d = radixDigit(t[at], base)) >= 0; ++at) {
        bits = bits * base + d;
        if (bits > 0xFFFFFFFFull) throw RuntimeError(err::kOverflow);
    }
    if (at < t.size() && t[at] == u'&' && bits <= 0xFFFFFFFFull)
        return static_cast<int32_t>(static_cast<uint32_t>(bits));
    return detail::radixValue(bits);
}

size_t appendDigits(const String& t, size_t at, std::string& out) {
    for (; at < t.size() && detail::isDigit(t[at]); ++at) out.push_back(char(t[at]));
    return at;
}

// The longest "[sign] digits [. digits] [E|D [sign] digits]" prefix.
double decimalVal(const String& t) {
    std::string ascii;
    size_t at = 0;
    if (at < t.size() && (t[at] == u'+' || t[at] == u'-')) {
        if (t[at] == u'-') ascii.push_back('-');
        ++at;
    }
    const size_t digitsFrom = at;
    at = appendDigits(t, at, ascii);
    bool anyDigit = at > digitsFrom;
    if (at < t.size() && t[at] == u'.') {
        const size_t fractionFrom = at + 1;
        ascii.push_back('.');
        at = appendDigits(t, fractionFrom, ascii);
        anyDigit = anyDigit || at > fractionFrom;
    }
    if (!anyDigit) return 0;
    if (ascii.back() == '.') ascii.pop_back();
    if (at < t.size() && (t[at] == u'E' || t[at] == u'e' || t[at] == u'D' || t[at] == u'd')) {
        std::string exponent = "e";
        size_t e = at + 1;
        if (e < t.size() && (t[e] == u'+' || t[e] == u'-')) exponent.push_back(char(t[e++]));
        const size_t expDigits = e;
        e = appendDigits(t, e, exponent);
        if (e > expDigits) ascii += exponent;
    }
    if (ascii == "-" || ascii.empty()) return 0;
    return detail::decimalValue(ascii);
}

bool startsRadix(const String& t) {
    return t.size() >= 2 && t[0] == u'&' &&
           (t[1] == u'H' || t[1] == u'h' || t[1] == u'O' || t[1] == u'o');
}

}  // namespace

double Val(const String& text) {
    const String t = withoutBlanks(text);
    return startsRadix(t) ? radixVal(t) : decimalVal(t);
}

}  // namespace vb
