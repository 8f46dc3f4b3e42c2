#include "platform/MsxmlDocument.h"

namespace quorbel {
namespace {

bool startsAt(const vb::String& t, size_t at, const char16_t* word) {
    return t.compare(at, std::char_traits<char16_t>::length(word), word) == 0;
}

// Skips one prolog item (white space, comment, processing instruction); false at anything else.
bool skipPrologItem(const vb::String& t, size_t& at) {
    if (at < t.size() && (t[at] == u' ' || t[at] == u'\t' || t[at] == u'\r' || t[at] == u'\n' ||
                          t[at] == u'\xFEFF')) {
        ++at;
        return true;
    }
    const char16_t* end = startsAt(t, at, u"<!--") ? u"-->"
                          : startsAt(t, at, u"<?") ? u"?>"
                                                   : nullptr;
    if (!end) return false;
    size_t close = t.find(end, at + 2);
    at = close == vb::String::npos ? t.size() : close + std::char_traits<char16_t>::length(end);
    return true;
}

}  // namespace

bool hasDoctype(const vb::String& text) {
    size_t at = 0;
    while (at < text.size() && skipPrologItem(text, at)) {
    }
    return startsAt(text, at, u"<!DOCTYPE");
}

}  // namespace quorbel
