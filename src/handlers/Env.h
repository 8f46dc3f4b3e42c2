#pragma once
// What a shell hands to the plug-in's classes: the platform, the host object factory and the
// dialog view (null where this build has no dialog).
#include "dialog/DialogView.h"
#include "host/Factory.h"
#include "platform/Platform.h"

namespace handlers {

struct Env {
    platform::Platform& platform;
    host::Factory& factory;
    dialog::DialogView* dialogView = nullptr;
};

}  // namespace handlers
