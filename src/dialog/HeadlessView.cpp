#include "dialog/HeadlessView.h"

#include "dialog/Acciones.h"
#include "dialog/frmEspEnc.h"

namespace dialog {

HeadlessView::HeadlessView(const std::vector<UserAction>& actions, DialogObserver& observer)
    : actions_(actions), observer_(observer) {}

void HeadlessView::showModal(frmEspEnc& form) {
    form.Form_Load();
    observer_.dialogShown(form.Caption);
    try {
        for (const UserAction& action : actions_) {
            if (form.descargado()) break;
            if (action.kind == UserAction::Kind::Close) {
                form.Unload();
                observer_.dialogClosed("closeBox");
                return;
            }
            realizaAccion(form, action, observer_);
        }
        if (form.descargado()) {
            observer_.dialogClosed("unload");
            return;
        }
        form.Unload();
        observer_.dialogClosed("endOfActions");
    } catch (...) {
        observer_.dialogClosed("error");
        throw;
    }
}

}  // namespace dialog
