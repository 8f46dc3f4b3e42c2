#include "dialog/Win32DialogView.h"

#include "dialog/DialogWindow.h"

namespace quorbel {

void Win32DialogView::showModal(dialog::frmEspEnc& form) {
    form.Form_Load();
    HWND owner = GetActiveWindow();
    DialogWindow window(form, [this](HWND dialog) { platform_.setMessageBoxOwner(dialog); });
    window.runModal(owner);
}

}  // namespace quorbel
