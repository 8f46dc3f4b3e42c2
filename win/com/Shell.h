#pragma once
// What each COM instance owns: the Win32 platform, the host factory (its objects' reads kept for
// the call unless QUORBEL_HOST_READS=literal), the dialog's window view and the Env over them;
// and how each entry point runs.
#include <source_location>

#include "com/CallTrace.h"
#include "com/ErrorBoundary.h"
#include "dialog/Win32DialogView.h"
#include "env/Env.h"
#include "host/CachingFactory.h"
#include "host/DispatchHost.h"
#include "platform/HostReadMode.h"
#include "platform/Win32Platform.h"
#include "vb/Conversions.h"

namespace quorbel {

class Shell {
  protected:
    explicit Shell(const char* className) : className_(className) {}

    // Runs one entry point inside the error boundary, with the user's decimal separator; its
    // decisions go to the support trace when one is set (`where` names the entry point).
    template <class Body>
    HRESULT entry(Body&& body,
                  const std::source_location& where = std::source_location::current()) noexcept {
        CallTrace trace(className_, where);
        const HRESULT result = guarded([&] {
            vb::setDecimalSeparator(platform_.decimalSeparator());
            body();
        });
        trace.finish(result);
        return result;
    }
    const char* className_;
    Win32Platform platform_;
    DispatchFactory dispatchFactory_;
    host::CachingFactory factory_{dispatchFactory_, hostReadMode()};
    Win32DialogView dialogView_{platform_};
    env::Env env_{platform_, factory_, &dialogView_};
};

}  // namespace quorbel
