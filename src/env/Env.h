#pragma once
// What a shell hands to the plug-in's classes: the platform, the host object factory and the
// dialog view (null where this build has no dialog). The handlers, the wizard and the dialog
// all sit above it.
#include "env/DialogView.h"
#include "host/Factory.h"
#include "platform/Platform.h"

namespace env {

struct Env {
    platform::Platform& platform;
    host::Factory& factory;
    DialogView* dialogView = nullptr;
};

}  // namespace env
