#include "sim/DialogWiring.h"

#include "dialog/HeadlessView.h"

namespace sim {

std::unique_ptr<env::DialogView> makeDialogView(const std::vector<dialog::UserAction>& actions,
                                                dialog::DialogObserver& observer) {
    return std::make_unique<dialog::HeadlessView>(actions, observer);
}

}  // namespace sim
