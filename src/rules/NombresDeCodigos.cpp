#include "rules/NombresDeCodigos.h"

namespace rules {

bool NombresDeCodigos::nombra(const String& model) {
    // A code looked up before that names the model comes first in the list.
    if (nombres_.count(model)) return true;
    while (buscados_ < codes_.size()) {
        const String& code = codes_[buscados_++];
        const auto name = nombreDe_(code);
        if (name && nombres_.insert(*name).first->compare(model) == 0) return true;
    }
    return false;
}

}  // namespace rules
