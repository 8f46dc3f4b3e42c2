#include "AttributeDialog.h"

#include <stdexcept>
#include <string>

namespace hostdriver {

AttributeDialog::AttributeDialog(const std::map<int32_t, vb::String>& controls) {
    window_ = CreateWindowExW(0, L"STATIC", L"Attributes", WS_POPUP, 0, 0, 300, 200, nullptr,
                              nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!window_) throw std::runtime_error("cannot create the attribute dialog");
    int top = 0;
    for (const auto& [id, text] : controls) {
        const std::wstring value(text.begin(), text.end());
        HWND control = CreateWindowExW(
            0, L"EDIT", value.c_str(), WS_CHILD | ES_AUTOHSCROLL, 0, top, 280, 20, window_,
            reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
        if (!control) {
            DestroyWindow(window_);
            throw std::runtime_error("cannot create a control of the attribute dialog");
        }
        top += 24;
    }
}

AttributeDialog::~AttributeDialog() {
    if (window_) DestroyWindow(window_);
}

int32_t AttributeDialog::handle() const {
    return static_cast<int32_t>(reinterpret_cast<intptr_t>(window_));
}

}  // namespace hostdriver
