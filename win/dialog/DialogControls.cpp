// Creating the real controls and bringing the form's properties onto them.
#include <commctrl.h>
#include <ocidl.h>

#include <algorithm>
#include <type_traits>

#include "dialog/DialogWindow.h"
#include "dialog/Drawings.h"
#include "dialog/Registro.h"
#include "dialog/WindowClasses.h"
#include "platform/Ansi.h"
#include "vb/Errors.h"

namespace quorbel {

namespace {

using K = props::ControlKind;

template <typename T>
K kindOf() {
    if constexpr (std::is_same_v<T, dialog::Label>) return K::Label;
    if constexpr (std::is_same_v<T, dialog::CommandButton>) return K::Button;
    if constexpr (std::is_same_v<T, dialog::Frame>) return K::Frame;
    if constexpr (std::is_same_v<T, dialog::TextBox>) return K::TextBox;
    if constexpr (std::is_same_v<T, dialog::ListBox>) return K::ListBox;
    if constexpr (std::is_same_v<T, dialog::PictureBox>) return K::Picture;
    if constexpr (std::is_same_v<T, dialog::Shape>) return K::Shape;
    return K::ScrollBar;
}

bool followsForm(const std::u16string& name) {
    return name == u"picin" || name == u"EtiqTituloEnc" || name == u"EtiqValorEnc" ||
           name == u"TxtValoresEnc";
}

struct WindowKind {
    const wchar_t* cls;
    DWORD style;
    DWORD exStyle;
};

WindowKind windowKind(K kind, const std::u16string& name) {
    const DWORD child = WS_CHILD | WS_CLIPSIBLINGS;
    bool container = name == u"picout" || name == u"picin" || name == u"PictureEspOc";
    switch (kind) {
        case K::Label:
            // A recess row is one line high: a long component name ends in an ellipsis.
            if (followsForm(name))
                return {L"STATIC",
                        child | SS_LEFTNOWORDWRAP | SS_ENDELLIPSIS | SS_NOTIFY | SS_NOPREFIX, 0};
            return {L"STATIC", child | SS_LEFT | SS_NOTIFY | SS_NOPREFIX, 0};
        case K::Button:
            return {L"BUTTON", child | WS_TABSTOP | WS_CLIPCHILDREN | BS_PUSHBUTTON | BS_MULTILINE,
                    0};
        case K::Frame:
            return {kFrameClass, child | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
        case K::TextBox:
            return {L"EDIT", child | WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, 0};
        case K::ListBox:
            return {L"LISTBOX",
                    child | WS_TABSTOP | WS_BORDER | WS_VSCROLL | WS_HSCROLL | LBS_MULTIPLESEL |
                        LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
                    0};
        case K::Picture:
            return {kPictureClass, child | (container ? WS_CLIPCHILDREN : 0),
                    container ? static_cast<DWORD>(WS_EX_CONTROLPARENT) : 0};
        case K::Shape:
            return {kShapeClass, child, 0};
        case K::ScrollBar:
            return {L"SCROLLBAR", child | SBS_VERT, 0};
    }
    return {L"STATIC", child, 0};
}

std::u16string windowText(HWND h) {
    int n = GetWindowTextLengthW(h);
    std::wstring text(n + 1, L'\0');
    text.resize(GetWindowTextW(h, text.data(), n + 1));
    return narrowWide(text.data(), text.size());
}

template <typename T>
std::u16string captionOf(const T& m) {
    if constexpr (std::is_same_v<T, dialog::TextBox>) return m.Text;
    if constexpr (requires { m.Caption; }) return m.Caption;
    return u"";
}

}  // namespace

HWND DialogWindow::createWindow(const wchar_t* cls, DWORD style, DWORD exStyle,
                                const std::wstring& text, const Place& place) {
    HWND parent = hwnd_;
    if (!place.parent.empty())
        if (auto it = byKey_.find(place.parent); it != byKey_.end()) parent = it->second;
    const RECT& r = place.rect;
    HWND h = CreateWindowExW(exStyle, cls, text.c_str(), style, r.left, r.top, r.right - r.left,
                             r.bottom - r.top, parent, reinterpret_cast<HMENU>(nextId_++),
                             viewModule(), nullptr);
    if (!h) throw vb::RuntimeError(429, u"Cannot create the dialog's controls");
    SendMessageW(h, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    return h;
}

void DialogWindow::tagWindow(RealControl& rc, int order, int group) {
    byKey_[keyOf(rc.name, rc.index)] = rc.hwnd;
    props::setString(rc.hwnd, props::kControl, keyOf(rc.name, rc.index));
    props::setInt(rc.hwnd, props::kKind, static_cast<int>(rc.kind));
    props::setInt(rc.hwnd, props::kOrder, order);
    if (group) props::setInt(rc.hwnd, props::kGroup, group);
    if (rc.kind != K::Frame && rc.kind != K::Picture && rc.kind != K::Shape &&
        rc.kind != K::ScrollBar)
        subclassControl(rc.hwnd);
}

template <typename T>
RealControl DialogWindow::makeFirst(const char16_t* name, const T& model) {
    RealControl rc;
    rc.name = name;
    rc.kind = kindOf<T>();
    rc.followsForm = followsForm(rc.name);
    auto it = layout_.places.find(keyOf(rc.name, 0));
    Place place = it != layout_.places.end() ? it->second : Place{};
    WindowKind wk = windowKind(rc.kind, rc.name);
    rc.hwnd = createWindow(wk.cls, wk.style, wk.exStyle, wide(captionOf(model)), place);
    rc.text = captionOf(model);
    return rc;
}

// A control array grows by copying element 0: its class, style, parent, left and width.
RealControl DialogWindow::cloneFirst(const RealControl& first, int index) {
    RealControl rc;
    rc.name = first.name;
    rc.index = index;
    rc.kind = first.kind;
    rc.followsForm = first.followsForm;
    wchar_t cls[64];
    GetClassNameW(first.hwnd, cls, 64);
    RECT r;
    GetWindowRect(first.hwnd, &r);
    HWND parent = GetParent(first.hwnd);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&r), 2);
    Place place;
    auto it = layout_.places.find(keyOf(rc.name, index));
    if (it != layout_.places.end())
        place = it->second;
    else {
        auto first0 = layout_.places.find(keyOf(rc.name, 0));
        if (first0 != layout_.places.end()) place.parent = first0->second.parent;
        place.rect = r;
    }
    // The style element 0 was created with (a control may rewrite its own style bits).
    WindowKind wk = windowKind(rc.kind, rc.name);
    rc.hwnd = createWindow(cls, wk.style, wk.exStyle, L"", place);
    return rc;
}

void DialogWindow::createFirstElements() {
    int order = 0;
    dialog::paraCadaControl(form_, [&](const char16_t* name, auto* c, size_t n) {
        ++order;
        std::vector<RealControl> arr;
        arr.push_back(makeFirst(name, c[0]));
        arrays_.push_back(std::move(arr));
        RealControl& rc = arrays_.back().back();
        auto it = layout_.places.find(keyOf(rc.name, 0));
        tagWindow(rc, order, it != layout_.places.end() ? it->second.group : 0);
        slots_[rc.hwnd] = {arrays_.size() - 1, 0};
        (void)n;
    });
}

void DialogWindow::sincroniza() {
    // Text the view writes is not the user's typing: the edits' change notices are ignored.
    struct Syncing {
        bool& flag;
        explicit Syncing(bool& f) : flag(f) { flag = true; }
        ~Syncing() { flag = false; }
    } syncing(syncing_);
    size_t a = 0;
    dialog::paraCadaControl(form_, [&](const char16_t*, auto* c, size_t n) {
        size_t which = a++;
        for (size_t i = 0; i < n; ++i) {
            if (i >= arrays_[which].size()) {
                RealControl rc = cloneFirst(arrays_[which][0], static_cast<int>(i));
                arrays_[which].push_back(std::move(rc));
                RealControl& added = arrays_[which].back();
                auto it = layout_.places.find(keyOf(added.name, added.index));
                tagWindow(added, static_cast<int>(which) + 1,
                          it != layout_.places.end() ? it->second.group : 0);
                slots_[added.hwnd] = {which, i};
            }
            aplica(arrays_[which][i], c[i]);
        }
    });
}

// Stacked controls: the drawing above its companion, the selection frame below both.
void DialogWindow::stack() {
    const UINT keep = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    for (auto& arr : arrays_)
        for (auto& rc : arr) {
            if (rc.kind == K::Shape) SetWindowPos(rc.hwnd, HWND_BOTTOM, 0, 0, 0, 0, keep);
            if (rc.name == u"PictureEsp" || rc.name == u"ImageDiagonal" ||
                rc.name == u"EtiqEncNoDisp")
                SetWindowPos(rc.hwnd, HWND_TOP, 0, 0, 0, 0, keep);
        }
}

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

void DialogWindow::paintPicture(HWND h, HDC dc, const RECT& client) {
    RealControl* rc = find(h);
    if (!rc) return;
    bool enabled = IsWindowEnabled(h) != FALSE;
    if (rc->name == u"PictureEsp") drawSpecialType(dc, client, rc->index, enabled);
    if (rc->name == u"ImageDiagonal") drawDiagonal(dc, client, rc->index, enabled);
    if (rc->name != u"ImagePreview" || previewFile_.empty()) return;
    if (preview_) {
        OLE_XSIZE_HIMETRIC hw = 0;
        OLE_YSIZE_HIMETRIC hh = 0;
        preview_->get_Width(&hw);
        preview_->get_Height(&hh);
        int cw = client.right - client.left, ch = client.bottom - client.top;
        if (hw <= 0 || hh <= 0) return;
        // Fit inside the box keeping the picture's proportions.
        double scale = std::min(static_cast<double>(cw) / hw, static_cast<double>(ch) / hh);
        int w = static_cast<int>(hw * scale), ht = static_cast<int>(hh * scale);
        preview_->Render(dc, (cw - w) / 2, (ch - ht) / 2, w, ht, 0, hh, hw, -hh, nullptr);
        return;
    }
    // A picture that cannot be read shows what a missing one shows.
    std::wstring text = wide(form_.EtiqEncNoDisp.Caption);
    RECT r = client;
    HGDIOBJ old = SelectObject(dc, font_);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &r,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    SelectObject(dc, old);
}

}  // namespace quorbel
