// Rounding decimal text to an integer on its own digits, as the integer conversions of text do:
// "2.50000000000000001" is above the half and gives 3, although its nearest Double is 2.5.
#include <algorithm>
#include <cstdint>

#include "vb/NumberParse.h"

namespace vb::detail {

namespace {

constexpr int64_t kExponentLimit = 1000000000;  // far beyond any digit count a text can have
constexpr int64_t kMaxWholeDigits = 20;         // UINT64_MAX has 20 digits

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The exponent after "e", saturated so that adding it to a digit count cannot overflow.
int64_t exponentOf(const std::string& ascii, size_t at) {
    if (at >= ascii.size() || ascii[at] != 'e') return 0;
    ++at;
    const bool negative = at < ascii.size() && ascii[at] == '-';
    if (at < ascii.size() && (ascii[at] == '-' || ascii[at] == '+')) ++at;
    int64_t exponent = 0;
    for (; at < ascii.size() && isDigit(ascii[at]); ++at)
        exponent = std::min(exponent * 10 + (ascii[at] - '0'), kExponentLimit);
    return negative ? -exponent : exponent;
}

// Whether the digits from `from` on, rounded away, make the whole part go up (halves to even).
bool roundsUp(const std::string& digits, size_t from, uint64_t whole) {
    if (from >= digits.size() || digits[from] < '5') return false;
    if (digits[from] > '5') return true;
    const bool moreThanHalf = digits.find_first_not_of('0', from + 1) != std::string::npos;
    return moreThanHalf || (whole & 1) != 0;
}

}  // namespace

std::optional<int64_t> roundedDecimal(const std::string& ascii) {
    size_t at = 0;
    const bool negative = !ascii.empty() && ascii[0] == '-';
    if (negative) ++at;
    std::string digits;
    for (; at < ascii.size() && isDigit(ascii[at]); ++at) digits.push_back(ascii[at]);
    int64_t point = static_cast<int64_t>(digits.size());  // digits in front of the point
    if (at < ascii.size() && ascii[at] == '.')
        for (++at; at < ascii.size() && isDigit(ascii[at]); ++at) digits.push_back(ascii[at]);
    const size_t significant = digits.find_first_not_of('0');
    if (significant == std::string::npos) return 0;
    digits.erase(0, significant);
    point += exponentOf(ascii, at) - static_cast<int64_t>(significant);
    if (point > kMaxWholeDigits) return std::nullopt;
    uint64_t whole = 0;
    for (int64_t k = 0; k < point; ++k) {
        const int d = k < static_cast<int64_t>(digits.size()) ? digits[k] - '0' : 0;
        if (whole > (UINT64_MAX - d) / 10) return std::nullopt;
        whole = whole * 10 + d;
    }
    // A point further left than the first digit leaves less than a tenth: it rounds to 0.
    if (point >= 0 && roundsUp(digits, static_cast<size_t>(point), whole)) {
        if (whole == UINT64_MAX) return std::nullopt;
        ++whole;
    }
    if (whole > static_cast<uint64_t>(INT64_MAX)) return std::nullopt;
    return negative ? -static_cast<int64_t>(whole) : static_cast<int64_t>(whole);
}

}  // namespace vb::detail
