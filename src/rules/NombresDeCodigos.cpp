#include "rules/NombresDeCodigos.h"

#include "vb/Conversions.h"

namespace rules {

bool NombresDeCodigos::nombra(const String& model) {
    // A code looked up before that names the model comes first in the list.
    if (nombres_.count(model)) return true;
    while (buscados_ < codes_.size()) {
        const String& code = codes_[buscados_++];
        const int32_t r =
            vb::CLng(catalog_.TableGetLineRankFromCode(sessionId_, 8, 0, 1, code, false));
        if (r < 1) continue;
        const String name = vb::CStr(catalog_.TableGetLineInfo(sessionId_, 8, 0, r, 3));
        if (nombres_.insert(name).first->compare(model) == 0) return true;
    }
    return false;
}

}  // namespace rules
