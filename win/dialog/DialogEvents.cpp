// The window messages the form has events for, sent to its handlers through its own wiring.
#include <commctrl.h>

#include <algorithm>

#include "dialog/Acciones.h"
#include "dialog/DialogWindow.h"
#include "dialog/Eventos.h"
#include "platform/Ansi.h"

namespace quorbel {

namespace {

class IgnoreObserver : public dialog::DialogObserver {
  public:
    void dialogShown(const vb::String&) override {}
    void snapshot(const dialog::Snapshot&) override {}
    void dialogClosed(const std::string&) override {}
};

}  // namespace

LRESULT DialogWindow::controlMessage(HWND h, UINT msg, WPARAM wp, LPARAM lp, bool& handled) {
    RealControl* rc = find(h);
    if (!rc) return 0;
    const RealControl c = *rc;  // handlers may grow the arrays
    const RawMessage m{h, msg, wp, lp};
    switch (msg) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            return pressed(c, handled);
        case WM_LBUTTONUP:
            return released(c, m, handled);
        case WM_SETFOCUS:
            return focused(c, m, handled);
        case WM_KILLFOCUS:
            if (c.kind != props::ControlKind::TextBox) return 0;
            guard([&] { leeTexto(c); });
            fire([&] { dialog::disparaLostFocus(form_, c.name, c.index); });
            return 0;
        case WM_CHAR:
            return typed(c, m, handled);
        default:
            return 0;
    }
}

LRESULT DialogWindow::pressed(const RealControl& c, bool& handled) {
    using K = props::ControlKind;
    if (c.kind == K::Button) {
        fire([&] { dialog::disparaMouseDown(form_, c.name, c.index); });
        return 0;  // the button's own procedure presses it
    }
    if (c.kind == K::Label || c.kind == K::Picture) {
        mouseDown(c);
        handled = true;
    }
    return 0;
}

LRESULT DialogWindow::released(const RealControl& c, const RawMessage& m, bool& handled) {
    using K = props::ControlKind;
    if (c.kind == K::ListBox) {
        handled = true;
        LRESULT r = DefSubclassProc(m.hwnd, m.msg, m.wp, m.lp);
        guard([&] { leeLista(c); });
        fire([&] { dialog::disparaMouseUp(form_, c.name, c.index); });
        return r;
    }
    if (c.kind == K::Button) {
        fire([&] { dialog::disparaMouseUp(form_, c.name, c.index); });
        return 0;  // the button's own procedure sends the click
    }
    if (c.kind == K::Label || c.kind == K::Picture) {
        mouseUp(c, m.lp);
        handled = true;
    }
    return 0;
}

LRESULT DialogWindow::focused(const RealControl& c, const RawMessage& m, bool& handled) {
    if (c.kind != props::ControlKind::TextBox) return 0;
    handled = true;
    LRESULT r = DefSubclassProc(m.hwnd, m.msg, m.wp, m.lp);
    fire([&] { dialog::disparaGotFocus(form_, c.name, c.index); });
    guard([&] {
        dialog::TextBox& caja = dialog::cajaDe(form_, c.name, c.index);
        SendMessageW(m.hwnd, EM_SETSEL, caja.SelStart, caja.SelStart + caja.SelLength);
    });
    return r;
}

LRESULT DialogWindow::typed(const RealControl& c, const RawMessage& m, bool& handled) {
    if (c.kind != props::ControlKind::TextBox) return 0;
    handled = true;
    int key = static_cast<int>(m.wp);
    fire([&] { dialog::disparaKeyPress(form_, c.name, c.index, key); });
    if (key == 0 || error_) return 0;  // refused: the form has beeped
    LRESULT r = DefSubclassProc(m.hwnd, m.msg, static_cast<WPARAM>(key), m.lp);
    guard([&] { leeTexto(c); });
    return r;
}

void DialogWindow::mouseDown(const RealControl& c) {
    pressed_ = c.hwnd;
    SetCapture(c.hwnd);
    fire([&] { dialog::disparaMouseDown(form_, c.name, c.index); });
}

