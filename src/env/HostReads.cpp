#include "env/HostReads.h"

#include "vb/Strings.h"

namespace env {

host::ReadMode modoLecturas(platform::Platform& platform) {
    const vb::String value = platform.environmentVariable(kVariableLecturas);
    return vb::equalText(value, u"literal") ? host::ReadMode::Literal : host::ReadMode::Cached;
}

}  // namespace env
