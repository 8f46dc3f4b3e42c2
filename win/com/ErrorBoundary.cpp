#include "com/ErrorBoundary.h"

#include <oleauto.h>

#include <new>

#include "vb/Errors.h"

namespace quorbel {

namespace {

constexpr int kOutOfMemory = 7;

}  // namespace

HRESULT reportError(int number, const vb::String& description) noexcept {
    // A BSTR rather than a std::wstring: nothing here may raise, even when memory is short.
    BSTR text = SysAllocStringLen(reinterpret_cast<const OLECHAR*>(description.data()),
                                  static_cast<UINT>(description.size()));
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
    return MAKE_HRESULT(1, FACILITY_CONTROL, number & 0xFFFF);
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
