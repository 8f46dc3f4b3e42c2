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

void DialogWindow::keepError(std::exception_ptr error) noexcept {
    if (!error_) error_ = std::move(error);
    if (hwnd_) PostMessageW(hwnd_, WM_NULL, 0, 0);
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
    // Only the dialog's own thread may ask: the request is a pointer into its caller's memory.
    if (msg == props::actionMessage() && lp && InSendMessageEx(nullptr) == ISMEX_NOSEND) {
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

}  // namespace quorbel
