#include "vb/NumberParse.h"

#include <charconv>
#include <string>

#include "vb/Errors.h"

namespace vb::detail {

namespace {

// A cursor over the text that collects the ASCII form of the number it reads.
struct Reader {
    const String& text;
    size_t at = 0;

    bool done() const { return at >= text.size(); }
    char16_t peek() const { return done() ? u'\0' : text[at]; }
    void skipBlanks() {
        while (!done() && isBlank(text[at])) ++at;
    }
    int digitsInto(std::string& out) {
        int count = 0;
        for (; !done() && isDigit(text[at]); ++at, ++count) out.push_back(char(text[at]));
        return count;
    }
};

int radixDigit(char16_t c, int base) {
    int d = -1;
    if (c >= u'0' && c <= u'9') d = c - u'0';
    if (c >= u'a' && c <= u'f') d = c - u'a' + 10;
    if (c >= u'A' && c <= u'F') d = c - u'A' + 10;
    return d < base ? d : -1;
}

// "&H1F" / "&O17" after the blanks; the reader ends after the digits.
std::optional<uint64_t> readRadix(Reader& r) {
    const char16_t kind = r.text[r.at + 1];
    const int base = (kind == u'H' || kind == u'h') ? 16 : 8;
    r.at += 2;
    uint64_t bits = 0;
    int count = 0;
    for (int d; !r.done() && (d = radixDigit(r.peek(), base)) >= 0; ++r.at, ++count) {
        bits = bits * base + d;
        if (bits > 0xFFFFFFFFull) bits = 0x100000000ull;  // saturate: beyond any VB integer
    }
    if (count == 0) return std::nullopt;
    return bits;
}

bool startsRadix(const Reader& r) {
    if (r.peek() != u'&' || r.at + 1 >= r.text.size()) return false;
    const char16_t kind = r.text[r.at + 1];
    return kind == u'H' || kind == u'h' || kind == u'O' || kind == u'o';
}

// [sign] digits [separator digits] [E|D [sign] digits]; false when no mantissa digit.
bool readDecimal(Reader& r, char16_t separator, std::string& ascii) {
    if (r.peek() == u'+' || r.peek() == u'-') {
        if (r.peek() == u'-') ascii.push_back('-');
        ++r.at;
    }
    int digits = r.digitsInto(ascii);
    if (r.peek() == separator) {
        ++r.at;
        ascii.push_back('.');
        digits += r.digitsInto(ascii);
    }
    if (digits == 0) return false;
    const char16_t e = r.peek();
    if (e == u'E' || e == u'e' || e == u'D' || e == u'd') {
        ++r.at;
        ascii.push_back('e');
        if (r.peek() == u'+' || r.peek() == u'-') ascii.push_back(char(r.text[r.at++]));
        if (r.digitsInto(ascii) == 0) return false;
    }
    return true;
}

}  // namespace

bool isBlank(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}
bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

double decimalValue(const std::string& ascii) {
    double value = 0;
    const char* first = ascii.data();
    const auto result = std::from_chars(first, first + ascii.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        // Too small rounds to zero, as VB does; too large overflows.
        const auto e = ascii.find('e');
        if (e != std::string::npos && ascii.find('-', e) != std::string::npos) return 0;
        throw RuntimeError(err::kOverflow);
    }
    return value;
}

double radixValue(uint64_t bits) {
    if (bits <= 0xFFFF) return static_cast<int16_t>(static_cast<uint16_t>(bits));
    if (bits <= 0xFFFFFFFFull) return static_cast<int32_t>(static_cast<uint32_t>(bits));
    throw RuntimeError(err::kOverflow);
}

std::optional<ParsedNumber> parseNumber(const String& text, char16_t separator) {
    Reader r{text};
    r.skipBlanks();
    ParsedNumber number;
    if (startsRadix(r)) {
        auto bits = readRadix(r);
        if (!bits) return std::nullopt;
        number.radix = true;
        number.bits = *bits;
    } else {
        std::string ascii;
        if (!readDecimal(r, separator, ascii)) return std::nullopt;
        r.skipBlanks();
        if (!r.done()) return std::nullopt;
        number.value = decimalValue(ascii);
        return number;
    }
    r.skipBlanks();
    if (!r.done()) return std::nullopt;
    return number;
}

}  // namespace vb::detail
