#include "sim/DialogWiring.h"

#if __has_include("dialog/HeadlessView.h")
#include "dialog/HeadlessView.h"
#define QUORBEL_HAS_HEADLESS_VIEW 1
#endif

namespace sim {

std::unique_ptr<dialog::DialogView> makeDialogView(const std::vector<dialog::UserAction>& actions,
                                                   dialog::DialogObserver& observer,
                                                   platform::Platform& platform) {
#ifdef QUORBEL_HAS_HEADLESS_VIEW
    return std::make_unique<dialog::HeadlessView>(actions, observer, platform);
#else
    (void)actions;
    (void)observer;
    (void)platform;
    return nullptr;
#endif
}

}  // namespace sim
