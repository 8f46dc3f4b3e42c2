#pragma once
// The dialog view of one call: plays the call's user actions and reports to the observer.
// Every call gets one, so a dialog the plug-in opens always has a view.
#include <memory>
#include <vector>

#include "dialog/UserAction.h"
#include "env/DialogView.h"

namespace sim {

std::unique_ptr<env::DialogView> makeDialogView(const std::vector<dialog::UserAction>& actions,
                                                dialog::DialogObserver& observer);

}  // namespace sim
