#include "RealActions.h"

#include <algorithm>
#include <string>

#include "RealControls.h"

namespace hostdriver {

namespace props = quorbel::props;
using Kind = dialog::UserAction::Kind;
using props::ControlKind;

namespace {

constexpr LPARAM kInside = MAKELPARAM(2, 2);  // a point inside any control

void handToForm(HWND dialog, const dialog::UserAction& a) {
    std::wstring name(a.control.begin(), a.control.end());
    props::ActionRequest request{static_cast<int>(a.kind), name.c_str(), a.index, a.list, a.entry};
    SendMessageW(dialog, props::actionMessage(), 0, reinterpret_cast<LPARAM>(&request));
}

void press(HWND control) {
    SendMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
}

void release(HWND control) {
    SendMessageW(control, WM_LBUTTONUP, 0, kInside);
}

void click(HWND control) {
    if (kindOf(control) == ControlKind::Button) {
        SendMessageW(control, BM_CLICK, 0, 0);
        return;
    }
    press(control);
    release(control);
}

// Toggles the entry, makes it current, notifies the dialog and releases the mouse over it.
void listClick(HWND list, int entry) {
    const bool selected = SendMessageW(list, LB_GETSEL, entry, 0) > 0;
    SendMessageW(list, LB_SETSEL, !selected, entry);
    SendMessageW(list, LB_SETCARETINDEX, entry, FALSE);
    SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
    RECT r{};
    SendMessageW(list, LB_GETITEMRECT, entry, reinterpret_cast<LPARAM>(&r));
    SendMessageW(list, WM_LBUTTONUP, 0, MAKELPARAM(r.left + 2, r.top + 1));
}

void type(HWND dialog, HWND box, const vb::String& text) {
    SetFocus(box);
    for (char16_t c : text) SendMessageW(box, WM_CHAR, c, 1);
    SetFocus(dialog);
}

void paste(HWND dialog, HWND box, const vb::String& text) {
    std::wstring w(text.begin(), text.end());
    SetFocus(box);
    SendMessageW(box, EM_SETSEL, 0, -1);
    SendMessageW(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(w.c_str()));
    SetFocus(dialog);
}

void scroll(HWND dialog, int value) {
    HWND bar = findControl(dialog, u"barraScrolEnc", 0);
    if (!bar || !reachable(dialog, bar)) return;
    const int position = std::clamp(value, 0, 0x7FFF);
    SendMessageW(GetParent(bar), WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, position),
                 reinterpret_cast<LPARAM>(bar));
}

}  // namespace

void doRealAction(HWND dialog, const dialog::UserAction& a) {
    if (a.kind == Kind::Scroll) return scroll(dialog, a.value);
    if (a.kind == Kind::Close) {
        SendMessageW(dialog, WM_CLOSE, 0, 0);
        return;
    }
    if (a.kind == Kind::ListClick) {
        HWND list = findControl(dialog, u"listComponentes", a.list);
        const int count = list ? static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0)) : 0;
        if (!list || a.entry < 0 || a.entry >= count) return handToForm(dialog, a);
        if (reachable(dialog, list)) listClick(list, a.entry);
        return;
    }
    HWND control = findControl(dialog, a.control, a.index);
    const bool textAction = a.kind == Kind::Type || a.kind == Kind::Paste;
    if (!control || (textAction && kindOf(control) != ControlKind::TextBox))
        return handToForm(dialog, a);
    if (!reachable(dialog, control)) return;
    switch (a.kind) {
        case Kind::Click:
            return click(control);
        case Kind::MouseDown:
            return press(control);
        case Kind::MouseUp:
            return release(control);
        case Kind::Type:
            return type(dialog, control, a.text);
        case Kind::Paste:
            return paste(dialog, control, a.text);
        default:
            return;
    }
}

}  // namespace hostdriver
