#include "Harness.h"

#include <cstdio>

#include "dialog/DialogWindow.h"
#include "dialog/WindowProps.h"
#include "host/Factory.h"
#include "platform/Platform.h"

namespace quorbel::check {

namespace {

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

std::function<void(HWND)> pending;
int faultCount = 0;

void CALLBACK onTimer(HWND, UINT, UINT_PTR id, DWORD) {
    KillTimer(nullptr, id);
    HWND dialog = FindWindowW(props::kDialogClass, nullptr);
    if (!dialog) {
        fault(L"no dialog window");
        return;
    }
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    if (pending) pending(dialog);
    PostMessageW(dialog, WM_CLOSE, 0, 0);
}

struct Search {
    std::wstring key;
    HWND found = nullptr;
};

BOOL CALLBACK byKey(HWND h, LPARAM p) {
    auto* s = reinterpret_cast<Search*>(p);
    if (props::getString(h, props::kControl) != s->key) return TRUE;
    s->found = h;
    return FALSE;
}

}  // namespace

std::exception_ptr showForm(const std::function<void(dialog::frmEspEnc&)>& prepare,
                            const std::function<void(HWND)>& inspect, HWND owner,
                            const std::function<void(HWND)>& ownerChanged) {
    NoPlatform platform;
    NoFactory factory;
    env::Env env{platform, factory, nullptr};
    dialog::frmEspEnc form(env);
    form.Caption = u"Edici\u00F3n de especiales - B60-TIBER";
    prepare(form);
    pending = inspect;
    SetTimer(nullptr, 0, 300, onTimer);
    std::exception_ptr error;
    try {
        DialogWindow window(form, ownerChanged);
        window.runModal(owner);
    } catch (...) {
        error = std::current_exception();
    }
    pending = nullptr;
    return error;
}

HWND controlOf(HWND dialog, const std::wstring& key) {
    Search s{key};
    EnumChildWindows(dialog, byKey, reinterpret_cast<LPARAM>(&s));
    return s.found;
}

void fault(const std::wstring& what) {
    ++faultCount;
    std::printf("FAIL %ls\n", what.c_str());
}

int faults() {
    return faultCount;
}

}  // namespace quorbel::check
