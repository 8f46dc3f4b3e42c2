#include "com/Module.h"

#include "com/CallTrace.h"
#include "platform/HostReadMode.h"

namespace quorbel {
HMODULE gModule = nullptr;
LONG gObjects = 0;

HMODULE moduleHandle() {
    return gModule;
}

std::wstring modulePath() {
    wchar_t buf[MAX_PATH * 4];
    DWORD n = GetModuleFileNameW(gModule, buf, sizeof(buf) / sizeof(buf[0]));
    return std::wstring(buf, n);
}

void objectCreated() {
    InterlockedIncrement(&gObjects);
}
void objectDestroyed() {
    InterlockedDecrement(&gObjects);
}
LONG liveObjects() {
    return gObjects;
}

HRESULT loadTypeInfo(REFGUID iid, ITypeInfo** info) {
    ITypeLib* lib = nullptr;
    HRESULT hr = LoadTypeLibEx(modulePath().c_str(), REGKIND_NONE, &lib);
    if (FAILED(hr)) return hr;
    hr = lib->GetTypeInfoOfGuid(iid, info);
    lib->Release();
    return hr;
}

}  // namespace quorbel

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        quorbel::gModule = instance;
        DisableThreadLibraryCalls(instance);
        quorbel::traceFilePath();  // the trace file is the environment's at load time
        quorbel::hostReadMode();   // the reading mode is the environment's at load time
    }
    return TRUE;
}
