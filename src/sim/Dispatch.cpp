#include "sim/Dispatch.h"

#include <functional>
#include <tuple>
#include <type_traits>
#include <unordered_map>
#include <utility>

#include "sim/ArgCodec.h"
#include "vb/Errors.h"

namespace sim {

namespace {

constexpr int kWrongArgumentCount = 450;

template <class C>
using Handler = std::function<MethodOutcome(C&, const MethodCall&)>;

template <class C>
using MethodTable = std::unordered_map<std::string, Handler<C>>;

[[noreturn]] void wrongArgumentCount() {
    throw vb::RuntimeError(kWrongArgumentCount,
                           u"Wrong number of arguments or invalid property assignment");
}

template <class R>
Json resultJson(const R& value) {
    if constexpr (std::is_same_v<R, bool>) {
        return value;
    } else {
        return variantJson(value);
    }
}

// A method that takes the call-parameter block.
template <class C>
Handler<C> block(bool (C::*method)(int32_t)) {
    return [method](C& object, const MethodCall& call) {
        if (call.args && call.args->has_value()) wrongArgumentCount();
        return MethodOutcome{(object.*method)(call.block), std::nullopt};
    };
}

template <class C, class R, class... A, size_t... I>
MethodOutcome callWith(C& object, R (C::*method)(A&...), const MethodCall& call,
                       std::index_sequence<I...>) {
    static const Json kNone = Json::array();
    const Json& given = call.args && call.args->has_value() ? **call.args : kNone;
    if (given.size() != sizeof...(A)) wrongArgumentCount();
    // Braced initialisation converts the arguments left to right.
    std::tuple<A...> values{ArgCodec<A>::in(given[I], *call.factory)...};
    MethodOutcome outcome;
    if constexpr (std::is_void_v<R>) {
        (object.*method)(std::get<I>(values)...);
        outcome.result = nullptr;
    } else {
        outcome.result = resultJson((object.*method)(std::get<I>(values)...));
    }
    if constexpr (sizeof...(A) > 0) {
        outcome.args = Json::array({ArgCodec<A>::out(std::get<I>(values))...});
    }
    return outcome;
}

// A method that takes the scenario's arguments (all by reference).
template <class C, class R, class... A>
Handler<C> withArgs(R (C::*method)(A&...)) {
    return [method](C& object, const MethodCall& call) {
        return callWith(object, method, call, std::index_sequence_for<A...>{});
    };
}

const MethodTable<handlers::Plugin>& pluginMethods() {
    using P = handlers::Plugin;
    static const MethodTable<P> table = {
        {"construyeMensaje", withArgs(&P::construyeMensaje)},
        {"procesaDimension", withArgs(&P::procesaDimension)},
        {"procesaObjeto", withArgs(&P::procesaObjeto)},
        {"OnObjectComponentsB", block(&P::OnObjectComponentsB)},
        {"OnObjectAttributsDlgValidation", block(&P::OnObjectAttributsDlgValidation)},
        {"OnObjectPlaceAfter", block(&P::OnObjectPlaceAfter)},
        {"OnObjectFinishesAfter", block(&P::OnObjectFinishesAfter)},
        {"OnSceneGenericFinishesAfter", block(&P::OnSceneGenericFinishesAfter)},
        {"OnObjectComponentsBefore", block(&P::OnObjectComponentsBefore)},
        {"InicEsp", withArgs(&P::InicEsp)},
        {"InicEspMod", withArgs(&P::InicEspMod)},
        {"InicEspMod2", withArgs(&P::InicEspMod2)},
        {"InicEspMod3", withArgs(&P::InicEspMod3)},
        {"GenModEsp", withArgs(&P::GenModEsp)},
        {"GenExcepciones", withArgs(&P::GenExcepciones)},
        {"modeloValido", withArgs(&P::modeloValido)},
        {"ObjectWizard", block(&P::ObjectWizard)},
        {"OnAppStartAfter", block(&P::OnAppStartAfter)},
        {"SceneCheck", block(&P::SceneCheck)},
        {"programaST", withArgs(&P::programaST)},
        {"programaST2", withArgs(&P::programaST2)},
    };
    return table;
}

const MethodTable<wizard::Wizard>& wizardMethods() {
    using W = wizard::Wizard;
    static const MethodTable<W> table = {
        {"casoForma", block(&W::casoForma)},
        {"casoXey", block(&W::casoXey)},
        {"casoVegasa", block(&W::casoVegasa)},
        {"OnObjectPlaceAfter", block(&W::OnObjectPlaceAfter)},
        {"OnObjectComponents", block(&W::OnObjectComponents)},
        {"OnObjectComponentsBefore", block(&W::OnObjectComponentsBefore)},
        {"InicEsp", withArgs(&W::InicEsp)},
        {"InicEspMod", withArgs(&W::InicEspMod)},
        {"InicEspMod2", withArgs(&W::InicEspMod2)},
        {"GenModEsp", withArgs(&W::GenModEsp)},
        {"GenExcepciones", withArgs(&W::GenExcepciones)},
        {"modeloValido", withArgs(&W::modeloValido)},
        {"ObjectWizard", block(&W::ObjectWizard)},
    };
    return table;
}

template <class C>
MethodOutcome dispatch(const MethodTable<C>& table, const char16_t* className, C& object,
                       const std::string& method, const MethodCall& call) {
    // Automation binds names without regard to case.
    for (const auto& [name, handler] : table) {
        if (vb::equalText(vb::fromUtf8(name), vb::fromUtf8(method))) return handler(object, call);
    }
    throw vb::RuntimeError(vb::err::kNoSuchMember,
                           u"Object doesn't support this property or method: " +
                               vb::String(className) + u"." + vb::fromUtf8(method));
}

}  // namespace

MethodOutcome invoke(handlers::Plugin& plugin, const std::string& method, const MethodCall& call) {
    return dispatch(pluginMethods(), u"Plugin", plugin, method, call);
}

MethodOutcome invoke(wizard::Wizard& wizard, const std::string& method, const MethodCall& call) {
    return dispatch(wizardMethods(), u"Wizard", wizard, method, call);
}

}  // namespace sim
