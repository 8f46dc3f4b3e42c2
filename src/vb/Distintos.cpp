// The "<>" of two Variants as VB evaluates it.
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace vb {

namespace {

// Text against a number: numeric text compares as a number; any other text cannot be
// compared (VB raises "Type mismatch"), except the words True/False against a Boolean.
bool textDiffersFromNumber(const String& text, const Variant& number) {
    if (number.type() == VarType::Boolean && !IsNumeric(Variant(text))) {
        return CBool(Variant(text)) != number.boolean();
    }
    return CDbl(Variant(text)) != CDbl(number);
}

}  // namespace

bool distintos(const Variant& a, const Variant& b) {
    if (a.isNull() || b.isNull()) return false;  // Null <> x is Null, not True
    if (a.isEmpty() && b.isEmpty()) return false;
    if (a.isEmpty())
        return distintos(b.type() == VarType::String ? Variant(String()) : Variant(0), b);
    if (b.isEmpty()) return distintos(b, a);
    const bool aText = a.type() == VarType::String;
    const bool bText = b.type() == VarType::String;
    if (aText && bText) return a.str() != b.str();
    if (aText) return textDiffersFromNumber(a.str(), b);
    if (bText) return textDiffersFromNumber(b.str(), a);
    return CDbl(a) != CDbl(b);
}

}  // namespace vb
