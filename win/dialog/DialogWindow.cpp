#include "dialog/DialogWindow.h"

#include <commctrl.h>
#include <ocidl.h>
#include <olectl.h>

#include <algorithm>

#include "dialog/Acciones.h"
#include "dialog/Eventos.h"
#include "dialog/Registro.h"
#include "dialog/WindowClasses.h"
#include "platform/Ansi.h"
#include "vb/Errors.h"

namespace quorbel {

namespace {

// The form's own error for a window the system would not create.
[[noreturn]] void cannotCreate(const wchar_t* what) {
    std::wstring w(what);
    throw vb::RuntimeError(vb::err::kCantCreateObject,
                           u"Cannot create the dialog's window " + narrowWide(w.data(), w.size()));
}

class IgnoreObserver : public dialog::DialogObserver {
  public:
    void dialogShown(const vb::String&) override {}
    void snapshot(const dialog::Snapshot&) override {}
    void dialogClosed(const std::string&) override {}
};

HFONT dialogFont() {
    NONCLIENTMETRICSW ncm{};
    ncm.cbSize = sizeof(ncm);
    if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(ncm), &ncm, 0))
        return CreateFontIndirectW(&ncm.lfMessageFont);
    return static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

int screenDpi() {
    HDC screen = GetDC(nullptr);
    int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi > 0 ? dpi : 96;
}

}  // namespace

DialogWindow::DialogWindow(dialog::frmEspEnc& form, std::function<void(HWND)> ownerChanged)
    : form_(form), ownerChanged_(std::move(ownerChanged)) {}

DialogWindow::~DialogWindow() {
    if (hwnd_) DestroyWindow(hwnd_);
    if (preview_) preview_->Release();
    if (bigIcon_) DestroyIcon(bigIcon_);
    if (smallIcon_) DestroyIcon(smallIcon_);
    if (font_) DeleteObject(font_);
}

DialogWindow* DialogWindow::of(HWND h) {
    HWND root = GetAncestor(h, GA_ROOT);
    if (!root) return nullptr;
    wchar_t cls[32];
    if (!GetClassNameW(root, cls, 32) || lstrcmpW(cls, props::kDialogClass) != 0) return nullptr;
    return reinterpret_cast<DialogWindow*>(GetWindowLongPtrW(root, GWLP_USERDATA));
}

template <typename F>
void DialogWindow::fire(F&& handler) {
    if (error_ || form_.descargado()) return;
    try {
        handler();
        sincroniza();
    } catch (...) {
        error_ = std::current_exception();
    }
    if (error_ || form_.descargado()) PostMessageW(hwnd_, WM_NULL, 0, 0);
}

// Reading what the user did into the form: no handler runs, but nothing may escape either.
template <typename F>
void DialogWindow::guard(F&& reading) {
    if (error_) return;
    try {
        reading();
    } catch (...) {
        error_ = std::current_exception();
        PostMessageW(hwnd_, WM_NULL, 0, 0);
    }
}

