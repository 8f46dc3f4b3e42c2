#pragma once
// What each COM instance owns: the Win32 platform, the host factory, the dialog's window view
// and the Env over them.
#include "com/ErrorBoundary.h"
#include "dialog/Win32DialogView.h"
#include "env/Env.h"
#include "host/DispatchHost.h"
#include "platform/Win32Platform.h"
#include "vb/Conversions.h"

namespace quorbel {

class Shell {
  protected:
    // Runs one entry point inside the error boundary, with the user's decimal separator.
    template <class Body>
    HRESULT entry(Body&& body) noexcept {
        return guarded([&] {
            vb::setDecimalSeparator(platform_.decimalSeparator());
            body();
        });
    }
    Win32Platform platform_;
    DispatchFactory factory_;
    Win32DialogView dialogView_{platform_};
    env::Env env_{platform_, factory_, &dialogView_};
};

}  // namespace quorbel
