#pragma once
// The plug-in's object lifetime as the host sees it: no host object is still held when a call
// returns; while the driver holds its Plugin and Wizard the DLL must stay (DllCanUnloadNow
// answers S_FALSE), once it has released them every object of the DLL is gone (S_OK); and, when
// asked, the process's private memory over a long run.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "sim/HostState.h"
#include "sim/Json.h"

namespace hostdriver {

class Lifetime {
  public:
    void afterCall(size_t index, const sim::HostState& state);
    // After the last call, while the driver still holds its instances.
    void whileHeld();
    // After the driver released its instances of the plug-in's classes.
    void afterRelease();
    const std::vector<std::string>& problems() const { return problems_; }

    // Private memory after each call: the figures of the first and the last thousand calls, and
    // once the plug-in's instances are released.
    void measureMemory() { measuring_ = true; }
    sim::Json memoryFigures() const;

    static constexpr size_t kWindow = 1000;

  private:
    std::vector<std::string> problems_;
    bool measuring_ = false;
    size_t calls_ = 0;
    uint64_t afterFirstWindow_ = 0;  // private bytes after call kWindow
    uint64_t atEnd_ = 0;             // after the last call
    uint64_t afterRelease_ = 0;      // once the plug-in's instances are released
    bool canUnload_ = false;
};

}  // namespace hostdriver
