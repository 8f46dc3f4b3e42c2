#pragma once
// Reading the host's answers where a text that cannot be read must not end the dialog.
#include "vb/Conversions.h"

namespace dialog {

// A flag read as a boolean; one that cannot be read counts as not set.
inline bool bandera(const vb::Variant& v) {
    // The usual answer for a flag never set is an empty text: known unreadable, so it is not
    // left to raise (a raised error costs microseconds, on every component of a large tree).
    if (v.type() == vb::VarType::String && v.str().empty()) return false;
    try {
        return vb::CBool(v);
    } catch (const vb::RuntimeError&) {
        return false;
    }
}

}  // namespace dialog
