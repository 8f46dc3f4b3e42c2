#pragma once
// VB's Dir over the virtual file system. A pattern ending in "\" lists the folder ("." and ".."
// first unless it is a drive root); a last name with "*" or "?" lists the matching entries; any
// other path yields that entry when it exists. Folders appear only when includeFolders.
// A path Windows would refuse raises error 52; a missing folder or file yields nothing.
#include <vector>

#include "platform/Platform.h"
#include "sim/VirtualFs.h"

namespace native {

std::vector<platform::DirEntry> dirEntries(const sim::VirtualFs& files, const vb::String& pattern,
                                           bool includeFolders);

// "*" any run, "?" one character; without regard to case.
bool wildcardMatch(const vb::String& pattern, const vb::String& name);

}  // namespace native
