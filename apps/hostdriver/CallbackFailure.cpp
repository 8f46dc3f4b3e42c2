#include "CallbackFailure.h"

#include <string>
#include <utility>

namespace hostdriver {

namespace {

std::exception_ptr kept;

std::string describe(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const std::exception& e) {
        return e.what();
    } catch (...) {
        return "an exception that is not a std::exception";
    }
}

}  // namespace

void keepCallbackFailure(std::exception_ptr failure) noexcept {
    if (!kept) kept = std::move(failure);
}

void raiseCallbackFailure() {
    if (!kept) return;
    const std::exception_ptr failure = std::exchange(kept, nullptr);
    throw DriverFailure("a callback of the driver failed while the call ran: " + describe(failure));
}

}  // namespace hostdriver
