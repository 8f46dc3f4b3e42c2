// quorbel-sim: plays scenario files against the plug-in in a simulated host.
//   quorbel-sim run FILE          the transcript as JSON
//   quorbel-sim run --text FILE   the same for a person
//   quorbel-sim run --fault K:KIND | --refuse PROGID | --missing MEMBER ... FILE
//                                 the same with the simulated host failing (sim/Faults.h)
//   quorbel-sim demo              the bundled sample world, as text
// Exit codes: 0 played, 2 bad input or usage, 1 an unexpected failure of the runner itself.
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "Samples.h"
#include "native/RunScenario.h"
#include "sim/ScenarioLoader.h"
#include "sim/TextReport.h"

namespace {

constexpr int kBadInput = 2;

const char* const kUsage =
    "usage: quorbel-sim run [--text] [FAULT OPTION...] FILE\n"
    "       quorbel-sim demo\n";

std::string jsonText(const sim::Json& transcript) {
    return transcript.dump(2, ' ', false, sim::Json::error_handler_t::replace) + "\n";
}

int usage() {
    std::cerr << kUsage << sim::kFaultOptionsUsage;
    return kBadInput;
}

int run(std::vector<std::string> args) {
    sim::FaultPlan faults;
    try {
        sim::takeFaultOptions(args, faults);
    } catch (const std::invalid_argument& e) {
        std::cerr << "quorbel-sim: " << e.what() << "\n";
        return usage();
    }
    const bool text = args.size() == 2 && args[0] == "--text";
    if (args.size() != 1 && !text) return usage();
    const std::string& file = args.back();
    const sim::Json transcript = native::runScenarioText(sim::readWholeFile(file), faults);
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
    return usage();
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
