#include "ComPlayer.h"

#include <stdexcept>
#include <string>

#include "AttributeDialog.h"
#include "CallUi.h"
#include "ComArguments.h"
#include "host/AutomationError.h"
#include "host/DispatchCaller.h"
#include "sim/ArgCodec.h"
#include "vb/Errors.h"

namespace hostdriver {

namespace {

constexpr int32_t kFirstBlock = 1000;

IDispatch* createPlugin(const wchar_t* progId) {
    CLSID clsid;
    IDispatch* object = nullptr;
    if (FAILED(CLSIDFromProgID(progId, &clsid)) ||
        FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                reinterpret_cast<void**>(&object))))
        throw std::runtime_error("cannot create the plug-in's class by its ProgID");
    return object;
}

sim::Json errorJson(int number, const vb::String& description) {
    return {{"number", number}, {"description", sim::toJsonText(description)}};
}

DISPID memberId(IDispatch* object, const sim::CallSpec& call) {
    const vb::String method = vb::fromUtf8(call.method);
    std::wstring name(method.begin(), method.end());
    LPOLESTR names = name.data();
    DISPID id = DISPID_UNKNOWN;
    if (FAILED(object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id)))
        throw vb::RuntimeError(vb::err::kNoSuchMember,
                               u"Object doesn't support this property or method: " +
                                   vb::fromUtf8(call.className) + u"." + method);
    return id;
}

sim::Json call(IDispatch* object, DISPID id, DISPPARAMS& params) {
    VARIANT result;
    VariantInit(&result);
    EXCEPINFO excep{};
    UINT argErr = 0;
    const HRESULT hr = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params,
                                      &result, &excep, &argErr);
    if (FAILED(hr)) throw quorbel::automationError(hr, excep);
    sim::Json json = sim::variantJson(quorbel::fromVariant(result));
    VariantClear(&result);
    return json;
}

}  // namespace

ComPlayer::ComPlayer(sim::Simulation& simulation) : sim_(simulation) {
    plugin_ = createPlugin(L"Quorbel.Plugin");
    try {
        wizard_ = createPlugin(L"Quorbel.Wizard");
    } catch (...) {
        plugin_->Release();
        throw;
    }
}

ComPlayer::~ComPlayer() {
    wizard_->Release();
    plugin_->Release();
}

sim::MethodOutcome ComPlayer::invoke(const sim::CallSpec& spec, int32_t block) {
    IDispatch* object = spec.className == "Wizard" ? wizard_ : plugin_;
    const DISPID id = memberId(object, spec);
    if (!spec.args) {
        VARIANT arg;
        VariantInit(&arg);
        V_VT(&arg) = VT_I4;
        V_I4(&arg) = block;
        DISPPARAMS params{&arg, nullptr, 1, 0};
        return {call(object, id, params), std::nullopt};
    }
    ComArguments args(*spec.args, paramTypes(object, id));
    DISPPARAMS params = args.params();
    sim::MethodOutcome outcome{call(object, id, params), std::nullopt};
    if (!spec.args->empty()) outcome.args = args.readBack();
    return outcome;
}

void ComPlayer::play(const sim::CallSpec& spec) {
    const int32_t block = kFirstBlock + ++callsPlayed_;
    sim::HostState& state = sim_.state();
    sim::Recorder& recorder = sim_.recorder();
    state.call = {block, &spec, 0};
    recorder.beginCall(spec.className, spec.method);
    sim::MethodOutcome outcome;
    sim::Json error = nullptr;
    try {
        AttributeDialog dialog(spec.attributeDialog);
        state.call.dialogHandle = dialog.handle();
        const auto ui = startCallUi(spec, recorder);
        outcome = invoke(spec, block);
    } catch (const vb::RuntimeError& e) {
        error = errorJson(e.number(), e.description());
    } catch (const std::exception& e) {
        error = errorJson(vb::err::kAutomation, u"Automation error: " + vb::fromUtf8(e.what()));
    }
    if (!error.is_null()) outcome = sim::MethodOutcome{nullptr, std::nullopt};
    recorder.endCall(std::move(outcome.result), std::move(error), std::move(outcome.args));
    state.call = {};
}

}  // namespace hostdriver
