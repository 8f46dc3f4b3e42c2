// quorbel-sim: plays scenario files against the plug-in in a simulated host.
//   quorbel-sim run FILE          the transcript as JSON
//   quorbel-sim run --text FILE   the same for a person
//   quorbel-sim demo              the bundled sample world, as text
//   quorbel-sim lint FILE         the rule-table check of the scenario's catalogues
//   quorbel-sim --version         the project's version
// Exit codes: 0 played, 2 bad input or usage, 1 an unexpected failure of the runner itself;
// lint: 0 no finding, 1 findings, 2 bad input or usage.
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "LintCommand.h"
#include "QuorbelVersion.h"
#include "Samples.h"
#include "native/RunScenario.h"
#include "sim/ScenarioLoader.h"
#include "sim/TextReport.h"

namespace {

constexpr int kBadInput = 2;

const char* const kUsage =
    "usage: quorbel-sim run [--text] FILE\n"
    "       quorbel-sim demo\n"
    "       quorbel-sim lint FILE\n"
    "       quorbel-sim --version\n";

std::string jsonText(const sim::Json& transcript) {
    return transcript.dump(2, ' ', false, sim::Json::error_handler_t::replace) + "\n";
}

int run(const std::vector<std::string>& args) {
    const bool text = args.size() == 2 && args[0] == "--text";
    if (args.size() != 1 && !text) {
        std::cerr << kUsage;
        return kBadInput;
    }
    const std::string& file = args.back();
    const sim::Json transcript = native::runScenarioText(sim::readWholeFile(file));
    std::cout << (text ? sim::textReport(transcript) : jsonText(transcript));
    return 0;
}

int demo() {
    const auto samples = quorbel_sim::samplesFolder();
    if (!samples) {
        std::cerr << "quorbel-sim: no samples/demo.list found beside the program or its sources\n";
        return kBadInput;
    }
    const auto files = quorbel_sim::demoScenarios(*samples);
    if (files.empty()) {
        std::cerr << "quorbel-sim: " << (*samples / "demo.list").string() << " names no scenario\n";
        return kBadInput;
    }
    for (const auto& file : files) {
        const std::string title = "== " + file.filename().string() + " ";
        std::cout << title << std::string(title.size() < 72 ? 72 - title.size() : 0, '=') << "\n\n";
        std::cout << sim::textReport(native::runScenarioText(sim::readWholeFile(file.string())))
                  << "\n";
    }
    return 0;
}

int dispatch(const std::vector<std::string>& args) {
    if (!args.empty() && args[0] == "run") return run({args.begin() + 1, args.end()});
    if (args.size() == 1 && args[0] == "demo") return demo();
    if (args.size() == 2 && args[0] == "lint") return quorbel_sim::lint(args[1]);
    if (args.size() == 1 && args[0] == "--version") {
        std::cout << "quorbel-sim " QUORBEL_VERSION_TEXT "\n";
        return 0;
    }
    std::cerr << kUsage;
    return kBadInput;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return dispatch(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const sim::ScenarioError& e) {
        std::cerr << "quorbel-sim: " << e.what() << "\n";
        return kBadInput;
    } catch (const std::exception& e) {
        std::cerr << "quorbel-sim: unexpected failure: " << e.what() << "\n";
    } catch (...) {
        std::cerr << "quorbel-sim: unexpected failure\n";
    }
    return 1;
}
