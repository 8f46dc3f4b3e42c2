#pragma once
// VB conversions of Variants. Text to number uses the thread's decimal separator (the shells
// set it from the platform); group separators are never accepted.
#include <cstdint>

#include "vb/Errors.h"
#include "vb/Variant.h"

namespace vb {

void setDecimalSeparator(char16_t separator);  // per thread; "." until set
char16_t decimalSeparator();

String CStr(const Variant& v);   // Null raises 94 ("Invalid use of Null"); Empty gives ""
double CDbl(const Variant& v);   // text: blanks allowed around, "&H"/"&O" and exponent forms
int32_t CLng(const Variant& v);  // halves to even; 6 out of range; 13 not a number
int16_t CInt(const Variant& v);  // halves to even; 6 out of range; 13 not a number
bool CBool(const Variant& v);    // numbers: non-zero; text "True"/"False" or a number
double Val(const String& text);  // leading-number rule, "." decimal point, 0 when none
bool IsNumeric(const Variant& v);

// The "<>" of two Variants as VB evaluates it (numbers compare as numbers, text as text,
// a number against numeric text as numbers; Null gives Null, which counts as false here).
bool distintos(const Variant& a, const Variant& b);

// Shortest decimal text of a double as CStr writes it ("-1", "10000000", "0.5").
String numberText(double d);

}  // namespace vb