// A release over the control that was pressed is a click.
void DialogWindow::mouseUp(const RealControl& c, LPARAM lp) {
    RECT r;
    GetClientRect(c.hwnd, &r);
    POINT p{static_cast<short>(LOWORD(lp)), static_cast<short>(HIWORD(lp))};
    bool click = pressed_ == c.hwnd && PtInRect(&r, p);
    pressed_ = nullptr;
    if (GetCapture() == c.hwnd) ReleaseCapture();
    fire([&] { dialog::disparaMouseUp(form_, c.name, c.index); });
    if (click) fire([&] { dialog::disparaClick(form_, c.name, c.index); });
}

void DialogWindow::leeLista(const RealControl& c) {
    auto& lista = static_cast<dialog::ListBox&>(dialog::controlDe(form_, c.name, c.index));
    int n = std::min<int>(lista.ListCount(), SendMessageW(c.hwnd, LB_GETCOUNT, 0, 0));
    for (int i = 0; i < n; ++i)
        lista.entries[i].selected = SendMessageW(c.hwnd, LB_GETSEL, i, 0) > 0;
    int current = static_cast<int>(SendMessageW(c.hwnd, LB_GETCARETINDEX, 0, 0));
    if (current >= 0 && current < n) lista.ListIndex = current;
}

void DialogWindow::leeTexto(const RealControl& c) {
    if (syncing_) return;
    int n = GetWindowTextLengthW(c.hwnd);
    std::wstring text(n + 1, L'\0');
    text.resize(GetWindowTextW(c.hwnd, text.data(), n + 1));
    dialog::cajaDe(form_, c.name, c.index).Text = narrowWide(text.data(), text.size());
}

void DialogWindow::command(HWND from, int code) {
    RealControl* rc = find(from);
    if (!rc) return;
    const RealControl c = *rc;
    using K = props::ControlKind;
    if (c.kind == K::Button && code == BN_CLICKED)
        fire([&] { dialog::disparaClick(form_, c.name, c.index); });
    else if (c.kind == K::ListBox && code == LBN_SELCHANGE)
        guard([&] { leeLista(c); });
    else if (c.kind == K::TextBox && code == EN_CHANGE)
        guard([&] { leeTexto(c); });
}

void DialogWindow::scroll(HWND bar, WPARAM wp) {
    RealControl* rc = find(bar);
    if (!rc || rc->kind != props::ControlKind::ScrollBar) return;
    SCROLLINFO si{};
    si.cbSize = sizeof(si);
    si.fMask = SIF_ALL;
    GetScrollInfo(bar, SB_CTL, &si);
    int page = std::max<int>(1, si.nPage);
    int last = std::max(0, si.nMax - page + 1);
    int line = std::max(1, form_.TxtValoresEnc[0].Height);
    int pos = si.nPos;
    switch (LOWORD(wp)) {
        case SB_LINEUP:
            pos -= line;
            break;
        case SB_LINEDOWN:
            pos += line;
            break;
        case SB_PAGEUP:
            pos -= page;
            break;
        case SB_PAGEDOWN:
            pos += page;
            break;
        case SB_THUMBTRACK:
            pos = si.nTrackPos;
            break;
        case SB_THUMBPOSITION:
            pos = HIWORD(wp);
            break;
        case SB_TOP:
            pos = 0;
            break;
        case SB_BOTTOM:
            pos = last;
            break;
        default:
            return;
    }
    pos = std::clamp(pos, 0, last);
    SetScrollPos(bar, SB_CTL, pos, TRUE);
    if (pos == form_.barraScrolEnc.Value) return;
    fire([&] {
        form_.barraScrolEnc.Value = pos;
        form_.barraScrolEnc_Change();
    });
}

void DialogWindow::playUnreachable(const props::ActionRequest& request) {
    dialog::UserAction a;
    a.kind = static_cast<dialog::UserAction::Kind>(request.kind);
    if (request.control) {
        std::wstring name(request.control);
        a.control = narrowWide(name.data(), name.size());
    }
    a.index = request.index;
    a.list = request.list;
    a.entry = request.entry;
    IgnoreObserver ignore;
    fire([&] { dialog::realizaAccion(form_, a, ignore); });
}

}  // namespace quorbel
