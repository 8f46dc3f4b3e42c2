#include "ShotPauses.h"

#include <string>

namespace hostdriver {

namespace {

constexpr int kBoxTextId = 0xFFFF;
constexpr DWORD kPollMs = 50;
constexpr int kPolls = 400;  // 20 s: a script that does not answer does not block the run

ShotPauses* active = nullptr;

bool isMessageBox(HWND h) {
    wchar_t cls[16] = {0};
    GetClassNameW(h, cls, 16);
    return std::wstring(cls) == L"#32770" && GetDlgItem(h, kBoxTextId) != nullptr;
}

bool exists(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

ShotPauses::ShotPauses() {
    wchar_t folder[MAX_PATH] = {0};
    if (!GetEnvironmentVariableW(L"QUORBEL_SHOTS", folder, MAX_PATH)) return;
    folder_ = folder;
    active = this;
    hook_ = SetWindowsHookExW(WH_CALLWNDPROCRET, boxReady, nullptr, GetCurrentThreadId());
}

ShotPauses::~ShotPauses() {
    if (hook_) UnhookWindowsHookEx(hook_);
    if (active == this) active = nullptr;
}

void ShotPauses::pause() {
    if (!enabled()) return;
    const std::wstring base = folder_ + L"\\" + std::to_wstring(++taken_);
    HANDLE ready = CreateFileW((base + L".ready").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                               FILE_ATTRIBUTE_NORMAL, nullptr);
    if (ready != INVALID_HANDLE_VALUE) CloseHandle(ready);
    for (int i = 0; i < kPolls && !exists(base + L".done"); ++i) Sleep(kPollMs);
}

// A message box is laid out once its dialog is initialised: show and draw it at once, before
// the driver's own hook answers it, and wait for its picture.
LRESULT CALLBACK ShotPauses::boxReady(int code, WPARAM wp, LPARAM lp) {
    const auto* m = reinterpret_cast<const CWPRETSTRUCT*>(lp);
    if (active && code == HC_ACTION && m->message == WM_INITDIALOG && isMessageBox(m->hwnd)) {
        ShowWindow(m->hwnd, SW_SHOWNA);
        RedrawWindow(m->hwnd, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
        active->pause();
    }
    return CallNextHookEx(active ? active->hook_ : nullptr, code, wp, lp);
}

}  // namespace hostdriver
