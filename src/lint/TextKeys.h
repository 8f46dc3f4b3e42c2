#pragma once
// The keyed texts of table 2 that the plug-in reads, and what each one shows.
#include <vector>

#include "lint/Lint.h"

namespace lint {

enum class TextUse {
    Message,  // a message shows it; without it the message shows an empty text
    Caption,  // a dialog caption; without it the designed caption stays
    Special,  // read for more than a caption (TR_0008, TR_0046, TR_0047)
};

struct TextKey {
    const char16_t* key;
    TextUse use;
    const char16_t* shows;  // in an author's words
};

const std::vector<TextKey>& textKeys();

// Every code the plug-in looks up in table 2: the MO_, EX_ and TR_ codes.
const std::vector<String>& codesRead();

}  // namespace lint
