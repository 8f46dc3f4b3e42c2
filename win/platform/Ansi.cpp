#include "platform/Ansi.h"

#include <windows.h>

namespace quorbel {

std::string toAnsi(const vb::String& text) {
    if (text.empty()) return {};
    auto w = reinterpret_cast<const wchar_t*>(text.data());
    int n = WideCharToMultiByte(CP_ACP, 0, w, static_cast<int>(text.size()), nullptr, 0, nullptr,
                                nullptr);
    std::string out(n, '\0');
    WideCharToMultiByte(CP_ACP, 0, w, static_cast<int>(text.size()), out.data(), n, nullptr,
                        nullptr);
    return out;
}

vb::String fromAnsi(const char* text, size_t length) {
    if (length == 0) return {};
    int n = MultiByteToWideChar(CP_ACP, 0, text, static_cast<int>(length), nullptr, 0);
    vb::String out(n, u'\0');
    MultiByteToWideChar(CP_ACP, 0, text, static_cast<int>(length),
                        reinterpret_cast<wchar_t*>(out.data()), n);
    return out;
}

std::wstring wide(const vb::String& text) {
    return std::wstring(text.begin(), text.end());
}

vb::String narrowWide(const wchar_t* text, size_t length) {
    return vb::String(reinterpret_cast<const char16_t*>(text), length);
}

}  // namespace quorbel
