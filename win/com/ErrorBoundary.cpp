#include "com/ErrorBoundary.h"

#include <oleauto.h>

#include <new>
#include <string>

#include "vb/Errors.h"

namespace quorbel {

HRESULT reportError(int number, const vb::String& description) {
    ICreateErrorInfo* create = nullptr;
    if (SUCCEEDED(CreateErrorInfo(&create))) {
        std::wstring desc(description.begin(), description.end());
        create->SetSource(const_cast<LPOLESTR>(L"Quorbel"));
        create->SetDescription(const_cast<LPOLESTR>(desc.c_str()));
        IErrorInfo* info = nullptr;
        if (SUCCEEDED(create->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info)))) {
            SetErrorInfo(0, info);
            info->Release();
        }
        create->Release();
    }
    return MAKE_HRESULT(1, FACILITY_CONTROL, number & 0xFFFF);
}

HRESULT guarded(const std::function<void()>& body) noexcept {
    try {
        SetErrorInfo(0, nullptr);
        body();
        return S_OK;
    } catch (const vb::RuntimeError& e) {
        return reportError(e.number(), e.description());
    } catch (const std::bad_alloc&) {
        return reportError(7, u"Out of memory");
    } catch (...) {
        return reportError(vb::err::kAutomation, u"Automation error");
    }
}

}  // namespace quorbel
