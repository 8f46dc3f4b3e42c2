#pragma once
// Failures of the driver's own callbacks (the dialog player's timer, the window hooks). Wine
// swallows an exception that leaves a timer procedure or a hook, which would leave the dialog
// player waiting for ever with its action half done; the callbacks keep it here instead, end
// what they were doing, and the call's player raises it once the call has returned.
#include <exception>
#include <stdexcept>

namespace hostdriver {

// A failure of the driver itself, not of the plug-in: it ends the run (exit code 1).
struct DriverFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Keeps the first failure until raiseCallbackFailure.
void keepCallbackFailure(std::exception_ptr failure) noexcept;

// Raises the kept failure as a DriverFailure naming where it happened, and forgets it.
void raiseCallbackFailure();

}  // namespace hostdriver
