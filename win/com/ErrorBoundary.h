#pragma once
// Every entry point runs inside `guarded`: a runtime error becomes the caller's error info, any
// other failure a generic error; nothing crosses the COM boundary.
#include <windows.h>

#include <functional>

#include "vb/Variant.h"

namespace quorbel {

HRESULT reportError(int number, const vb::String& description);
HRESULT guarded(const std::function<void()>& body) noexcept;

}  // namespace quorbel
