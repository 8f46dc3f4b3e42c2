#include "dialog/WindowClasses.h"

#include <commctrl.h>

#include "dialog/DialogWindow.h"

namespace quorbel {

namespace {

// Messages a container passes on to the dialog: child notifications and colours.
bool forwardedToDialog(UINT msg) {
    switch (msg) {
        case WM_COMMAND:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_VSCROLL:
            return true;
        default:
            return false;
    }
}

LRESULT forward(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    HWND root = GetAncestor(h, GA_ROOT);
    return root && root != h ? SendMessageW(root, msg, wp, lp) : 0;
}

// Nothing may leave a window procedure into the system's frames: an exception of the view's own
// work (a failed allocation) ends the modal loop as a handler's error does.
template <class Body>
LRESULT safely(HWND h, Body&& body) noexcept {
    try {
        return body();
    } catch (...) {
        if (DialogWindow* view = DialogWindow::of(h)) view->keepError(std::current_exception());
        return 0;
    }
}

LRESULT dialogMessages(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    if (msg == WM_NCCREATE) {
        auto* cs = reinterpret_cast<CREATESTRUCTW*>(lp);
        SetWindowLongPtrW(h, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(cs->lpCreateParams));
    }
    auto* view = reinterpret_cast<DialogWindow*>(GetWindowLongPtrW(h, GWLP_USERDATA));
    if (view && view->hwnd() == h) return view->dialogMessage(msg, wp, lp);
    return DefWindowProcW(h, msg, wp, lp);
}

void paintFrame(HWND h, HDC dc) {
    RECT r;
    GetClientRect(h, &r);
    wchar_t text[512];
    int n = GetWindowTextW(h, text, 512);
    HFONT font = reinterpret_cast<HFONT>(SendMessageW(h, WM_GETFONT, 0, 0));
    HGDIOBJ old = SelectObject(dc, font);
    TEXTMETRICW tm;
    GetTextMetricsW(dc, &tm);
    RECT edge = r;
    edge.top += tm.tmHeight / 2;
    DrawEdge(dc, &edge, EDGE_ETCHED, BF_RECT);
    SIZE size{};
    GetTextExtentPoint32W(dc, text, n, &size);
    RECT caption{tm.tmHeight / 2, 0, tm.tmHeight / 2 + size.cx + 4, tm.tmHeight};
    FillRect(dc, &caption, GetSysColorBrush(COLOR_BTNFACE));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(IsWindowEnabled(h) ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    caption.left += 2;
    DrawTextW(dc, text, n, &caption, DT_LEFT | DT_SINGLELINE | DT_NOPREFIX);
    SelectObject(dc, old);
}

void paintShape(HWND h, HDC dc) {
    RECT r;
    GetClientRect(h, &r);
    HBRUSH ring = CreateSolidBrush(RGB(255, 0, 0));
    for (int i = 0; i < 2; ++i) {
        FrameRect(dc, &r, ring);
        InflateRect(&r, -1, -1);
    }
    DeleteObject(ring);
}

// Pictures, containers, the frame and the shapes.
LRESULT ownMessages(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    if (forwardedToDialog(msg)) return forward(h, msg, wp, lp);
    wchar_t cls[32];
    GetClassNameW(h, cls, 32);
    bool shape = lstrcmpW(cls, kShapeClass) == 0;
    switch (msg) {
        case WM_NCHITTEST:
            if (shape) return HTTRANSPARENT;
            break;
        case WM_SETFONT:
            SetPropW(h, L"QuorbelFont", reinterpret_cast<HANDLE>(wp));
            if (LOWORD(lp)) InvalidateRect(h, nullptr, TRUE);
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(GetPropW(h, L"QuorbelFont"));
        case WM_NCDESTROY:
            RemovePropW(h, L"QuorbelFont");
            break;
        case WM_ERASEBKGND: {
            RECT r;
            GetClientRect(h, &r);
            FillRect(reinterpret_cast<HDC>(wp), &r, GetSysColorBrush(COLOR_BTNFACE));
            return 1;
        }
        case WM_PAINT: {
            PAINTSTRUCT ps;
            HDC dc = BeginPaint(h, &ps);
            RECT r;
            GetClientRect(h, &r);
            if (shape) {
                paintShape(h, dc);
            } else if (lstrcmpW(cls, kFrameClass) == 0) {
                paintFrame(h, dc);
            } else if (DialogWindow* view = DialogWindow::of(h)) {
                view->paintPicture(h, dc, r);
            }
            EndPaint(h, &ps);
            return 0;
        }
        default:
            break;
    }
    if (!shape) {
        if (DialogWindow* view = DialogWindow::of(h)) {
            bool handled = false;
            LRESULT r = view->controlMessage(h, msg, wp, lp, handled);
            if (handled) return r;
        }
    }
    return DefWindowProcW(h, msg, wp, lp);
}

LRESULT CALLBACK subclassProc(HWND h, UINT msg, WPARAM wp, LPARAM lp, UINT_PTR, DWORD_PTR);

LRESULT subclassMessages(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    if (msg == WM_NCDESTROY) RemoveWindowSubclass(h, subclassProc, 1);
    // A button or picture may carry a label: its notifications and colours go to the dialog.
    if (msg == WM_COMMAND || msg == WM_CTLCOLORSTATIC) return forward(h, msg, wp, lp);
    if (DialogWindow* view = DialogWindow::of(h)) {
        bool handled = false;
        LRESULT r = view->controlMessage(h, msg, wp, lp, handled);
        if (handled) return r;
    }
    return DefSubclassProc(h, msg, wp, lp);
}

LRESULT CALLBACK dialogProc(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    return safely(h, [&] { return dialogMessages(h, msg, wp, lp); });
}

LRESULT CALLBACK ownProc(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    return safely(h, [&] { return ownMessages(h, msg, wp, lp); });
}

LRESULT CALLBACK subclassProc(HWND h, UINT msg, WPARAM wp, LPARAM lp, UINT_PTR, DWORD_PTR) {
    return safely(h, [&] { return subclassMessages(h, msg, wp, lp); });
}

void registerClass(const wchar_t* name, WNDPROC proc, UINT style) {
    WNDCLASSEXW wc{};
    wc.cbSize = sizeof(wc);
    wc.style = style;
    wc.lpfnWndProc = proc;
    wc.hInstance = viewModule();
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    wc.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    wc.lpszClassName = name;
    RegisterClassExW(&wc);
}

}  // namespace

HINSTANCE viewModule() {
    HMODULE m = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCWSTR>(&viewModule), &m);
    return m;
}

WindowClasses::WindowClasses() {
    registerClass(props::kDialogClass, dialogProc, 0);
    registerClass(kPictureClass, ownProc, 0);
    registerClass(kShapeClass, ownProc, 0);
    registerClass(kFrameClass, ownProc, 0);
}

WindowClasses::~WindowClasses() {
    for (const wchar_t* name : {props::kDialogClass, kPictureClass, kShapeClass, kFrameClass})
        UnregisterClassW(name, viewModule());
}

void subclassControl(HWND h) {
    SetWindowSubclass(h, subclassProc, 1, 0);
}

}  // namespace quorbel
