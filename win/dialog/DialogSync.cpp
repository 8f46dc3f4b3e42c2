// Bringing the form's properties onto the real controls, writing only what changed.
#include <commctrl.h>

#include <algorithm>

#include "dialog/DialogWindow.h"
#include "platform/Ansi.h"

namespace quorbel {

namespace {

using K = props::ControlKind;

std::u16string windowText(HWND h) {
    int n = GetWindowTextLengthW(h);
    std::wstring text(n + 1, L'\0');
    text.resize(GetWindowTextW(h, text.data(), n + 1));
    return narrowWide(text.data(), text.size());
}

}  // namespace

void DialogWindow::aplicaComun(RealControl& rc, const dialog::Control& m, bool hasEnabled) {
    HWND h = rc.hwnd;
    if (hasEnabled && (IsWindowEnabled(h) != FALSE) != m.Enabled) {
        EnableWindow(h, m.Enabled);
        InvalidateRect(h, nullptr, TRUE);
    }
    std::wstring tag = wide(m.Tag);
    if (!rc.tagSet || tag != rc.tag) {
        props::setString(h, props::kTag, tag);
        rc.tag = tag;
        rc.tagSet = true;
    }
    props::setInt(h, props::kTop, m.Top);
    props::setInt(h, props::kHeight, m.Height);
    if (rc.followsForm) {
        // Rows made at run time share element 0's left and width.
        auto it = layout_.places.find(keyOf(rc.name, 0));
        RECT r{};
        if (it != layout_.places.end()) r = it->second.rect;
        r.top = layout_.px(m.Top);
        r.bottom = r.top + layout_.px(m.Height);
        if (!EqualRect(&r, &rc.shown)) {
            MoveWindow(h, r.left, r.top, r.right - r.left, r.bottom - r.top, TRUE);
            rc.shown = r;
        }
    }
    bool visible = (GetWindowLongW(h, GWL_STYLE) & WS_VISIBLE) != 0;
    if (visible != m.Visible) ShowWindow(h, m.Visible ? SW_SHOWNA : SW_HIDE);
}

void DialogWindow::aplicaTexto(RealControl& rc, const std::u16string& text) {
    if (text == rc.text) return;
    SetWindowTextW(rc.hwnd, wide(text).c_str());
    rc.text = text;
}

void DialogWindow::aplica(RealControl& rc, dialog::Label& m) {
    aplicaComun(rc, m);
    aplicaTexto(rc, m.Caption);
    int32_t shown =
        props::hasInt(rc.hwnd, props::kForeColor) ? props::getInt(rc.hwnd, props::kForeColor) : -1;
    if (shown != m.ForeColor) {
        props::setInt(rc.hwnd, props::kForeColor, m.ForeColor);
        InvalidateRect(rc.hwnd, nullptr, TRUE);
    }
}

void DialogWindow::aplica(RealControl& rc, dialog::CommandButton& m) {
    aplicaComun(rc, m);
    aplicaTexto(rc, m.Caption);
}

void DialogWindow::aplica(RealControl& rc, dialog::Frame& m) {
    aplicaComun(rc, m);
    if (m.Caption != rc.text) {
        aplicaTexto(rc, m.Caption);
        InvalidateRect(rc.hwnd, nullptr, TRUE);
    }
}

void DialogWindow::aplica(RealControl& rc, dialog::TextBox& m) {
    aplicaComun(rc, m);
    if (windowText(rc.hwnd) != m.Text) SetWindowTextW(rc.hwnd, wide(m.Text).c_str());
}

void DialogWindow::aplica(RealControl& rc, dialog::ListBox& m) {
    aplicaComun(rc, m);
    HWND h = rc.hwnd;
    bool same = rc.entries.size() == m.entries.size();
    for (size_t i = 0; same && i < m.entries.size(); ++i) same = rc.entries[i] == m.entries[i].text;
    if (!same) {
        SendMessageW(h, WM_SETREDRAW, FALSE, 0);
        SendMessageW(h, LB_RESETCONTENT, 0, 0);
        rc.entries.clear();
        int widest = 0;
        HDC dc = GetDC(h);
        HGDIOBJ old = SelectObject(dc, font_);
        for (const auto& e : m.entries) {
            std::wstring w = wide(e.text);
            SendMessageW(h, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(w.c_str()));
            SIZE size{};
            GetTextExtentPoint32W(dc, w.c_str(), static_cast<int>(w.size()), &size);
            widest = std::max<int>(widest, size.cx + 8);
            rc.entries.push_back(e.text);
        }
        SelectObject(dc, old);
        ReleaseDC(h, dc);
        // Long component names scroll sideways instead of being cut.
        SendMessageW(h, LB_SETHORIZONTALEXTENT, widest, 0);
        SendMessageW(h, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(h, nullptr, TRUE);
    }
    for (size_t i = 0; i < m.entries.size(); ++i) {
        bool real = SendMessageW(h, LB_GETSEL, i, 0) > 0;
        if (real != m.entries[i].selected) SendMessageW(h, LB_SETSEL, m.entries[i].selected, i);
    }
    if (m.ListIndex >= 0 && SendMessageW(h, LB_GETCARETINDEX, 0, 0) != m.ListIndex)
        SendMessageW(h, LB_SETCARETINDEX, m.ListIndex, FALSE);
    if (m.ListIndex < 0)
        props::setInt(h, props::kNoCurrent, 1);
    else
        RemovePropW(h, props::kNoCurrent);
}

void DialogWindow::aplica(RealControl& rc, dialog::PictureBox& m) {
    aplicaComun(rc, m);
    HWND h = rc.hwnd;
    bool border = (GetWindowLongW(h, GWL_STYLE) & WS_BORDER) != 0;
    if (border != (m.BorderStyle != 0)) {
        LONG style = GetWindowLongW(h, GWL_STYLE);
        SetWindowLongW(h, GWL_STYLE, m.BorderStyle ? (style | WS_BORDER) : (style & ~WS_BORDER));
        SetWindowPos(h, nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        InvalidateRect(h, nullptr, TRUE);
    }
    if (rc.name == u"ImagePreview" && m.Picture != previewFile_) {
        loadPreview(m.Picture);
        InvalidateRect(h, nullptr, TRUE);
    }
}

void DialogWindow::aplica(RealControl& rc, dialog::Shape& m) {
    aplicaComun(rc, m, false);
}

void DialogWindow::aplica(RealControl& rc, dialog::ScrollBar& m) {
    aplicaComun(rc, m);
    // The thumb is as long as the viewport; the last position is the form's Max.
    int page = std::max(1, form_.picout.Height);
    SCROLLINFO si{};
    si.cbSize = sizeof(si);
    si.fMask = SIF_ALL;
    GetScrollInfo(rc.hwnd, SB_CTL, &si);
    int max = std::max(0, m.Max) + page - 1;
    if (si.nMin != 0 || si.nMax != max || static_cast<int>(si.nPage) != page ||
        si.nPos != m.Value) {
        si.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
        si.nMin = 0;
        si.nMax = max;
        si.nPage = page;
        si.nPos = m.Value;
        SetScrollInfo(rc.hwnd, SB_CTL, &si, TRUE);
    }
}

}  // namespace quorbel
