// Numbers as CStr writes them: up to 15 significant digits, no trailing zeros, the
// exponent form ("1E+15", "1E-05") beyond that range, the thread's decimal separator.
#include <charconv>
#include <cmath>

#include "vb/Conversions.h"

namespace vb {

String numberText(double d) {
    if (d == 0) return u"0";               // also -0
    if (std::isnan(d)) return u"-1.#IND";  // VB's texts for values it cannot compute with
    if (std::isinf(d)) return d > 0 ? u"1.#INF" : u"-1.#INF";
    char buffer[64];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, d, std::chars_format::general, 15);
    String out;
    for (const char* p = buffer; p != result.ptr; ++p) {
        if (*p == '.')
            out.push_back(decimalSeparator());
        else if (*p == 'e')
            out.push_back(u'E');
        else
            out.push_back(static_cast<char16_t>(*p));
    }
    return out;
}

}  // namespace vb
