#include "Machine.h"

#include <windows.h>

#include <stdexcept>

#include "platform/Ansi.h"
#include "vb/Strings.h"

namespace hostdriver {

namespace {

using quorbel::toAnsi;

std::wstring wide(const vb::String& text) {
    return std::wstring(text.begin(), text.end());
}

[[noreturn]] void fail(const std::string& what, const vb::String& path) {
    throw std::runtime_error(what + " " + vb::toUtf8(path));
}

bool writeBytes(const vb::String& path, const std::string& bytes) {
    HANDLE file = CreateFileW(wide(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const bool ok =
        bytes.empty() ||
        (WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
         written == bytes.size());
    CloseHandle(file);
    return ok;
}

void makeFolder(const vb::String& path) {
    if (!CreateDirectoryW(wide(path).c_str(), nullptr) && GetLastError() != ERROR_ALREADY_EXISTS)
        fail("cannot create the folder", path);
}

// Folders and files in the order the scenario made them, parents first.
void layOutFolder(const sim::VirtualFs& files, const vb::String& folder) {
    const auto entries = files.list(folder);
    for (const auto& entry : *entries) {
        const vb::String path = (folder.back() == u'\\' ? folder : folder + u"\\") + entry.name;
        if (entry.isFolder) {
            makeFolder(path);
            layOutFolder(files, path);
            continue;
        }
        const vb::String& content = *files.fileContent(path);
        const std::string bytes =
            content.empty() ? std::string(static_cast<size_t>(*files.fileSize(path)), '\0')
                            : toAnsi(content);
        if (!writeBytes(path, bytes)) fail("cannot write the file", path);
    }
}

void makeFolders(const vb::String& path) {
    const auto parsed = sim::parsePath(path);
    if (!parsed) fail("not a folder path:", path);
    sim::WinPath step{parsed->drive, {}};
    for (const auto& name : parsed->names) {
        step.names.push_back(name);
        makeFolder(step.text());
    }
}

}  // namespace

void layOutFiles(const sim::VirtualFs& files) {
    layOutFolder(files, u"C:\\");
}

void installPlugin(const std::wstring& dll, const vb::String& moduleDir) {
    makeFolders(moduleDir);
    vb::String folder = moduleDir;
    while (!folder.empty() && (folder.back() == u'\\' || folder.back() == u'/')) folder.pop_back();
    const std::wstring target = wide(folder) + L"\\Quorbel.dll";
    if (!CopyFileW(dll.c_str(), target.c_str(), FALSE))
        throw std::runtime_error("cannot copy the plug-in into its folder");
    HMODULE module = LoadLibraryW(target.c_str());
    if (!module) throw std::runtime_error("cannot load the plug-in");
    using Register = HRESULT(STDAPICALLTYPE*)();
    auto registerServer = reinterpret_cast<Register>(
        reinterpret_cast<void*>(GetProcAddress(module, "DllRegisterServer")));
    const HRESULT hr = registerServer ? registerServer() : E_FAIL;
    FreeLibrary(module);
    if (FAILED(hr)) throw std::runtime_error("the plug-in did not register");
}

void setUserDecimalSeparator(char16_t separator) {
    const wchar_t text[2] = {static_cast<wchar_t>(separator), L'\0'};
    if (!SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, text))
        throw std::runtime_error("cannot set the user's decimal separator");
}

sim::WriteResult writeResourceFile(const vb::String& path, const vb::String& content) {
    const auto parsed = sim::parsePath(path);
    if (!parsed || parsed->isRoot()) return sim::WriteResult::Failed;
    const DWORD parent = GetFileAttributesW(wide(parsed->parent().text()).c_str());
    if (parent == INVALID_FILE_ATTRIBUTES || !(parent & FILE_ATTRIBUTE_DIRECTORY))
        return sim::WriteResult::Failed;
    const DWORD existing = GetFileAttributesW(wide(path).c_str());
    if (existing != INVALID_FILE_ATTRIBUTES && (existing & FILE_ATTRIBUTE_DIRECTORY))
        return sim::WriteResult::Failed;
    if (!writeBytes(path, toAnsi(content))) return sim::WriteResult::Failed;
    return existing == INVALID_FILE_ATTRIBUTES ? sim::WriteResult::Created
                                               : sim::WriteResult::Replaced;
}

}  // namespace hostdriver
