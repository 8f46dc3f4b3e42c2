#include "com/CallTrace.h"

#include <cstdio>

#include "platform/Ansi.h"
#include "platform/Bstr.h"

namespace quorbel {

namespace {

std::wstring readTracePath() {
    wchar_t buffer[MAX_PATH * 4];
    const DWORD n = GetEnvironmentVariableW(L"QUORBEL_TRACE", buffer, MAX_PATH * 4);
    return n > 0 && n < MAX_PATH * 4 ? std::wstring(buffer, n) : std::wstring();
}

std::string utf8(const vb::String& text) {
    const std::wstring w = wide(text);
    const int n = WideCharToMultiByte(CP_UTF8, 0, w.data(), static_cast<int>(w.size()), nullptr, 0,
                                      nullptr, nullptr);
    std::string out(n > 0 ? n : 0, '\0');
    if (n > 0) {
        WideCharToMultiByte(CP_UTF8, 0, w.data(), static_cast<int>(w.size()), out.data(), n,
                            nullptr, nullptr);
    }
    return out;
}

std::string localTime() {
    SYSTEMTIME t;
    GetLocalTime(&t);
    char text[32];
    std::snprintf(text, sizeof text, "%04u-%02u-%02u %02u:%02u:%02u", t.wYear, t.wMonth, t.wDay,
                  t.wHour, t.wMinute, t.wSecond);
    return text;
}

std::string outcome(HRESULT result) {
    if (SUCCEEDED(result)) return "";
    char text[64];
    if (isVbErrorCode(result)) {
        std::snprintf(text, sizeof text, "  the call ended with error %u\r\n",
                      static_cast<unsigned>(HRESULT_CODE(result)));
    } else {
        std::snprintf(text, sizeof text, "  the call failed (0x%08lX)\r\n",
                      static_cast<unsigned long>(result));
    }
    return text;
}

void append(const std::wstring& path, const std::string& text) {
    HANDLE file = CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return;
    DWORD written = 0;
    WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    CloseHandle(file);
}

}  // namespace

const std::wstring& traceFilePath() {
    static const std::wstring path = readTracePath();
    return path;
}

std::string entryName(const char* className, const char* functionName) {
    // "virtual HRESULT quorbel::ComPlugin::SceneCheck(long int, VARIANT_BOOL*) [with ...]": the
    // name stands between the last "::" (or blank) and the parameter list.
    std::string f = functionName;
    f = f.substr(0, f.find(" [with"));
    const size_t open = f.rfind('(');
    if (open == std::string::npos) return std::string(className) + "." + f;
    const size_t colons = f.rfind("::", open);
    const size_t from = colons != std::string::npos ? colons + 2 : f.rfind(' ', open) + 1;
    return std::string(className) + "." + f.substr(from, open - from);
}

CallTrace::CallTrace(const char* className, const std::source_location& where) noexcept
    : listening_(traceFilePath().empty() ? nullptr : this) {
    if (traceFilePath().empty()) return;
    try {
        header_ = entryName(className, where.function_name());
    } catch (...) {
        // Without memory for the name the call still runs; its header is left bare.
    }
}

CallTrace::~CallTrace() = default;

void CallTrace::decision(const vb::String& texto) {
    lines_.push_back(texto);
}

void CallTrace::finish(HRESULT result) noexcept {
    if (traceFilePath().empty()) return;
    try {
        std::string text = "== " + header_ + " (" + localTime() + ")\r\n";
        for (const auto& line : lines_) text += "  " + utf8(line) + "\r\n";
        append(traceFilePath(), text + outcome(result));
    } catch (...) {
        // The trace is for support; the call's result stands whatever happens to it.
    }
}

}  // namespace quorbel
