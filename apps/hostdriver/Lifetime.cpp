#include "Lifetime.h"

#include <windows.h>
// psapi.h needs windows.h first.
#include <psapi.h>

namespace hostdriver {

namespace {

// The process's commit charge: its private memory. Wine fills PagefileUsage (its anonymous
// pages) but leaves PROCESS_MEMORY_COUNTERS_EX's PrivateUsage at 0; Windows gives both alike.
uint64_t privateBytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof counters;
    if (!GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters)) return 0;
    return counters.PagefileUsage;
}

// The DLL's DllCanUnloadNow answer; `unloaded` when the DLL is not loaded.
HRESULT canUnloadNow(HRESULT unloaded) {
    HMODULE plugin = GetModuleHandleW(L"Quorbel.dll");
    using CanUnload = HRESULT(STDAPICALLTYPE*)();
    auto canUnload = plugin ? reinterpret_cast<CanUnload>(reinterpret_cast<void*>(
                                  GetProcAddress(plugin, "DllCanUnloadNow")))
                            : nullptr;
    return canUnload ? canUnload() : unloaded;
}

}  // namespace

void Lifetime::afterCall(size_t index, const sim::HostState& state) {
    calls_ = index + 1;
    if (state.liveHostObjects != 0)
        problems_.push_back("the plug-in still holds " + std::to_string(state.liveHostObjects) +
                            " host objects after call " + std::to_string(index));
    if (!measuring_) return;
    if (calls_ == kWindow) afterFirstWindow_ = privateBytes();
    atEnd_ = privateBytes();
}

void Lifetime::whileHeld() {
    if (canUnloadNow(S_OK) != S_FALSE)
        problems_.push_back(
            "DllCanUnloadNow did not answer S_FALSE while the driver held its instances");
}

void Lifetime::afterRelease() {
    canUnload_ = canUnloadNow(S_OK) == S_OK;
    if (measuring_) afterRelease_ = privateBytes();
    if (!canUnload_)
        problems_.push_back(
            "objects of the plug-in are still alive after the driver released its "
            "instances (DllCanUnloadNow did not answer S_OK)");
}

sim::Json Lifetime::memoryFigures() const {
    sim::Json growth = nullptr;  // the two windows must not overlap
    if (calls_ >= 2 * kWindow)
        growth = static_cast<int64_t>(atEnd_) - static_cast<int64_t>(afterFirstWindow_);
    return {{"calls", calls_},
            {"privateBytesAfterFirst1000", afterFirstWindow_},
            {"privateBytesAtEnd", atEnd_},
            {"privateBytesAfterRelease", afterRelease_},
            {"growth", growth},
            {"canUnloadNow", canUnload_}};
}

}  // namespace hostdriver
