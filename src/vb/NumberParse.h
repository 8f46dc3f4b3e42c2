#pragma once
// Reading numbers out of text as VB's conversions do. Internal to vb/.
#include <cstdint>
#include <optional>

#include "vb/Variant.h"

namespace vb::detail {

// A number read from text: either decimal (value) or "&H"/"&O" digits (bits, unsigned).
struct ParsedNumber {
    double value = 0;
    bool radix = false;
    uint64_t bits = 0;
};

// The whole text as one number (blanks allowed around it), with `separator` as the decimal
// point and no group separators; nothing when it is not a number.
std::optional<ParsedNumber> parseNumber(const String& text, char16_t separator);

// Hex/octal bits typed as VB types its literals: up to 16 bits an Integer, up to 32 a Long.
// Raises 6 beyond 32 bits.
double radixValue(uint64_t bits);

// Decimal text with "." as the point (digits, point, exponent already checked) to a double.
double decimalValue(const std::string& ascii);

bool isBlank(char16_t c);
bool isDigit(char16_t c);

}  // namespace vb::detail
