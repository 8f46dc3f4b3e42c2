#pragma once
// Reading numbers out of text as VB's conversions do. Internal to vb/.
#include <cstdint>
#include <optional>
#include <string>

#include "vb/Variant.h"

namespace vb::detail {

// "&H"/"&O" digits: their value as unsigned bits, or `tooLarge` beyond 64 bits.
struct RadixDigits {
    uint64_t bits = 0;
    bool tooLarge = false;
};

// A number read from text: either decimal (value, and the ASCII it was read from, for exact
// rounding to an integer) or "&H"/"&O" digits.
struct ParsedNumber {
    double value = 0;
    std::string decimal;
    bool radix = false;
    RadixDigits digits;
};

// The whole text as one number (blanks allowed around it), with `separator` as the decimal
// point and no group separators; nothing when it is not a number. Raises 6 when it is a number
// too large for a Double.
std::optional<ParsedNumber> parseNumber(const String& text, char16_t separator);

// The longest "[sign] digits [separator digits] [E|D [sign] digits]" at `at`, as ASCII with
// "." and "e"; `at` moves past it. Nothing (and `at` unmoved) without a mantissa digit.
std::optional<std::string> readDecimal(const String& text, size_t& at, char16_t separator);

// "&H1F" / "&O17" at `at`; `at` moves past the digits. Nothing (and `at` unmoved) without one.
std::optional<RadixDigits> readRadix(const String& text, size_t& at);

// Hex/octal digits typed as VB types its literals: up to 16 bits an Integer, up to 32 a Long.
// Raises 6 beyond 32 bits.
double radixLiteral(const RadixDigits& digits);

// Hex/octal text converted to a Double: up to 32 bits the bits of a Long, beyond them the
// unsigned value. Raises 6 beyond 64 bits.
double radixDouble(const RadixDigits& digits);

// Decimal ASCII from readDecimal rounded to an integer on its exact digits, halves to even;
// nothing when the result lies beyond 64 bits.
std::optional<int64_t> roundedDecimal(const std::string& ascii);

// ASCII from readDecimal to a double; raises 6 when too large, gives 0 when too small.
double decimalValue(const std::string& ascii);

bool isBlank(char16_t c);

}  // namespace vb::detail
