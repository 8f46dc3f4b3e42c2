// Val: the number at the start of a text, ignoring blanks anywhere, "." as the point.
#include "vb/Conversions.h"
#include "vb/NumberParse.h"

namespace vb {

namespace {

String withoutBlanks(const String& text) {
    String out;
    for (char16_t c : text)
        if (!detail::isBlank(c)) out.push_back(c);
    return out;
}

}  // namespace

double Val(const String& text) {
    const String t = withoutBlanks(text);
    size_t at = 0;
    if (auto digits = detail::readRadix(t, at)) {
        // A trailing "&" types the digits as a Long ("&HFFFF&" is 65535).
        const bool asLong =
            at < t.size() && t[at] == u'&' && !digits->tooLarge && digits->bits <= 0xFFFFFFFFull;
        return asLong ? static_cast<int32_t>(digits->bits) : detail::radixLiteral(*digits);
    }
    auto ascii = detail::readDecimal(t, at, u'.');
    return ascii ? detail::decimalValue(*ascii) : 0;
}

}  // namespace vb
