// Text to number: CDbl, CLng, CInt and Val of any text, with "." or "," as the decimal
// separator (the first byte's low bit chooses; the rest is the text).
//
// Properties, which hold of VB (integer conversions round the text's exact digits, CDbl gives
// the nearest Double):
// - each conversion gives a number or raises 6 (Overflow) or 13 (Type mismatch), nothing else;
//   Val never raises 13; the three conversions agree on what is not a number;
// - decimal text: CLng and CInt give banker's rounding of CDbl, and raise 6 exactly when that
//   is out of range, whenever the text has at most 15 significant digits (the Double then lies
//   on the same side of every half as the text); with more digits they stay within a half
//   (and a rounding error) of CDbl; with "." as separator Val equals CDbl;
// - "&H"/"&O" text: CLng equals CDbl when CDbl is within a Long, and CInt has CLng's low bits.
#include <cmath>
#include <cstdint>
#include <limits>

#include "FuzzCheck.h"
#include "vb/Conversions.h"
#include "vb/Errors.h"

namespace {

using vb::String;

struct Outcome {
    bool ok = false;
    double value = 0;
    int error = 0;
};

template <typename Call>
Outcome attempt(Call call) {
    try {
        return {true, static_cast<double>(call()), 0};
    } catch (const vb::RuntimeError& e) {
        FUZZ_CHECK(e.number() == vb::err::kOverflow || e.number() == vb::err::kTypeMismatch);
        return {false, 0, e.number()};
    }
}

bool isBlank(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

// Digits of the mantissa without the zeros in front and behind: "0012.3400E5" has 4.
size_t significantDigits(const String& text) {
    String digits;
    size_t at = 0;
    while (at < text.size() && (isBlank(text[at]) || text[at] == u'-' || text[at] == u'+')) ++at;
    for (; at < text.size() &&
           !(text[at] == u'E' || text[at] == u'e' || text[at] == u'D' || text[at] == u'd');
         ++at)
        if (isDigit(text[at])) digits.push_back(text[at]);
    const auto first = digits.find_first_not_of(u'0');
    if (first == String::npos) return 0;
    return digits.find_last_not_of(u'0') - first + 1;
}

bool isRadix(const String& text) {
    size_t at = 0;
    while (at < text.size() && isBlank(text[at])) ++at;
    return at < text.size() && text[at] == u'&';
}

// The default rounding mode rounds halves to even.
double bankers(double d) {
    return std::nearbyint(d);
}

template <typename Int>
void checkDecimal(const String& text, const Outcome& dbl, const Outcome& integer) {
    constexpr double lowest = std::numeric_limits<Int>::min();
    constexpr double highest = std::numeric_limits<Int>::max();
    const double v = dbl.value;
    if (significantDigits(text) <= 15) {
        const double r = bankers(v);
        const bool inRange = r >= lowest && r <= highest;
        FUZZ_CHECK(integer.ok == inRange);
        if (integer.ok) FUZZ_CHECK(integer.value == r);
        return;
    }
    if (v > lowest + 1 && v < highest - 1) FUZZ_CHECK(integer.ok);
    if (v < lowest - 1 || v > highest + 1) FUZZ_CHECK(!integer.ok);
    if (integer.ok) FUZZ_CHECK(std::fabs(integer.value - v) <= 0.5 + 1e-6);
}

void checkRadix(const Outcome& dbl, const Outcome& lng, const Outcome& in) {
    const bool withinLong = dbl.ok && dbl.value >= INT32_MIN && dbl.value <= INT32_MAX;
    FUZZ_CHECK(lng.ok == withinLong);
    if (lng.ok) FUZZ_CHECK(lng.value == dbl.value);
    if (!in.ok) return;
    FUZZ_CHECK(lng.ok);
    const auto lowBits = static_cast<uint16_t>(static_cast<int32_t>(lng.value));
    FUZZ_CHECK(static_cast<int16_t>(lowBits) == in.value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const char16_t separator = (data[0] & 1) ? u',' : u'.';
    const String text = fuzzcheck::texts(data + 1, size - 1, 1)[0];
    vb::setDecimalSeparator(separator);
    const vb::Variant variant(text);
    const Outcome dbl = attempt([&] { return vb::CDbl(variant); });
    const Outcome lng = attempt([&] { return vb::CLng(variant); });
    const Outcome in = attempt([&] { return vb::CInt(variant); });
    const Outcome val = attempt([&] { return vb::Val(text); });
    vb::setDecimalSeparator(u'.');

    FUZZ_CHECK(val.error != vb::err::kTypeMismatch);
    const bool notANumber = dbl.error == vb::err::kTypeMismatch;
    FUZZ_CHECK((lng.error == vb::err::kTypeMismatch) == notANumber);
    FUZZ_CHECK((in.error == vb::err::kTypeMismatch) == notANumber);
    if (notANumber) return 0;
    if (!dbl.ok) {  // beyond a Double: beyond every integer type too
        FUZZ_CHECK(!lng.ok && !in.ok);
        if (separator == u'.' && !isRadix(text)) FUZZ_CHECK(!val.ok);
        return 0;
    }
    FUZZ_CHECK(std::isfinite(dbl.value));
    if (isRadix(text)) {
        checkRadix(dbl, lng, in);
        return 0;
    }
    checkDecimal<int32_t>(text, dbl, lng);
    checkDecimal<int16_t>(text, dbl, in);
    if (separator == u'.') FUZZ_CHECK(val.ok && val.value == dbl.value);
    return 0;
}