void DialogWindow::runModal(HWND owner) {
    WindowClasses classes;
    bool ownerWasEnabled = owner && IsWindowEnabled(owner);
    try {
        create(owner);
    } catch (...) {
        closeWindow(owner, false);
        throw;
    }
    if (owner) EnableWindow(owner, FALSE);
    if (ownerChanged_) ownerChanged_(hwnd_);
    ShowWindow(hwnd_, SW_SHOW);
    SetForegroundWindow(hwnd_);
    SetActiveWindow(hwnd_);
    bool quit = false;
    WPARAM quitCode = 0;
    MSG msg;
    while (!error_ && !form_.descargado()) {
        BOOL got = GetMessageW(&msg, nullptr, 0, 0);
        if (got <= 0) {
            // The application is ending: the form unloads as by its close box.
            quit = true;
            quitCode = msg.wParam;
            fire([&] { form_.Unload(); });
            break;
        }
        if (IsDialogMessageW(hwnd_, &msg)) continue;
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    closeWindow(owner, ownerWasEnabled);
    if (quit) PostQuitMessage(static_cast<int>(quitCode));
    if (error_) std::rethrow_exception(error_);
}

void DialogWindow::closeWindow(HWND owner, bool ownerWasEnabled) {
    if (ownerChanged_) ownerChanged_(nullptr);
    if (owner && ownerWasEnabled) EnableWindow(owner, TRUE);
    if (!hwnd_) return;
    props::setInt(hwnd_, props::kClosedBy,
                  static_cast<int>(error_ ? props::ClosedBy::Error : props::ClosedBy::Unload));
    for (auto& arr : arrays_)
        for (auto& rc : arr) props::removeString(rc.hwnd, props::kTag);
    DestroyWindow(hwnd_);
    hwnd_ = nullptr;
    arrays_.clear();
    slots_.clear();
    byKey_.clear();
}

void DialogWindow::create(HWND owner) {
    font_ = dialogFont();
    int dpi = screenDpi();
    HDC screen = GetDC(nullptr);
    HGDIOBJ old = SelectObject(screen, font_);
    layout_ = computeLayout(form_, screen, dpi);
    SelectObject(screen, old);
    ReleaseDC(nullptr, screen);

    DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | DS_MODALFRAME;
    DWORD exStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;
    RECT r{0, 0, layout_.client.cx, layout_.client.cy};
    AdjustWindowRectEx(&r, style, FALSE, exStyle);
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    int w = r.right - r.left, h = r.bottom - r.top;
    int x = work.left + std::max(0, static_cast<int>(work.right - work.left - w) / 2);
    int y = work.top + std::max(0, static_cast<int>(work.bottom - work.top - h) / 2);
    std::wstring title = wide(form_.Caption);
    hwnd_ = CreateWindowExW(exStyle, props::kDialogClass, title.c_str(), style, x, y, w, h, owner,
                            nullptr, viewModule(), this);
    if (!hwnd_) cannotCreate(props::kDialogClass);
    SendMessageW(hwnd_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    setIcon();
    createFirstElements();
    sincroniza();
    stack();
}

void DialogWindow::setIcon() {
    if (form_.Icon.empty()) return;  // a missing icon file is no error: the form left it empty
    std::wstring file = wide(form_.Icon);
    auto load = [&](int size) {
        return static_cast<HICON>(
            LoadImageW(nullptr, file.c_str(), IMAGE_ICON, size, size, LR_LOADFROMFILE));
    };
    bigIcon_ = load(GetSystemMetrics(SM_CXICON));
    smallIcon_ = load(GetSystemMetrics(SM_CXSMICON));
    if (bigIcon_) SendMessageW(hwnd_, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(bigIcon_));
    if (smallIcon_)
        SendMessageW(hwnd_, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(smallIcon_));
}

RealControl* DialogWindow::find(HWND h) {
    auto it = slots_.find(h);
    if (it == slots_.end()) return nullptr;
    return &arrays_[it->second.first][it->second.second];
}

LRESULT DialogWindow::dialogMessage(UINT msg, WPARAM wp, LPARAM lp) {
    if (msg == props::actionMessage() && lp) {
        playUnreachable(*reinterpret_cast<const props::ActionRequest*>(lp));
        return 0;
    }
    switch (msg) {
        case WM_CLOSE:
            fire([&] { form_.Unload(); });
            return 0;
        case WM_COMMAND:
            if (lp) command(reinterpret_cast<HWND>(lp), HIWORD(wp));
            return 0;
        case WM_VSCROLL:
            if (lp) scroll(reinterpret_cast<HWND>(lp), wp);
            return 0;
        case WM_CTLCOLORSTATIC: {
            // Labels draw in the form's fore colour; other controls as the system draws them.
            HDC dc = reinterpret_cast<HDC>(wp);
            HWND from = reinterpret_cast<HWND>(lp);
            if (!props::hasInt(from, props::kForeColor)) break;
            COLORREF colour = static_cast<COLORREF>(props::getInt(from, props::kForeColor));
            SetBkMode(dc, TRANSPARENT);
            SetTextColor(dc, IsWindowEnabled(from) ? colour : GetSysColor(COLOR_GRAYTEXT));
            return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
        }
        default:
            break;
    }
    return DefWindowProcW(hwnd_, msg, wp, lp);
}

LRESULT DialogWindow::controlMessage(HWND h, UINT msg, WPARAM wp, LPARAM lp, bool& handled) {
    RealControl* rc = find(h);
    if (!rc) return 0;
    const RealControl c = *rc;  // handlers may grow the arrays
    using K = props::ControlKind;
    switch (msg) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            if (c.kind == K::ListBox) return 0;
            if (c.kind == K::Button) {
                fire([&] { dialog::disparaMouseDown(form_, c.name, c.index); });
                return 0;  // the button's own procedure presses it
            }
            if (c.kind == K::Label || c.kind == K::Picture) {
                mouseDown(c);
                handled = true;
            }
            return 0;
        case WM_LBUTTONUP:
            if (c.kind == K::ListBox) {
                handled = true;
                LRESULT r = DefSubclassProc(h, msg, wp, lp);
                guard([&] { leeLista(c); });
                fire([&] { dialog::disparaMouseUp(form_, c.name, c.index); });
                return r;
            }
            if (c.kind == K::Button) {
                fire([&] { dialog::disparaMouseUp(form_, c.name, c.index); });
                return 0;  // the button's own procedure sends the click
            }
            if (c.kind == K::Label || c.kind == K::Picture) {
                mouseUp(c, lp);
                handled = true;
            }
            return 0;
        case WM_SETFOCUS:
            if (c.kind != K::TextBox) return 0;
            handled = true;
            {
                LRESULT r = DefSubclassProc(h, msg, wp, lp);
                fire([&] { dialog::disparaGotFocus(form_, c.name, c.index); });
                guard([&] {
                    dialog::TextBox& caja = dialog::cajaDe(form_, c.name, c.index);
                    SendMessageW(h, EM_SETSEL, caja.SelStart, caja.SelStart + caja.SelLength);
                });
                return r;
            }
        case WM_KILLFOCUS:
            if (c.kind != K::TextBox) return 0;
            guard([&] { leeTexto(c); });
            fire([&] { dialog::disparaLostFocus(form_, c.name, c.index); });
            return 0;
        case WM_CHAR:
            if (c.kind != K::TextBox) return 0;
            handled = true;
            {
                int key = static_cast<int>(wp);
                fire([&] { dialog::disparaKeyPress(form_, c.name, c.index, key); });
                if (key == 0 || error_) return 0;  // refused: the form has beeped
                LRESULT r = DefSubclassProc(h, msg, static_cast<WPARAM>(key), lp);
                guard([&] { leeTexto(c); });
                return r;
            }
        default:
            return 0;
    }
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

void DialogWindow::loadPreview(const std::u16string& file) {
    if (file == previewFile_) return;
    previewFile_ = file;
    if (preview_) preview_->Release();
    preview_ = nullptr;
    previewFailed_ = false;
    if (file.empty()) return;
    std::wstring path = wide(file);
    HRESULT hr = OleLoadPicturePath(path.data(), nullptr, 0, 0, IID_IPicture,
                                    reinterpret_cast<void**>(&preview_));
    if (FAILED(hr) || !preview_) {
        preview_ = nullptr;
        previewFailed_ = true;
    }
}

}  // namespace quorbel
