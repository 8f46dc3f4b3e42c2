#include "platform/Win32Platform.h"

#include <windows.h>

#include <string>

#include "com/Module.h"
#include "platform/Ansi.h"
#include "platform/MsxmlDocument.h"
#include "vb/Errors.h"

namespace quorbel {

uint32_t Win32Platform::GetPrivateProfileString(const vb::String& section, const vb::String& key,
                                                const vb::String& defaultValue, vb::String& buffer,
                                                uint32_t bufferSize, const vb::String& fileName) {
    if (bufferSize == 0) {
        buffer.clear();
        return 0;
    }
    std::string out(bufferSize, '\0');
    DWORD n = GetPrivateProfileStringA(toAnsi(section).c_str(), toAnsi(key).c_str(),
                                       toAnsi(defaultValue).c_str(), out.data(), bufferSize,
                                       toAnsi(fileName).c_str());
    buffer = fromAnsi(out.data(), n);
    return n;
}

vb::String Win32Platform::GetDlgItemText(int32_t dialogHandle, int32_t controlId,
                                         int32_t bufferSize) {
    if (bufferSize <= 0) return {};
    std::string out(bufferSize, '\0');
    HWND dlg = reinterpret_cast<HWND>(static_cast<intptr_t>(dialogHandle));
    UINT n = GetDlgItemTextA(dlg, controlId, out.data(), bufferSize);
    return fromAnsi(out.data(), n);
}

std::vector<platform::DirEntry> Win32Platform::dir(const vb::String& pattern, bool includeFolders) {
    std::wstring search = wide(pattern);
    if (!search.empty() && search.back() == L'\\') search += L"*";
    std::vector<platform::DirEntry> out;
    WIN32_FIND_DATAW data;
    HANDLE h = FindFirstFileW(search.c_str(), &data);
    if (h == INVALID_HANDLE_VALUE) {
        DWORD e = GetLastError();
        if (e == ERROR_FILE_NOT_FOUND || e == ERROR_NO_MORE_FILES) return out;
        if (e == ERROR_PATH_NOT_FOUND) return out;
        throw vb::RuntimeError(vb::err::kFileNotFound);
    }
    do {
        bool folder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if (folder && !includeFolders) continue;
        if (data.dwFileAttributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) continue;
        out.push_back({narrowWide(data.cFileName, wcslen(data.cFileName)), folder});
    } while (FindNextFileW(h, &data));
    FindClose(h);
    return out;
}

int64_t Win32Platform::fileLength(const vb::String& path) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExW(wide(path).c_str(), GetFileExInfoStandard, &data))
        throw vb::RuntimeError(vb::err::kFileNotFound);
    return (static_cast<int64_t>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
}

bool Win32Platform::folderExists(const vb::String& path) {
    DWORD a = GetFileAttributesW(wide(path).c_str());
    return a != INVALID_FILE_ATTRIBUTES && (a & FILE_ATTRIBUTE_DIRECTORY);
}

void Win32Platform::createFolder(const vb::String& path) {
    if (CreateDirectoryW(wide(path).c_str(), nullptr)) return;
    DWORD e = GetLastError();
    throw vb::RuntimeError(e == ERROR_PATH_NOT_FOUND ? vb::err::kPathNotFound
                                                     : vb::err::kPathFileAccess);
}

std::vector<vb::String> Win32Platform::readTextLines(const vb::String& path) {
    HANDLE h = CreateFileW(wide(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                           OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE) throw vb::RuntimeError(vb::err::kFileNotFound);
    std::string bytes;
    char chunk[65536];
    DWORD got = 0;
    while (ReadFile(h, chunk, sizeof(chunk), &got, nullptr) && got > 0) bytes.append(chunk, got);
    CloseHandle(h);
    std::vector<vb::String> lines;
    size_t start = 0;
    for (size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\r' && bytes[i] != '\n') continue;
        lines.push_back(fromAnsi(bytes.data() + start, i - start));
        if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
        start = i + 1;
    }
    if (start < bytes.size()) lines.push_back(fromAnsi(bytes.data() + start, bytes.size() - start));
    return lines;
}

void Win32Platform::messageBox(const vb::String& text, const vb::String& caption,
                               platform::MsgIcon icon) {
    UINT style = MB_OK | MB_TASKMODAL;
    if (icon == platform::MsgIcon::Information) style |= MB_ICONINFORMATION;
    if (icon == platform::MsgIcon::Critical) style |= MB_ICONSTOP;
    MessageBoxW(messageBoxOwner_ ? messageBoxOwner_ : GetActiveWindow(), wide(text).c_str(),
                wide(caption).c_str(), style);
}

void Win32Platform::beep() {
    MessageBeep(MB_OK);
}

vb::String Win32Platform::moduleFolder() {
    std::wstring path = modulePath();
    size_t slash = path.find_last_of(L"\\/");
    if (slash != std::wstring::npos) path.resize(slash);
    return narrowWide(path.data(), path.size());
}

char16_t Win32Platform::decimalSeparator() {
    wchar_t sep[8] = {0};
    if (GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, sep, 8) > 0 && sep[0])
        return static_cast<char16_t>(sep[0]);
    return u'.';
}

std::unique_ptr<platform::XmlDocument> Win32Platform::createXmlDocument() {
    return createMsxmlDocument();
}

vb::String Win32Platform::environmentVariable(const vb::String& name) {
    const std::wstring key = wide(name);
    DWORD size = GetEnvironmentVariableW(key.c_str(), nullptr, 0);
    if (size == 0) return {};
    std::wstring value(size, L'\0');
    DWORD n = GetEnvironmentVariableW(key.c_str(), value.data(), size);
    return n < size ? narrowWide(value.data(), n) : vb::String();
}

}  // namespace quorbel
