#pragma once
// Every entry point runs inside `guarded`: a runtime error becomes the caller's error info, any
// other failure a generic error; nothing crosses the COM boundary. The body is taken as it is,
// not wrapped in a std::function, whose allocation could fail before the boundary is set up.
#include <oleauto.h>
#include <windows.h>

#include "vb/Variant.h"

namespace quorbel {

HRESULT reportError(int number, const vb::String& description) noexcept;
// Inside a catch block: the exception being handled, reported as reportError does.
HRESULT reportCurrentException() noexcept;

template <class Body>
HRESULT guarded(Body&& body) noexcept {
    try {
        SetErrorInfo(0, nullptr);
        body();
        return S_OK;
    } catch (...) {
        return reportCurrentException();
    }
}

}  // namespace quorbel
