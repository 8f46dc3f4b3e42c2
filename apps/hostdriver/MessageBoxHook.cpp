#include "MessageBoxHook.h"

#include <windows.h>

#include <exception>
#include <stdexcept>
#include <string>

#include "CallbackFailure.h"

namespace hostdriver {

namespace {

// The controls of the system message box: its text, and its icon (Wine's and Windows' ids).
constexpr int kTextId = 0xFFFF;
constexpr int kIconIds[] = {1088, 20};

struct HookState {
    HHOOK hook = nullptr;
    sim::Recorder* recorder = nullptr;
    HWND open = nullptr;  // the box captured and not yet destroyed
};

HookState& state() {
    static HookState s;
    return s;
}

vb::String windowText(HWND window) {
    const int length = GetWindowTextLengthW(window);
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    const int n = GetWindowTextW(window, text.data(), length + 1);
    return vb::String(reinterpret_cast<const char16_t*>(text.data()), static_cast<size_t>(n));
}

bool isMessageBox(HWND window) {
    wchar_t name[16] = {0};
    GetClassNameW(window, name, 16);
    return std::wstring(name) == L"#32770" && GetDlgItem(window, kTextId) != nullptr;
}

sim::BoxIcon iconOf(HWND box) {
    for (const int id : kIconIds) {
        HWND control = GetDlgItem(box, id);
        if (!control) continue;
        const auto icon = reinterpret_cast<HICON>(SendMessageW(control, STM_GETICON, 0, 0));
        if (!icon) continue;
        if (icon == LoadIconW(nullptr, IDI_INFORMATION)) return sim::BoxIcon::Information;
        if (icon == LoadIconW(nullptr, IDI_ERROR)) return sim::BoxIcon::Critical;
    }
    return sim::BoxIcon::None;
}

void answerOk(HWND box) {
    const LRESULT def = SendMessageW(box, DM_GETDEFID, 0, 0);
    const int button = HIWORD(def) == DC_HASDEFID ? LOWORD(def) : IDOK;
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(box, button)));
}

LRESULT CALLBACK afterMessage(int code, WPARAM wParam, LPARAM lParam) {
    HookState& s = state();
    const auto* message = reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code == HC_ACTION && message->message == WM_INITDIALOG && isMessageBox(message->hwnd)) {
        HWND box = message->hwnd;
        s.open = box;
        // Answered whatever happens: an exception leaving the hook would be lost under Wine and
        // the box left waiting.
        try {
            s.recorder->messageBox(windowText(GetDlgItem(box, kTextId)), windowText(box),
                                   iconOf(box));
        } catch (...) {
            keepCallbackFailure(std::current_exception());
        }
        answerOk(box);
    } else if (code == HC_ACTION && message->message == WM_NCDESTROY && message->hwnd == s.open) {
        s.open = nullptr;
    }
    return CallNextHookEx(s.hook, code, wParam, lParam);
}

}  // namespace

MessageBoxHook::MessageBoxHook(sim::Recorder& recorder) {
    HookState& s = state();
    s.recorder = &recorder;
    s.hook = SetWindowsHookExW(WH_CALLWNDPROCRET, afterMessage, nullptr, GetCurrentThreadId());
    if (!s.hook) throw std::runtime_error("cannot set the message box hook");
}

MessageBoxHook::~MessageBoxHook() {
    HookState& s = state();
    UnhookWindowsHookEx(s.hook);
    s = HookState{};
}

bool messageBoxOpen() {
    return state().open != nullptr;
}

}  // namespace hostdriver
