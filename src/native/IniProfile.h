#pragma once
// Reading a value from INI text as GetPrivateProfileStringA does: sections and keys match
// without regard to case, the first matching section and key win, blanks around keys and
// values are dropped and a value wrapped in matching quotes loses them.
#include <cstdint>
#include <optional>

#include "vb/Variant.h"

namespace native {

std::optional<vb::String> iniValue(const vb::String& text, const vb::String& section,
                                   const vb::String& key);

// The profile function's answer: the value (or the default) cut to bufferSize - 1 characters.
vb::String profileAnswer(const std::optional<vb::String>& value, const vb::String& defaultValue,
                         uint32_t bufferSize);

}  // namespace native
