#include "vb/NumberParse.h"

#include <charconv>

#include "vb/Errors.h"

namespace vb::detail {

namespace {

constexpr uint64_t kBeyond16Bits = 0x10000ull;
constexpr uint64_t kBeyond32Bits = 0x100000000ull;

bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}
bool isSign(char16_t c) {
    return c == u'+' || c == u'-';
}
bool isExponent(char16_t c) {
    return c == u'E' || c == u'e' || c == u'D' || c == u'd';
}

size_t appendDigits(const String& t, size_t at, std::string& out) {
    for (; at < t.size() && isDigit(t[at]); ++at) out.push_back(static_cast<char>(t[at]));
    return at;
}

int radixDigit(char16_t c, int base) {
    int d = base;
    if (c >= u'0' && c <= u'9') d = c - u'0';
    if (c >= u'a' && c <= u'f') d = c - u'a' + 10;
    if (c >= u'A' && c <= u'F') d = c - u'A' + 10;
    return d < base ? d : -1;
}

// The exponent part at `at` ("E-5"), appended only when it has a digit; returns the end.
size_t readExponent(const String& t, size_t at, std::string& ascii) {
    if (at >= t.size() || !isExponent(t[at])) return at;
    std::string exponent = "e";
    size_t end = at + 1;
    if (end < t.size() && isSign(t[end])) exponent.push_back(static_cast<char>(t[end++]));
    const size_t digitsFrom = end;
    end = appendDigits(t, end, exponent);
    if (end == digitsFrom) return at;
    ascii += exponent;
    return end;
}

void skipBlanks(const String& t, size_t& at) {
    while (at < t.size() && isBlank(t[at])) ++at;
}

}  // namespace

bool isBlank(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

std::optional<std::string> readDecimal(const String& t, size_t& at, char16_t separator) {
    std::string ascii;
    size_t end = at;
    if (end < t.size() && isSign(t[end])) {
        if (t[end] == u'-') ascii.push_back('-');
        ++end;
    }
    const size_t integerFrom = end;
    end = appendDigits(t, end, ascii);
    bool anyDigit = end > integerFrom;
    if (end < t.size() && t[end] == separator) {
        ascii.push_back('.');
        const size_t fractionFrom = end + 1;
        end = appendDigits(t, fractionFrom, ascii);
        anyDigit = anyDigit || end > fractionFrom;
    }
    if (!anyDigit) return std::nullopt;
    at = readExponent(t, end, ascii);
    return ascii;
}

std::optional<RadixDigits> readRadix(const String& t, size_t& at) {
    if (at + 1 >= t.size() || t[at] != u'&') return std::nullopt;
    const char16_t kind = t[at + 1];
    const int base = (kind == u'H' || kind == u'h') ? 16 : (kind == u'O' || kind == u'o') ? 8 : 0;
    if (base == 0) return std::nullopt;
    RadixDigits digits;
    size_t end = at + 2;
    for (int d; end < t.size() && (d = radixDigit(t[end], base)) >= 0; ++end) {
        if (digits.bits > (UINT64_MAX - d) / base) digits.tooLarge = true;
        digits.bits = digits.bits * base + d;
    }
    if (end == at + 2) return std::nullopt;
    at = end;
    return digits;
}

double decimalValue(const std::string& ascii) {
    double value = 0;
    const char* first = ascii.data();
    const auto result = std::from_chars(first, first + ascii.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        const auto e = ascii.find('e');
        const bool tiny = e != std::string::npos && ascii.find('-', e) != std::string::npos;
        if (tiny) return 0;  // VB rounds what a Double cannot hold to zero
        throw RuntimeError(err::kOverflow);
    }
    return value;
}

double radixLiteral(const RadixDigits& digits) {
    if (digits.tooLarge || digits.bits >= kBeyond32Bits) throw RuntimeError(err::kOverflow);
    if (digits.bits < kBeyond16Bits) return static_cast<int16_t>(digits.bits);
    return static_cast<int32_t>(digits.bits);
}

double radixDouble(const RadixDigits& digits) {
    if (digits.tooLarge) throw RuntimeError(err::kOverflow);
    if (digits.bits < kBeyond32Bits) return static_cast<int32_t>(digits.bits);
    return static_cast<double>(digits.bits);
}

std::optional<ParsedNumber> parseNumber(const String& text, char16_t separator) {
    size_t at = 0;
    skipBlanks(text, at);
    ParsedNumber number;
    if (auto digits = readRadix(text, at)) {
        number.radix = true;
        number.digits = *digits;
    } else if (auto ascii = readDecimal(text, at, separator)) {
        number.decimal = std::move(*ascii);
    } else {
        return std::nullopt;
    }
    skipBlanks(text, at);
    if (at != text.size()) return std::nullopt;
    // Only a text that is a number as a whole can overflow: "1E400 x" is no number.
    if (!number.radix) number.value = decimalValue(number.decimal);
    return number;
}

}  // namespace vb::detail
