#include "com/ErrorBoundary.h"

#include <oleauto.h>

#include <new>

#include "platform/Bstr.h"
#include "vb/Errors.h"

namespace quorbel {

namespace {

constexpr int kOutOfMemory = 7;

}  // namespace

HRESULT reportError(int number, const vb::String& description) noexcept {
    // A BSTR rather than a std::wstring: nothing here may raise, even when memory is short.
    BSTR text = toBstr(description);
    ICreateErrorInfo* create = nullptr;
    if (SUCCEEDED(CreateErrorInfo(&create))) {
        create->SetSource(const_cast<LPOLESTR>(L"Quorbel"));
        create->SetDescription(text ? text : const_cast<LPOLESTR>(L"Out of memory"));
        IErrorInfo* info = nullptr;
        if (SUCCEEDED(create->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info)))) {
            SetErrorInfo(0, info);
            info->Release();
        }
        create->Release();
    }
    SysFreeString(text);
    return vbErrorCode(number);
}

HRESULT reportCurrentException() noexcept {
    try {
        throw;
    } catch (const vb::RuntimeError& e) {
        return reportError(e.number(), e.description());
    } catch (const std::bad_alloc&) {
        return reportError(kOutOfMemory, u"Out of memory");
    } catch (...) {
        return reportError(vb::err::kAutomation, u"Automation error");
    }
}

}  // namespace quorbel
