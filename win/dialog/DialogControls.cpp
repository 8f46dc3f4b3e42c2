// Creating the real controls: element 0 of each control where the layout puts it, further
// elements of an array as copies of element 0.
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

}  // namespace quorbel
