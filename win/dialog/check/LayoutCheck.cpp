// dialog-layout-check: opens the dialog as designed (every control shown, no host needed),
// measures the real controls and fails on overlap or clipped text.
//   dialog-layout-check [--long] [--hold SECONDS]
// --long lengthens every translated caption (a longer translation); --hold keeps the dialog
// open for a screenshot instead of checking. Prints one line per fault and a summary.
#include <windows.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "dialog/DialogWindow.h"
#include "dialog/Registro.h"
#include "dialog/WindowProps.h"
#include "host/Factory.h"
#include "platform/Platform.h"

namespace {

using quorbel::props::ControlKind;
using vb::String;

// Nothing of the host is used while the designed form is only shown.
class NoPlatform : public platform::Platform {
  public:
    uint32_t GetPrivateProfileString(const String&, const String&, const String&, String& b,
                                     uint32_t, const String&) override {
        b.clear();
        return 0;
    }
    String GetDlgItemText(int32_t, int32_t, int32_t) override { return {}; }
    std::vector<platform::DirEntry> dir(const String&, bool) override { return {}; }
    int64_t fileLength(const String&) override { return 0; }
    bool folderExists(const String&) override { return false; }
    void createFolder(const String&) override {}
    std::vector<String> readTextLines(const String&) override { return {}; }
    void messageBox(const String&, const String&, platform::MsgIcon) override {}
    void beep() override {}
    String moduleFolder() override { return u"C:\\"; }
    char16_t decimalSeparator() override { return u'.'; }
    std::unique_ptr<platform::XmlDocument> createXmlDocument() override { return nullptr; }
};

class NoFactory : public host::Factory {
  public:
    std::shared_ptr<host::HostObject> CreateObject(const String&) override { return nullptr; }
};

struct Measured {
    HWND hwnd;
    std::wstring name;
    ControlKind kind;
    RECT screen;
    int group;
};

std::vector<Measured> controls;
int faults = 0;

void fault(const std::wstring& what) {
    ++faults;
    std::printf("FAIL %ls\n", what.c_str());
}

BOOL CALLBACK collect(HWND h, LPARAM) {
    if (!quorbel::props::hasInt(h, quorbel::props::kKind)) return TRUE;
    Measured m{h, quorbel::props::getString(h, quorbel::props::kControl),
               static_cast<ControlKind>(quorbel::props::getInt(h, quorbel::props::kKind)), RECT{},
               quorbel::props::getInt(h, quorbel::props::kGroup)};
    GetWindowRect(h, &m.screen);
    if (IsWindowVisible(h)) controls.push_back(m);
    return TRUE;
}

bool insideScrolledPanel(HWND h) {
    for (HWND p = h; p; p = GetParent(p))
        if (quorbel::props::getString(p, quorbel::props::kControl) == L"picin#0") return true;
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

int holdSeconds = 0;

void CALLBACK measure(HWND, UINT, UINT_PTR id, DWORD) {
    KillTimer(nullptr, id);
    HWND dialog = FindWindowW(quorbel::props::kDialogClass, nullptr);
    if (!dialog) {
        fault(L"no dialog window");
        return;
    }
    if (holdSeconds == 0) {
        EnumChildWindows(dialog, collect, 0);
        checkOnScreen(dialog);
        checkInsideParents(dialog);
        checkOverlaps();
        for (const Measured& m : controls) checkText(m);
        HDC screen = GetDC(nullptr);
        std::printf("%zu controls measured at %d dpi, %d faults\n", controls.size(),
                    GetDeviceCaps(screen, LOGPIXELSY), faults);
        ReleaseDC(nullptr, screen);
    } else {
        Sleep(static_cast<DWORD>(holdSeconds) * 1000);
    }
    PostMessageW(dialog, WM_CLOSE, 0, 0);
}

// Every control shown, each translated caption made longer when asked.
void prepare(dialog::frmEspEnc& form, bool longer) {
    form.Caption = u"Edici\u00F3n de especiales - B60-TIBER";
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

int main(int argc, char** argv) {
    bool longer = false;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--long") == 0) longer = true;
        if (std::strcmp(argv[i], "--hold") == 0 && i + 1 < argc) holdSeconds = std::atoi(argv[++i]);
    }
    NoPlatform platform;
    NoFactory factory;
    handlers::Env env{platform, factory, nullptr};
    dialog::frmEspEnc form(env);
    prepare(form, longer);
    SetTimer(nullptr, 0, 300, measure);
    try {
        quorbel::DialogWindow window(form);
        window.runModal(nullptr);
    } catch (...) {
        // Closing runs the form's unload, which needs a host: expected here.
    }
    std::printf("%s\n", faults == 0 ? "layout ok" : "layout FAILED");
    std::fflush(stdout);
    return faults == 0 ? 0 : 1;
}
