#pragma once
// The form as a real window: one Win32 control per element of every control of the form. Each
// window message the form has an event for goes to the form's handler (through the form's own
// event wiring); afterwards every property the handler changed is brought onto the controls.
// A runtime error in a handler is caught in the window procedure, ends the modal loop and is
// raised again after it, so it reaches the handler's error trap without crossing C frames.
#include <windows.h>

#include <exception>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "dialog/Layout.h"
#include "dialog/UserAction.h"
#include "dialog/WindowProps.h"
#include "dialog/frmEspEnc.h"

struct IPicture;

namespace quorbel {

// One real window for one element of a control of the form.
struct RealControl {
    std::u16string name;
    int index = 0;
    props::ControlKind kind{};
    HWND hwnd = nullptr;
    bool followsForm = false;  // top and height from the form (recess rows, picin)
    RECT shown{};              // last rectangle given to a control that follows the form
    std::u16string text;       // last caption or tag written, to write only changes
    std::wstring tag;
    bool tagSet = false;
    std::vector<std::u16string> entries;  // list entries as shown
};

class DialogWindow {
  public:
    // `ownerChanged` is told the dialog's handle while it is open and null when it closes, so
    // that message boxes shown meanwhile are owned by it.
    DialogWindow(dialog::frmEspEnc& form, std::function<void(HWND)> ownerChanged = {});
    ~DialogWindow();
    DialogWindow(const DialogWindow&) = delete;
    DialogWindow& operator=(const DialogWindow&) = delete;

    // Creates the window owned by `owner` (disabled meanwhile), plays window messages until
    // the form is unloaded or a handler raises, destroys the window, then rethrows.
    void runModal(HWND owner);

    HWND hwnd() const { return hwnd_; }

    // Window procedures' entry points (public for the procedures only).
    LRESULT dialogMessage(UINT msg, WPARAM wp, LPARAM lp);
    LRESULT controlMessage(HWND h, UINT msg, WPARAM wp, LPARAM lp, bool& handled);
    void paintPicture(HWND h, HDC dc, const RECT& client);
    static DialogWindow* of(HWND anyWindowOfTheDialog);
    // An exception of a window procedure's own work: kept, and the modal loop ends.
    void keepError(std::exception_ptr error) noexcept;

  private:
    template <typename F>
    void fire(F&& handler);
    template <typename F>
    void guard(F&& reading);
    void create(HWND owner);
    void createFirstElements();
    void sincroniza();
    void stack();
    void setIcon();
    void closeWindow(HWND owner, bool ownerWasEnabled);
    RealControl* find(HWND h);

    template <typename T>
    RealControl makeFirst(const char16_t* name, const T& model);
    RealControl cloneFirst(const RealControl& first, int index);
    HWND createWindow(const wchar_t* cls, DWORD style, DWORD exStyle, const std::wstring& text,
                      const Place& place);
    void tagWindow(RealControl& rc, int order, int group);

    void aplicaComun(RealControl& rc, const dialog::Control& m, bool hasEnabled = true);
    void aplica(RealControl& rc, dialog::Label& m);
    void aplica(RealControl& rc, dialog::CommandButton& m);
    void aplica(RealControl& rc, dialog::Frame& m);
    void aplica(RealControl& rc, dialog::TextBox& m);
    void aplica(RealControl& rc, dialog::ListBox& m);
    void aplica(RealControl& rc, dialog::PictureBox& m);
    void aplica(RealControl& rc, dialog::Shape& m);
    void aplica(RealControl& rc, dialog::ScrollBar& m);
    void aplicaTexto(RealControl& rc, const std::u16string& text);

    // A message to a real control, for the default procedure after the form has seen it.
    struct RawMessage {
        HWND hwnd;
        UINT msg;
        WPARAM wp;
        LPARAM lp;
    };
    LRESULT pressed(const RealControl& c, bool& handled);
    LRESULT released(const RealControl& c, const RawMessage& m, bool& handled);
    LRESULT focused(const RealControl& c, const RawMessage& m, bool& handled);
    LRESULT typed(const RealControl& c, const RawMessage& m, bool& handled);
    void mouseDown(const RealControl& rc);
    void mouseUp(const RealControl& rc, LPARAM lp);
    void leeLista(const RealControl& rc);
    void leeTexto(const RealControl& rc);
    void command(HWND from, int code);
    void scroll(HWND bar, WPARAM wp);
    void playUnreachable(const props::ActionRequest& request);
    void loadPreview(const std::u16string& file);

    dialog::frmEspEnc& form_;
    std::function<void(HWND)> ownerChanged_;
    HWND hwnd_ = nullptr;
    HFONT font_ = nullptr;
    HICON bigIcon_ = nullptr, smallIcon_ = nullptr;
    Layout layout_;
    std::vector<std::vector<RealControl>> arrays_;  // in the form's control order
    std::unordered_map<HWND, std::pair<size_t, size_t>> slots_;
    std::unordered_map<std::wstring, HWND> byKey_;  // "Name#index"
    int nextId_ = 1000;
    HWND pressed_ = nullptr;
    bool syncing_ = false;
    std::exception_ptr error_;
    std::u16string previewFile_;
    IPicture* preview_ = nullptr;
    bool previewFailed_ = false;
};

// A handler of the form, run for a window message: its error is kept for the end of the modal
// loop, and what it changed is brought onto the controls.
template <typename F>
inline void DialogWindow::fire(F&& handler) {
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
inline void DialogWindow::guard(F&& reading) {
    if (error_) return;
    try {
        reading();
    } catch (...) {
        error_ = std::current_exception();
        PostMessageW(hwnd_, WM_NULL, 0, 0);
    }
}

}  // namespace quorbel
