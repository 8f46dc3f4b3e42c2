#pragma once
// The dialog without windows: shows the form modally inside the handler's call and plays a
// scenario's user actions against it, reporting what happens to an observer.
#include <vector>

#include "dialog/UserAction.h"
#include "env/DialogView.h"

namespace dialog {

class HeadlessView : public env::DialogView {
  public:
    HeadlessView(const std::vector<UserAction>& actions, DialogObserver& observer);

    // Form_Load, dialogShown, then the actions. A dialog still open when they run out is
    // closed as by its close box ("endOfActions"); a runtime error closes it ("error") and
    // goes on to the handler's error trap.
    void showModal(frmEspEnc& form) override;

  private:
    std::vector<UserAction> actions_;
    DialogObserver& observer_;
};

}  // namespace dialog
