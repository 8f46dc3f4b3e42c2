// What the view draws, read back from the screen: the drawings' arrows, the labels in the
// form's colours, the window icon from a file, the preview picture from a file and the
// "No Disponible" shown for a picture that cannot be read.
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "Harness.h"
#include "dialog/WindowProps.h"
#include "platform/Ansi.h"
#include "vb/Errors.h"

namespace quorbel::check {

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kNavy = RGB(0, 0, 128);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kPreview = RGB(0, 128, 255);

std::wstring tempFile(const wchar_t* name) {
    wchar_t dir[MAX_PATH];
    GetTempPathW(MAX_PATH, dir);
    return std::wstring(dir) + name;
}

// A file beside this program: the build puts the icon the installer ships there.
std::wstring besideProgram(const wchar_t* name) {
    wchar_t path[MAX_PATH];
    std::wstring self(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
    return self.substr(0, self.find_last_of(L"\\/") + 1) + name;
}

void writeBytes(const std::wstring& path, const std::vector<unsigned char>& bytes) {
    HANDLE f = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
    if (f == INVALID_HANDLE_VALUE) return;
    DWORD written = 0;
    WriteFile(f, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(f);
}

void put16(std::vector<unsigned char>& b, unsigned v) {
    b.push_back(v & 0xFF);
    b.push_back((v >> 8) & 0xFF);
}
void put32(std::vector<unsigned char>& b, unsigned v) {
    put16(b, v & 0xFFFF);
    put16(b, v >> 16);
}
void infoHeader(std::vector<unsigned char>& b, int w, int h, int bpp, unsigned imageSize) {
    put32(b, 40);
    put32(b, w);
    put32(b, h);
    put16(b, 1);
    put16(b, bpp);
    put32(b, 0);
    put32(b, imageSize);
    put32(b, 0);
    put32(b, 0);
    put32(b, 0);
    put32(b, 0);
}

// An 8 x 8 picture of one colour, as a .bmp file.
void writeBmp(const std::wstring& path, COLORREF c) {
    std::vector<unsigned char> b{'B', 'M'};
    const unsigned pixels = 8 * 8 * 3;
    put32(b, 14 + 40 + pixels);
    put32(b, 0);
    put32(b, 14 + 40);
    infoHeader(b, 8, 8, 24, pixels);
    for (int i = 0; i < 64; ++i) b.insert(b.end(), {GetBValue(c), GetGValue(c), GetRValue(c)});
    writeBytes(path, b);
}

// A 16 x 16 icon of one colour, as a .ico file.
void writeIcon(const std::wstring& path) {
    const unsigned pixels = 16 * 16 * 4, mask = 16 * 4;
    std::vector<unsigned char> b;
    put16(b, 0);
    put16(b, 1);
    put16(b, 1);
    b.insert(b.end(), {16, 16, 0, 0});
    put16(b, 1);
    put16(b, 32);
    put32(b, 40 + pixels + mask);
    put32(b, 22);
    infoHeader(b, 16, 32, 32, pixels + mask);
    for (unsigned i = 0; i < 16 * 16; ++i) b.insert(b.end(), {0x00, 0x80, 0x00, 0xFF});
    b.insert(b.end(), mask, 0);
    writeBytes(path, b);
}

// How many pixels of the control, as drawn on screen, have exactly this colour.
int pixelsOf(HWND h, COLORREF colour) {
    RECT r;
    GetClientRect(h, &r);
    const int w = r.right, ht = r.bottom;
    if (w <= 0 || ht <= 0) return 0;
    BITMAPINFO bi{};
    bi.bmiHeader = {sizeof(BITMAPINFOHEADER), w, -ht, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    HDC screen = GetDC(h);
    HDC mem = CreateCompatibleDC(screen);
    HBITMAP dib = CreateDIBSection(mem, &bi, DIB_RGB_COLORS, &bits, nullptr, 0);
    HGDIOBJ old = SelectObject(mem, dib);
    BitBlt(mem, 0, 0, w, ht, screen, 0, 0, SRCCOPY);
    int count = 0;
    const auto* px = static_cast<const unsigned*>(bits);
    const unsigned want = (GetRValue(colour) << 16) | (GetGValue(colour) << 8) | GetBValue(colour);
    for (int i = 0; i < w * ht; ++i) count += (px[i] & 0xFFFFFF) == want;
    SelectObject(mem, old);
    DeleteObject(dib);
    DeleteDC(mem);
    ReleaseDC(h, screen);
    return count;
}

struct Case {
    const wchar_t* what;
    std::function<void(dialog::frmEspEnc&)> prepare;
    const wchar_t* control;
    COLORREF colour;
    bool expected;  // whether pixels of that colour must be there
};

std::vector<Case> drawingCases() {
    std::vector<Case> cases;
    for (int k = 0; k < 7; ++k) {
        static const wchar_t* names[7] = {L"PictureEsp#0", L"PictureEsp#1", L"PictureEsp#2",
                                          L"PictureEsp#3", L"PictureEsp#4", L"PictureEsp#5",
                                          L"PictureEsp#6"};
        cases.push_back({L"special type drawing has red arrows", [](dialog::frmEspEnc&) {},
                         names[k], kRed, true});
        cases.push_back({L"disabled special type drawing has no red",
                         [k](dialog::frmEspEnc& f) { f.PictureEsp[k].Enabled = false; }, names[k],
                         kRed, false});
    }
    for (const wchar_t* d : {L"ImageDiagonal#0", L"ImageDiagonal#1"})
        cases.push_back(
            {L"diagonal drawing has its red cut", [](dialog::frmEspEnc&) {}, d, kRed, true});
    return cases;
}

std::vector<Case> colourCases() {
    auto colour = [](int32_t c) {
        return [c](dialog::frmEspEnc& f) { f.EtiqCuadEsp[0].ForeColor = c; };
    };
    return {
        {L"label in red (255)", colour(dialog::kRojo), L"EtiqCuadEsp#0", kRed, true},
        {L"label in navy (&H800000)", colour(dialog::kAzulMarino), L"EtiqCuadEsp#0", kNavy, true},
        {L"label in black (0)", colour(dialog::kNegro), L"EtiqCuadEsp#0", kBlack, true},
        {L"navy label has no red", colour(dialog::kAzulMarino), L"EtiqCuadEsp#0", kRed, false},
    };
}

std::vector<Case> previewCases() {
    const std::wstring bmp = tempFile(L"quorbel-preview.bmp");
    const std::wstring text = tempFile(L"quorbel-preview.txt");
    writeBmp(bmp, kPreview);
    const std::string notPicture = "not a picture";
    writeBytes(text, std::vector<unsigned char>(notPicture.begin(), notPicture.end()));
    auto show = [](std::wstring file) {
        return [file](dialog::frmEspEnc& f) {
            f.ImagePreview.Visible = true;
            f.ImagePreview.Picture = narrowWide(file.data(), file.size());
        };
    };
    return {
        {L"preview shows the picture file", show(bmp), L"ImagePreview#0", kPreview, true},
        {L"unreadable picture is not drawn", show(text), L"ImagePreview#0", kPreview, false},
        {L"unreadable picture shows No Disponible", show(text), L"ImagePreview#0",
         GetSysColor(COLOR_BTNTEXT), true},
        {L"missing picture shows No Disponible", show(tempFile(L"quorbel-none.bmp")),
         L"ImagePreview#0", GetSysColor(COLOR_BTNTEXT), true},
    };
}

void runPixelCase(const Case& c) {
    showForm(c.prepare, [&](HWND dialog) {
        HWND h = controlOf(dialog, c.control);
        if (!h) return fault(std::wstring(c.what) + L": no control " + c.control);
        const int n = pixelsOf(h, c.colour);
        if ((n > 0) != c.expected)
            fault(std::wstring(c.what) + L" (" + c.control + L": " + std::to_wstring(n) +
                  L" pixels)");
    });
}

void iconCases() {
    const std::wstring ico = tempFile(L"IconAsist.ico");
    writeIcon(ico);
    struct IconCase {
        const wchar_t* what;
        std::wstring file;
        bool expected;
    };
    const IconCase cases[] = {
        {L"icon file becomes the window icon", ico, true},
        {L"the shipped IconAsist.ico becomes the window icon", besideProgram(L"IconAsist.ico"),
         true},
        {L"no icon file: no icon, no error", L"", false},
        {L"icon file gone since load: no icon, no error", tempFile(L"quorbel-gone.ico"), false},
    };
    for (const IconCase& c : cases) {
        bool shown = false;
        showForm([&](dialog::frmEspEnc& f) { f.Icon = narrowWide(c.file.data(), c.file.size()); },
                 [&](HWND dialog) {
                     shown = true;
                     bool icon = SendMessageW(dialog, WM_GETICON, ICON_SMALL, 0) != 0;
                     if (icon != c.expected) fault(c.what);
                 });
        if (!shown) fault(std::wstring(c.what) + L": the dialog did not open");
    }
}

// Modal to the host's active window, message boxes owned by the dialog while it is open, and a
// handler's error raised only after the window is gone (here: closing without a host).
void modalCase() {
    HWND host = CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200,
                                100, nullptr, nullptr, nullptr, nullptr);
    SetActiveWindow(host);
    std::vector<HWND> owners;
    bool ownedByHost = false, hostDisabled = false;
    std::exception_ptr error =
        showForm([](dialog::frmEspEnc&) {},
                 [&](HWND dialog) {
                     ownedByHost = GetWindow(dialog, GW_OWNER) == host;
                     hostDisabled = !IsWindowEnabled(host);
                     if (owners.size() != 1 || owners[0] != dialog)
                         fault(L"message boxes are not owned by the open dialog");
                 },
                 host, [&](HWND h) { owners.push_back(h); });
    if (!ownedByHost) fault(L"the dialog is not owned by the host's active window");
    if (!hostDisabled) fault(L"the host window is not disabled while the dialog is open");
    if (!IsWindowEnabled(host)) fault(L"the host window stays disabled after the dialog");
    if (owners.size() != 2 || owners[1] != nullptr)
        fault(L"message boxes are still owned by the closed dialog");
    if (FindWindowW(props::kDialogClass, nullptr)) fault(L"the dialog outlived its error");
    try {
        if (error) std::rethrow_exception(error);
        fault(L"the error of closing without a host did not leave the modal loop");
    } catch (const vb::RuntimeError& e) {
        if (e.number() != 91) fault(L"closing without a host raised another error");
    } catch (...) {
        fault(L"closing without a host raised a foreign exception");
    }
    DestroyWindow(host);
}

}  // namespace

int viewChecks() {
    int cases = 4;
    for (const auto& group : {drawingCases(), colourCases(), previewCases()})
        for (const Case& c : group) {
            runPixelCase(c);
            ++cases;
        }
    iconCases();
    modalCase();
    std::printf("%d view cases\n", cases);
    return faults();
}

}  // namespace quorbel::check
