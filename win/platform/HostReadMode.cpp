#include "platform/HostReadMode.h"

#include "env/HostReads.h"
#include "platform/Win32Platform.h"

namespace quorbel {

// The first call (DllMain's, when the process attaches) reads the environment; later calls
// return what it read.
host::ReadMode hostReadMode() {
    static const host::ReadMode mode = [] {
        Win32Platform platform;
        return env::modoLecturas(platform);
    }();
    return mode;
}

}  // namespace quorbel
