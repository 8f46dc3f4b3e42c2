#pragma once
// VB conversions of Variants. Text to number uses the thread's decimal separator (the shells
// set it from the platform); group separators are never accepted.
#include <cstdint>

#include "vb/Errors.h"
#include "vb/Variant.h"

namespace vb {

void setDecimalSeparator(char16_t separator);  // per thread; "." until set
char16_t decimalSeparator();

String CStr(const Variant& v);  // Null raises 94 ("Invalid use of Null"); Empty gives ""
// Text: blanks allowed around, exponent forms, "&H"/"&O" digits (a Long's bits up to 32 bits,
// their unsigned value beyond).
double CDbl(const Variant& v);
// Halves to even; 6 out of range; 13 not a number. Text is rounded on its own digits, and
// "&H"/"&O" text gives the type's bits ("&HFFFF" is 65535 as a Long, -1 as an Integer).
int32_t CLng(const Variant& v);
int16_t CInt(const Variant& v);
bool CBool(const Variant& v);    // numbers: non-zero; text "True"/"False" or a number
double Val(const String& text);  // leading-number rule, "." decimal point, 0 when none
bool IsNumeric(const Variant& v);

// The "<>" of two Variants as VB evaluates it (numbers compare as numbers, text as text,
// a number against numeric text as numbers; Null gives Null, which counts as false here).
bool distintos(const Variant& a, const Variant& b);

// Shortest decimal text of a double as CStr writes it ("-1", "10000000", "0.5").
String numberText(double d);

}  // namespace vb
