#include "sim/Player.h"

#include <optional>

#include "common/Explicacion.h"
#include "common/ModVariables.h"
#include "sim/DialogWiring.h"
#include "vb/Conversions.h"
#include "vb/Errors.h"

namespace sim {

namespace {

constexpr int32_t kFirstBlock = 1000;

Json errorJson(int number, const vb::String& description) {
    return {{"number", number}, {"description", toJsonText(description)}};
}

}  // namespace

Simulation::Simulation(World world)
    : world_(std::move(world)), state_(world_, recorder_), factory_(state_) {}

Json Simulation::transcript() const {
    return recorder_.transcript(state_.objectsJson(), state_.filesJson());
}

Player::Player(Simulation& simulation, platform::Platform& platform, host::ReadMode reads)
    : sim_(simulation),
      factory_(simulation.factory(), reads),
      env_{platform, factory_, nullptr},
      plugin_(env_),
      wizard_(env_) {
    // A scenario is a fresh host process: no shared context is left from another one.
    common::modVariables() = common::ModVariables{};
}

MethodOutcome Player::dispatch(const CallSpec& call, int32_t block) {
    const MethodCall methodCall{block, &call.args, &sim_.factory()};
    if (call.className == "Wizard") return invoke(wizard_, call.method, methodCall);
    return invoke(plugin_, call.method, methodCall);
}

void Player::play(const CallSpec& call) {
    const int32_t block = kFirstBlock + ++callsPlayed_;
    HostState& state = sim_.state();
    Recorder& recorder = sim_.recorder();
    vb::setDecimalSeparator(sim_.world().application.decimalSeparator);
    state.call = {block, &call};
    recorder.beginCall(call.className, call.method);
    std::unique_ptr<env::DialogView> view;
    MethodOutcome outcome;
    Json error = nullptr;
    try {
        view = makeDialogView(call.ui, recorder);
        env_.dialogView = view.get();
        std::optional<common::ExplicacionActiva> explicacion;
        if (recorder.explaining()) explicacion.emplace(&recorder);
        outcome = dispatch(call, block);
    } catch (const vb::RuntimeError& e) {
        error = errorJson(e.number(), e.description());
    } catch (const std::exception& e) {
        error = errorJson(vb::err::kAutomation, u"Automation error: " + vb::fromUtf8(e.what()));
    } catch (...) {
        error = errorJson(vb::err::kAutomation, u"Automation error: unknown failure");
    }
    env_.dialogView = nullptr;
    if (!error.is_null()) outcome = MethodOutcome{nullptr, std::nullopt};
    recorder.endCall(std::move(outcome.result), std::move(error), std::move(outcome.args));
    state.call = {};
}

}  // namespace sim
