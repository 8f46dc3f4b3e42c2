// The layout check: the dialog as designed with every control shown, measured through the
// real windows; fails on overlapping controls, a control cut by its container or the screen,
// or a caption that does not fit its control.
#include <cstdio>
#include <string>
#include <vector>

#include "Harness.h"
#include "dialog/Registro.h"
#include "dialog/WindowProps.h"

namespace quorbel::check {

namespace {

using props::ControlKind;

struct Measured {
    HWND hwnd;
    std::wstring name;
    ControlKind kind;
    RECT screen;
    int group;
};

std::vector<Measured> controls;

BOOL CALLBACK collect(HWND h, LPARAM) {
    if (!props::hasInt(h, props::kKind)) return TRUE;
    Measured m{h, props::getString(h, props::kControl),
               static_cast<ControlKind>(props::getInt(h, props::kKind)), RECT{},
               props::getInt(h, props::kGroup)};
    GetWindowRect(h, &m.screen);
    if (IsWindowVisible(h)) controls.push_back(m);
    return TRUE;
}

bool insideScrolledPanel(HWND h) {
    for (HWND p = h; p; p = GetParent(p))
        if (props::getString(p, props::kControl) == L"picin#0") return true;
    return false;
}

void checkOverlaps() {
    for (size_t i = 0; i < controls.size(); ++i)
        for (size_t j = i + 1; j < controls.size(); ++j) {
            const Measured &a = controls[i], &b = controls[j];
            if (GetParent(a.hwnd) != GetParent(b.hwnd)) continue;
            if (a.group && a.group == b.group) continue;  // stacked on purpose
            RECT both;
            if (IntersectRect(&both, &a.screen, &b.screen)) fault(a.name + L" overlaps " + b.name);
        }
}

void checkInsideParents(HWND dialog) {
    for (const Measured& m : controls) {
        if (insideScrolledPanel(m.hwnd)) continue;  // scrolls: may lie outside the viewport
        HWND parent = GetParent(m.hwnd);
        RECT client;
        GetClientRect(parent, &client);
        MapWindowPoints(parent, nullptr, reinterpret_cast<POINT*>(&client), 2);
        RECT both;
        IntersectRect(&both, &m.screen, &client);
        if (!EqualRect(&both, &m.screen))
            fault(m.name + L" is cut by its " + (parent == dialog ? L"dialog" : L"container"));
    }
}

std::wstring textOf(HWND h) {
    wchar_t text[1024];
    int n = GetWindowTextW(h, text, 1024);
    return std::wstring(text, n);
}

// The caption must fit the control as the control draws it.
void checkText(const Measured& m) {
    std::wstring text = textOf(m.hwnd);
    if (text.empty()) return;
    HDC dc = GetDC(m.hwnd);
    HGDIOBJ old = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(m.hwnd, WM_GETFONT, 0, 0)));
    RECT client;
    GetClientRect(m.hwnd, &client);
    int w = client.right, h = client.bottom;
    TEXTMETRICW tm;
    GetTextMetricsW(dc, &tm);
    SIZE size{};
    GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    if (m.kind == ControlKind::Label) {
        RECT calc{0, 0, w, 0};
        DrawTextW(dc, text.c_str(), -1, &calc, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
        if (calc.right > w || calc.bottom > h)
            fault(m.name + L" clips \"" + text + L"\" (" + std::to_wstring(calc.right) + L"x" +
                  std::to_wstring(calc.bottom) + L" in " + std::to_wstring(w) + L"x" +
                  std::to_wstring(h) + L")");
    } else if (m.kind == ControlKind::Button) {
        // A multi-line button wraps at its width less the edges.
        RECT calc{0, 0, w - 8, 0};
        DrawTextW(dc, text.c_str(), -1, &calc, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
        if (calc.right > w - 8 || calc.bottom + 4 > h)
            fault(m.name + L" clips \"" + text + L"\" (" + std::to_wstring(calc.right) + L"x" +
                  std::to_wstring(calc.bottom) + L" in " + std::to_wstring(w) + L"x" +
                  std::to_wstring(h) + L")");
    } else if (m.kind == ControlKind::Frame) {
        if (size.cx + tm.tmHeight > w) fault(m.name + L" clips \"" + text + L"\"");
    }
    SelectObject(dc, old);
    ReleaseDC(m.hwnd, dc);
}

void checkOnScreen(HWND dialog) {
    RECT r, work;
    GetWindowRect(dialog, &r);
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    if (r.right - r.left > work.right - work.left || r.bottom - r.top > work.bottom - work.top)
        fault(L"the dialog is larger than the screen");
}

void measure(HWND dialog) {
    EnumChildWindows(dialog, collect, 0);
    checkOnScreen(dialog);
    checkInsideParents(dialog);
    checkOverlaps();
    for (const Measured& m : controls) checkText(m);
    HDC screen = GetDC(nullptr);
    std::printf("%zu controls measured at %d dpi\n", controls.size(),
                GetDeviceCaps(screen, LOGPIXELSY));
    ReleaseDC(nullptr, screen);
}

// Every control shown, each translated caption made longer when asked.
void prepare(dialog::frmEspEnc& form, bool longer) {
    form.EtiqTituloEnc[0].Caption = u"Encastre de pilar 1";
    form.EtiqValorEnc[0].Caption = u"Profundidad";
    dialog::paraCadaControl(form, [&](const char16_t*, auto* c, size_t n) {
        for (size_t i = 0; i < n; ++i) {
            c[i].Visible = true;
            if constexpr (requires { c[i].Caption; })
                if (longer && c[i].Tag.rfind(u"TR_", 0) == 0)
                    c[i].Caption += u" " + c[i].Caption.substr(0, c[i].Caption.size() * 3 / 4);
        }
    });
}

}  // namespace

int layoutChecks(bool longer, int holdSeconds) {
    showForm([&](dialog::frmEspEnc& form) { prepare(form, longer); },
             [&](HWND dialog) {
                 if (holdSeconds > 0)
                     Sleep(static_cast<DWORD>(holdSeconds) * 1000);
                 else
                     measure(dialog);
             });
    return faults();
}

}  // namespace quorbel::check
