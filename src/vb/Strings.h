#pragma once
// VB string functions on UTF-16 text. Positions are 1-based and count UTF-16 units.
// Every comparison names its mode: Binary is exact, Text ignores case for ASCII and Latin-1.
#include <string>
#include <vector>

#include "vb/Variant.h"

namespace vb {

enum class Compare { Binary, Text };

int InStr(const String& text, const String& find, Compare mode, int start = 1);  // 0 = absent
// Empty pieces kept; empty text gives no piece (as VB), an empty separator the whole text.
std::vector<String> Split(const String& text, const String& separator);
String Mid(const String& text, int start);              // raises 5 when start < 1
String Mid(const String& text, int start, int length);  // raises 5 when start < 1 or length < 0
String Left(const String& text, int length);
String Right(const String& text, int length);
int Len(const String& text);
String Trim(const String& text);  // blanks (U+0020) only, as VB's Trim
String LTrim(const String& text);
String RTrim(const String& text);
String UCase(const String& text);
String LCase(const String& text);
bool equalText(const String& a, const String& b);  // equal ignoring case (Compare::Text)
char16_t upperUnit(char16_t c);  // the case mapping of UCase/LCase and Compare::Text
char16_t lowerUnit(char16_t c);
String Replace(const String& text, const String& find, const String& with);

// UTF-8 at the edges (JSON, console).
String fromUtf8(const std::string& text);
std::string toUtf8(const String& text);

}  // namespace vb
