#pragma once
// Reading the host's answers where a text that cannot be read must not end the dialog.
#include "vb/Conversions.h"

namespace dialog {

// A flag read as a boolean; one that cannot be read counts as not set.
inline bool bandera(const vb::Variant& v) {
    try {
        return vb::CBool(v);
    } catch (const vb::RuntimeError&) {
        return false;
    }
}

}  // namespace dialog
