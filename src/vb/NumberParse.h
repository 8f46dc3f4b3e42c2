#pragma once
// Reading numbers out of text as VB's conversions do. Internal to vb/.
#include <cstdint>
#include <optional>
#include <string>

#include "vb/Variant.h"

namespace vb::detail {

// A number read from text: either decimal (value) or "&H"/"&O" digits (bits, unsigned).
struct ParsedNumber {
    double value = 0;
    bool radix = false;
    uint64_t bits = 0;
};

// The whole text as one number (blanks allowed around it), with `separator` as the decimal
// point and no group separators; nothing when it is not a number. Raises 6 when too large.
std::optional<ParsedNumber> parseNumber(const String& text, char16_t separator);

// The longest "[sign] digits [separator digits] [E|D [sign] digits]" at `at`, as ASCII with
// "." and "e"; `at` moves past it. Nothing (and `at` unmoved) without a mantissa digit.
std::optional<std::string> readDecimal(const String& text, size_t& at, char16_t separator);

// "&H1F" / "&O17" at `at`: the digits' value, saturated just above 32 bits; `at` moves past
// them. Nothing (and `at` unmoved) without a digit.
std::optional<uint64_t> readRadix(const String& text, size_t& at);

// Hex/octal bits typed as VB types its literals: up to 16 bits an Integer, up to 32 a Long.
// Raises 6 beyond 32 bits.
double radixValue(uint64_t bits);

// ASCII from readDecimal to a double; raises 6 when too large, gives 0 when too small.
double decimalValue(const std::string& ascii);

bool isBlank(char16_t c);

}  // namespace vb::detail
