// Reads back, under Wine, what the build put into Quorbel.dll about its version: the version
// resource (fixed and text versions, names) and the embedded type library's version, against
// the project's version given on the command line.
//   version-check X.Y.Z DLL...
// Prints one line per failed check and a summary; exits 1 when any failed.
#include <windows.h>  // with OLE Automation's type libraries

#include <cstdio>
#include <string>
#include <vector>

namespace {

int failed = 0;
int passed = 0;

void expect(bool ok, const std::string& what) {
    ok ? ++passed : ++failed;
    if (!ok) std::printf("FAIL %s\n", what.c_str());
}

struct Version {
    unsigned major = 0, minor = 0, patch = 0;
    std::string text;
};

bool parseVersion(const char* text, Version& v) {
    char rest = 0;
    v.text = text;
    return std::sscanf(text, "%u.%u.%u%c", &v.major, &v.minor, &v.patch, &rest) == 3;
}

std::wstring wide(const std::string& s) {
    std::wstring w(s.size(), L'\0');
    w.resize(MultiByteToWideChar(CP_UTF8, 0, s.data(), static_cast<int>(s.size()), w.data(),
                                 static_cast<int>(w.size())));
    return w;
}

std::string narrow(const std::wstring& w) {
    std::string s(w.size() * 3, '\0');
    s.resize(WideCharToMultiByte(CP_UTF8, 0, w.data(), static_cast<int>(w.size()), s.data(),
                                 static_cast<int>(s.size()), nullptr, nullptr));
    return s;
}

std::vector<BYTE> versionInfo(const std::wstring& file) {
    DWORD ignored = 0;
    std::vector<BYTE> info(GetFileVersionInfoSizeW(file.c_str(), &ignored));
    if (info.empty() ||
        !GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(info.size()), info.data()))
        info.clear();
    return info;
}

// A text of the first translation the resource lists ("" when there is none).
std::wstring textValue(std::vector<BYTE>& info, const wchar_t* name) {
    struct Translation {
        WORD language, codePage;
    }* translations = nullptr;
    UINT size = 0;
    if (!VerQueryValueW(info.data(), L"\\VarFileInfo\\Translation",
                        reinterpret_cast<void**>(&translations), &size) ||
        size < sizeof(Translation))
        return L"";
    wchar_t path[96];
    std::swprintf(path, 96, L"\\StringFileInfo\\%04x%04x\\%ls", translations[0].language,
                  translations[0].codePage, name);
    wchar_t* value = nullptr;
    if (!VerQueryValueW(info.data(), path, reinterpret_cast<void**>(&value), &size) || !value)
        return L"";
    return value;
}

void checkResource(const std::string& file, const Version& v) {
    std::vector<BYTE> info = versionInfo(wide(file));
    expect(!info.empty(), file + ": has a version resource");
    if (info.empty()) return;
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT size = 0;
    VerQueryValueW(info.data(), L"\\", reinterpret_cast<void**>(&fixed), &size);
    expect(fixed && size >= sizeof(VS_FIXEDFILEINFO), file + ": has the fixed part");
    if (!fixed) return;
    const DWORD high = MAKELONG(v.minor, v.major), low = MAKELONG(0, v.patch);
    expect(fixed->dwFileVersionMS == high && fixed->dwFileVersionLS == low,
           file + ": file version " + v.text + ".0");
    expect(fixed->dwProductVersionMS == high && fixed->dwProductVersionLS == low,
           file + ": product version " + v.text + ".0");
    expect(fixed->dwFileType == VFT_DLL, file + ": a DLL");

    const struct {
        const wchar_t* name;
        std::wstring expected;  // empty: any text but an empty one
    } texts[] = {
        {L"FileVersion", wide(v.text)}, {L"ProductVersion", wide(v.text)},
        {L"ProductName", L"Quorbel"},   {L"OriginalFilename", L"Quorbel.dll"},
        {L"FileDescription", L""},      {L"CompanyName", L""},
        {L"LegalCopyright", L""},
    };
    for (const auto& t : texts) {
        const std::wstring value = textValue(info, t.name);
        const bool ok = t.expected.empty() ? !value.empty() : value == t.expected;
        expect(ok, file + ": " + narrow(t.name) + " is \"" + narrow(value) + "\"");
    }
}

void checkTypeLibrary(const std::string& file, const Version& v) {
    ITypeLib* lib = nullptr;
    expect(SUCCEEDED(LoadTypeLibEx(wide(file).c_str(), REGKIND_NONE, &lib)),
           file + ": holds a type library");
    if (!lib) return;
    TLIBATTR* attr = nullptr;
    if (SUCCEEDED(lib->GetLibAttr(&attr))) {
        expect(attr->wMajorVerNum == v.major && attr->wMinorVerNum == v.minor,
               file + ": type library version " + std::to_string(attr->wMajorVerNum) + "." +
                   std::to_string(attr->wMinorVerNum));
        lib->ReleaseTLibAttr(attr);
    }
    lib->Release();
}

}  // namespace

int main(int argc, char** argv) {
    Version version;
    if (argc < 3 || !parseVersion(argv[1], version)) {
        std::printf("usage: version-check X.Y.Z DLL...\n");
        return 2;
    }
    for (int i = 2; i < argc; ++i) {
        checkResource(argv[i], version);
        checkTypeLibrary(argv[i], version);
    }
    std::printf("version-check: %d passed, %d failed\n", passed, failed);
    return failed == 0 ? 0 : 1;
}
