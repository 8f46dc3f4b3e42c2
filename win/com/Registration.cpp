#include "com/Registration.h"

#include <oleauto.h>
#include <olectl.h>

#include <string>

#include "QuorbelVersion.h"
#include "Quorbel_h.h"
#include "com/Module.h"

namespace quorbel {
namespace {

struct ClassEntry {
    const CLSID& clsid;
    const wchar_t* progId;
};

const ClassEntry kClasses[] = {{CLSID_Plugin, L"Quorbel.Plugin"},
                               {CLSID_Wizard, L"Quorbel.Wizard"}};
const wchar_t kTypeLibVersion[] = L"" QUORBEL_TYPELIB_KEY;

std::wstring guidText(REFGUID g) {
    wchar_t buf[64];
    StringFromGUID2(g, buf, 64);
    return buf;
}

bool setValue(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
    HKEY h;
    if (RegCreateKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &h,
                        nullptr) != ERROR_SUCCESS)
        return false;
    LONG rc = RegSetValueExW(h, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                             static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
    RegCloseKey(h);
    return rc == ERROR_SUCCESS;
}

bool registerClass(const ClassEntry& c, const std::wstring& path) {
    std::wstring clsid = guidText(c.clsid), key = L"CLSID\\" + clsid;
    return setValue(key, nullptr, c.progId) && setValue(key + L"\\InprocServer32", nullptr, path) &&
           setValue(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment") &&
           setValue(key + L"\\ProgID", nullptr, c.progId) &&
           setValue(key + L"\\TypeLib", nullptr, guidText(LIBID_Quorbel)) &&
           setValue(key + L"\\Version", nullptr, kTypeLibVersion) &&
           setValue(c.progId, nullptr, c.progId) &&
           setValue(std::wstring(c.progId) + L"\\CLSID", nullptr, clsid);
}

HRESULT registerTypeLib(const std::wstring& path) {
    ITypeLib* lib = nullptr;
    HRESULT hr = LoadTypeLibEx(path.c_str(), REGKIND_NONE, &lib);
    if (FAILED(hr)) return hr;
    hr = RegisterTypeLib(lib, const_cast<LPOLESTR>(path.c_str()), nullptr);
    lib->Release();
    return hr;
}

}  // namespace

HRESULT registerServer() {
    std::wstring path = modulePath();
    for (const auto& c : kClasses)
        if (!registerClass(c, path)) {
            unregisterServer();
            return SELFREG_E_CLASS;
        }
    HRESULT hr = registerTypeLib(path);
    if (FAILED(hr)) unregisterServer();
    return FAILED(hr) ? SELFREG_E_TYPELIB : S_OK;
}

HRESULT unregisterServer() {
    for (const auto& c : kClasses) {
        RegDeleteTreeW(HKEY_CLASSES_ROOT, (L"CLSID\\" + guidText(c.clsid)).c_str());
        RegDeleteTreeW(HKEY_CLASSES_ROOT, c.progId);
    }
    UnRegisterTypeLib(LIBID_Quorbel, QUORBEL_VERSION_MAJOR, QUORBEL_VERSION_MINOR, LOCALE_NEUTRAL,
                      sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
    return S_OK;
}

}  // namespace quorbel
