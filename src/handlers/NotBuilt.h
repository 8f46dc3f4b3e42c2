#pragma once
// A method of the interface whose behaviour this build does not have yet: calling it is a
// runtime error naming the method, never a silent no-op.
#include "vb/Errors.h"

namespace handlers {

[[noreturn]] inline void notBuilt(const vb::String& method) {
    throw vb::RuntimeError(vb::err::kNoSuchMember, method + u" is not available in this build");
}

}  // namespace handlers
