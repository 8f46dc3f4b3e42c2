#include "RealControls.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

namespace hostdriver {

namespace props = quorbel::props;
using props::ControlKind;

namespace {

std::wstring wideOf(const vb::String& s) {
    return std::wstring(s.begin(), s.end());
}

vb::String textOf(const std::wstring& w) {
    return vb::String(w.begin(), w.end());
}

vb::String windowText(HWND h) {
    const int n = GetWindowTextLengthW(h);
    std::wstring text(static_cast<size_t>(n) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(h, text.data(), n + 1)));
    return textOf(text);
}

struct Tagged {
    int order;
    std::wstring name;
    int index;
    HWND hwnd;
};

BOOL CALLBACK collect(HWND h, LPARAM out) {
    if (!props::hasInt(h, props::kOrder)) return TRUE;
    std::wstring key = props::getString(h, props::kControl);
    size_t hash = key.rfind(L'#');
    if (hash == std::wstring::npos) return TRUE;
    reinterpret_cast<std::vector<Tagged>*>(out)->push_back(
        {props::getInt(h, props::kOrder), key.substr(0, hash), std::stoi(key.substr(hash + 1)), h});
    return TRUE;
}

BOOL CALLBACK firstDialog(HWND h, LPARAM out) {
    wchar_t cls[32];
    if (GetClassNameW(h, cls, 32) && lstrcmpW(cls, props::kDialogClass) == 0) {
        *reinterpret_cast<HWND*>(out) = h;
        return FALSE;
    }
    return TRUE;
}

std::vector<dialog::ListEntry> entriesOf(HWND list) {
    std::vector<dialog::ListEntry> entries;
    const int n = static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0));
    for (int i = 0; i < n; ++i) {
        const int len = static_cast<int>(SendMessageW(list, LB_GETTEXTLEN, i, 0));
        std::wstring text(static_cast<size_t>(std::max(len, 0)) + 1, L'\0');
        SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text.data()));
        text.resize(static_cast<size_t>(std::max(len, 0)));
        entries.push_back({textOf(text), SendMessageW(list, LB_GETSEL, i, 0) > 0});
    }
    return entries;
}

// One element as the control shows it; only what a control of its kind has.
dialog::ControlElement element(HWND h) {
    dialog::ControlElement e;
    const LONG style = GetWindowLongW(h, GWL_STYLE);
    const ControlKind kind = kindOf(h);
    e.tag = textOf(props::getString(h, props::kTag));
    if (kind != ControlKind::Shape) e.enabled = (style & WS_DISABLED) == 0;
    e.visible = (style & WS_VISIBLE) != 0;
    e.top = props::getInt(h, props::kTop);
    e.height = props::getInt(h, props::kHeight);
    switch (kind) {
        case ControlKind::Label:
            e.caption = windowText(h);
            e.foreColor = props::getInt(h, props::kForeColor);
            break;
        case ControlKind::Button:
        case ControlKind::Frame:
            e.caption = windowText(h);
            break;
        case ControlKind::TextBox:
            e.text = windowText(h);
            break;
        case ControlKind::ListBox:
            e.entries = entriesOf(h);
            e.listIndex = props::hasInt(h, props::kNoCurrent)
                              ? -1
                              : static_cast<int32_t>(SendMessageW(h, LB_GETCARETINDEX, 0, 0));
            break;
        case ControlKind::Picture:
            e.borderStyle = (style & WS_BORDER) ? 1 : 0;
            break;
        case ControlKind::ScrollBar: {
            SCROLLINFO si{};
            si.cbSize = sizeof(si);
            si.fMask = SIF_ALL;
            GetScrollInfo(h, SB_CTL, &si);
            e.value = si.nPos;
            e.max = si.nMax - static_cast<int>(std::max<UINT>(si.nPage, 1)) + 1;
            break;
        }
        case ControlKind::Shape:
            break;
    }
    return e;
}

}  // namespace

HWND findDialog() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), firstDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND findControl(HWND dialog, const vb::String& name, int index) {
    std::vector<Tagged> all;
    EnumChildWindows(dialog, collect, reinterpret_cast<LPARAM>(&all));
    const std::wstring wanted = wideOf(name);
    for (const Tagged& t : all)
        if (t.name == wanted && t.index == index) return t.hwnd;
    return nullptr;
}

ControlKind kindOf(HWND control) {
    return static_cast<ControlKind>(props::getInt(control, props::kKind));
}

bool reachable(HWND dialog, HWND control) {
    if (!IsWindowVisible(control)) return false;
    for (HWND h = control; h && h != dialog; h = GetParent(h))
        if (!IsWindowEnabled(h)) return false;
    return true;
}

dialog::Snapshot readSnapshot(HWND dialog) {
    std::vector<Tagged> all;
    EnumChildWindows(dialog, collect, reinterpret_cast<LPARAM>(&all));
    std::sort(all.begin(), all.end(), [](const Tagged& a, const Tagged& b) {
        return std::tie(a.order, a.index) < std::tie(b.order, b.index);
    });
    dialog::Snapshot s;
    s.title = windowText(dialog);
    for (const Tagged& t : all) {
        if (s.controls.empty() || t.index == 0)
            s.controls.emplace_back(textOf(t.name), std::vector<dialog::ControlElement>{});
        s.controls.back().second.push_back(element(t.hwnd));
    }
    return s;
}

}  // namespace hostdriver
