#pragma once
// The reading mode a shell gives its host objects: the environment variable QUORBEL_HOST_READS
// set to "literal" (in any letter case) asks the host at every step; anything else, or nothing,
// keeps reads for the call.
#include "host/ReadMode.h"
#include "platform/Platform.h"

namespace env {

inline const vb::String kVariableLecturas = u"QUORBEL_HOST_READS";

host::ReadMode modoLecturas(platform::Platform& platform);

}  // namespace env
