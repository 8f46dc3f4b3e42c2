// Scenario files, any bytes: either the loader refuses them with sim::ScenarioError naming the
// place (what quorbel-sim turns into exit 2), or the rule check and the permission matrix read
// its world without failing and the scenario plays to a transcript with one entry per call. Nothing
// else may leave the loader or the player, and no call may end in a C++ exception that is not a VB
// runtime error (the player reports those as "Automation error").
//
// Worlds too large for a fuzzing run (many calls, objects or user actions) are loaded but not
// played; that limit belongs to this target, not to the loader.
#include <string>

#include "FuzzCheck.h"
#include "lint/Lint.h"
#include "lint/Matrix.h"
#include "native/RunScenario.h"
#include "sim/ScenarioLoader.h"

namespace {

constexpr size_t kMaxBytes = 1 << 16;
constexpr size_t kMaxCalls = 40;
constexpr size_t kMaxObjects = 400;
constexpr size_t kMaxUserActions = 400;

bool startsWith(const std::string& text, const std::string& head) {
    return text.compare(0, head.size(), head) == 0;
}

bool smallEnoughToPlay(const sim::Scenario& scenario) {
    size_t actions = 0;
    for (const auto& call : scenario.calls) actions += call.ui.size();
    return scenario.calls.size() <= kMaxCalls && actions <= kMaxUserActions &&
           scenario.world.scene.order().size() <= kMaxObjects;
}

void checkTranscript(const sim::Json& transcript, size_t calls) {
    FUZZ_CHECK(transcript.is_object() && transcript["calls"].is_array());
    FUZZ_CHECK(transcript["calls"].size() == calls);
    for (const auto& call : transcript["calls"]) {
        const auto& error = call["error"];
        if (error.is_null()) continue;
        const std::string description = error["description"];
        FUZZ_CHECK(!(error["number"] == 440 && startsWith(description, "Automation error: ")));
    }
    const std::string text = transcript.dump(2, ' ', false, sim::Json::error_handler_t::replace);
    FUZZ_CHECK(!text.empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size > kMaxBytes) return 0;
    std::unique_ptr<sim::Scenario> scenario;
    try {
        scenario = sim::loadScenario(fuzzcheck::bytes(data, size));
    } catch (const sim::ScenarioError& e) {
        const std::string message = e.what();
        FUZZ_CHECK(startsWith(message, "invalid JSON: ") ||
                   message.find(": ") != std::string::npos);
        return 0;
    }
    for (const auto& finding : lint::lintWorld(scenario->world))
        FUZZ_CHECK(!lint::describe(finding).empty());
    const auto matrices = lint::permissionMatrix(scenario->world);
    FUZZ_CHECK(!lint::matrixText(matrices).empty() && !lint::matrixHtml(matrices).empty());
    if (!smallEnoughToPlay(*scenario)) return -1;  // not kept in the corpus
    const size_t calls = scenario->calls.size();
    checkTranscript(native::runScenario(std::move(*scenario)), calls);
    return 0;
}
