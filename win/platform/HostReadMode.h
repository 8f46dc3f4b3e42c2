#pragma once
// How the DLL's host objects answer reads, as QUORBEL_HOST_READS said when the DLL was loaded:
// the setting holds for the life of the process.
#include "host/ReadMode.h"

namespace quorbel {

host::ReadMode hostReadMode();

}  // namespace quorbel
