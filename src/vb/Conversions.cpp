// VB's conversion functions over Variants.
#include "vb/Conversions.h"

#include <cmath>
#include <limits>
#include <type_traits>

#include "vb/NumberParse.h"
#include "vb/Strings.h"

namespace vb {

namespace {

using detail::ParsedNumber;

thread_local char16_t tDecimalSeparator = u'.';

ParsedNumber parsedText(const String& text) {
    auto number = detail::parseNumber(text, tDecimalSeparator);
    if (!number) throw RuntimeError::typeMismatch(text);
    return std::move(*number);
}

double textToDouble(const String& text) {
    const auto number = parsedText(text);
    return number.radix ? detail::radixDouble(number.digits) : number.value;
}

// Halves go to the even neighbour, as VB's integer conversions round.
double roundHalfEven(double d) {
    const double below = std::floor(d);
    const double diff = d - below;
    if (diff > 0.5) return below + 1;
    if (diff < 0.5) return below;
    return std::fmod(below, 2.0) == 0 ? below : below + 1;
}

template <typename Int>
Int toInteger(double d) {
    const double r = roundHalfEven(d);
    if (!(r >= std::numeric_limits<Int>::min() && r <= std::numeric_limits<Int>::max()))
        throw RuntimeError(err::kOverflow);
    return static_cast<Int>(r);
}

// Text goes to the integer types directly, not through a Double: hex/octal digits are the
// type's own bits ("&HF060" is 61536 as a Long, -4000 as an Integer), and decimal text is
// rounded on its exact digits.
template <typename Int>
Int textToInteger(const String& text) {
    using Unsigned = std::make_unsigned_t<Int>;
    const auto number = parsedText(text);
    if (number.radix) {
        const auto& digits = number.digits;
        if (digits.tooLarge || digits.bits > std::numeric_limits<Unsigned>::max())
            throw RuntimeError(err::kOverflow);
        return static_cast<Int>(static_cast<Unsigned>(digits.bits));
    }
    const auto rounded = detail::roundedDecimal(number.decimal);
    if (!rounded || *rounded < std::numeric_limits<Int>::min() ||
        *rounded > std::numeric_limits<Int>::max())
        throw RuntimeError(err::kOverflow);
    return static_cast<Int>(*rounded);
}

void rejectNull(const Variant& v) {
    if (v.isNull()) throw RuntimeError(err::kInvalidUseOfNull);
}

}  // namespace

void setDecimalSeparator(char16_t separator) {
    tDecimalSeparator = separator;
}
char16_t decimalSeparator() {
    return tDecimalSeparator;
}

String CStr(const Variant& v) {
    switch (v.type()) {
        case VarType::Empty:
            return String();
        case VarType::Null:
            throw RuntimeError(err::kInvalidUseOfNull);
        case VarType::Boolean:
            return v.boolean() ? u"True" : u"False";
        case VarType::Integer:
            return numberText(v.integer());
        case VarType::Long:
            return numberText(v.longValue());
        case VarType::Double:
            return numberText(v.dbl());
        case VarType::String:
            return v.str();
    }
    return String();
}

double CDbl(const Variant& v) {
    switch (v.type()) {
        case VarType::Empty:
            return 0;
        case VarType::Null:
            throw RuntimeError(err::kInvalidUseOfNull);
        case VarType::Boolean:
            return v.boolean() ? -1 : 0;
        case VarType::Integer:
            return v.integer();
        case VarType::Long:
            return v.longValue();
        case VarType::Double:
            return v.dbl();
        case VarType::String:
            return textToDouble(v.str());
    }
    return 0;
}

int32_t CLng(const Variant& v) {
    if (v.type() == VarType::String) return textToInteger<int32_t>(v.str());
    return toInteger<int32_t>(CDbl(v));
}

int16_t CInt(const Variant& v) {
    if (v.type() == VarType::String) return textToInteger<int16_t>(v.str());
    return toInteger<int16_t>(CDbl(v));
}

// Text: the words True and False in any case, exactly as they stand (no blanks around), and
// VB's literals #TRUE# and #FALSE#; otherwise the text must be a number, or it is a type
// mismatch (the empty text included).
bool CBool(const Variant& v) {
    rejectNull(v);
    if (v.type() == VarType::Boolean) return v.boolean();
    if (v.type() == VarType::String) {
        const String& t = v.str();
        if (equalText(t, u"True") || t == u"#TRUE#") return true;
        if (equalText(t, u"False") || t == u"#FALSE#") return false;
    }
    return CDbl(v) != 0;
}

bool IsNumeric(const Variant& v) {
    switch (v.type()) {
        case VarType::Null:
            return false;
        case VarType::String:
            break;
        default:
            return true;
    }
    try {
        return detail::parseNumber(v.str(), tDecimalSeparator).has_value();
    } catch (const RuntimeError&) {
        return false;  // too large for a Double
    }
}

}  // namespace vb
