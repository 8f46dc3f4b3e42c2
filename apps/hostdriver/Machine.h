#pragma once
// The Windows machine as a scenario sets it up: its files on the real drive, the plug-in copied
// into its folder and registered there, the user's decimal separator; and the host's writes of
// exported resources to that drive.
#include <string>

#include "sim/VirtualFs.h"

namespace hostdriver {

// Writes every file and folder of the scenario's drive C: (texts in the ANSI code page, sized
// files as that many zero bytes). Raises std::runtime_error on a failure.
void layOutFiles(const sim::VirtualFs& files);

// Copies the DLL into `moduleDir` and registers it from there, as regsvr32 does.
void installPlugin(const std::wstring& dll, const vb::String& moduleDir);

void setUserDecimalSeparator(char16_t separator);

// FileExportResource on the real drive: fails when the folder does not exist or the path names
// a folder; tells whether the file is new.
sim::WriteResult writeResourceFile(const vb::String& path, const vb::String& content);

}  // namespace hostdriver
