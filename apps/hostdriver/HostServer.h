#pragma once
// Makes the simulated host's objects creatable by ProgID in this process.
//
// The class objects are registered by the driver itself (CoRegisterClassObject) with ProgID and
// CLSID keys under HKEY_CLASSES_ROOT, rather than built into a DLL for regsvr32: the objects
// must share this process's simulated world and recorder, which a separately loaded server
// could only reach through exports of its own; the plug-in's CreateObject finds them exactly as
// it finds a registered server. (Wine 8 reads ProgIDs from the machine's classes only, not from
// HKCU\Software\Classes, so the keys go where both Windows and Wine look.)
#include "sim/HostState.h"

namespace hostdriver {

class HostServer {
  public:
    // Raises std::runtime_error when a class cannot be registered.
    explicit HostServer(sim::HostState& state);
    ~HostServer();  // revokes the class objects
    HostServer(const HostServer&) = delete;
    HostServer& operator=(const HostServer&) = delete;

  private:
    unsigned long cookies_[3] = {0, 0, 0};
};

}  // namespace hostdriver
