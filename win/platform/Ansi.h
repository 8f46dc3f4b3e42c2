#pragma once
// ANSI code page <-> UTF-16 at the edges of the "A" functions.
#include <string>

#include "vb/Variant.h"

namespace quorbel {

std::string toAnsi(const vb::String& text);
vb::String fromAnsi(const char* text, size_t length);
std::wstring wide(const vb::String& text);
vb::String narrowWide(const wchar_t* text, size_t length);

}  // namespace quorbel
