// quorbel-sim: plays scenario files against the plug-in in a simulated host.
//   quorbel-sim run FILE             the transcript as JSON
//   quorbel-sim run --text FILE      the same for a person
//   quorbel-sim run --literal FILE   the host asked at every step (reads not kept for the call)
//   quorbel-sim demo                 the bundled sample world, as text
// Exit codes: 0 played, 2 bad input or usage, 1 an unexpected failure of the runner itself.
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "Samples.h"
#include "native/RunScenario.h"
#include "sim/ScenarioLoader.h"
#include "sim/TextReport.h"

namespace {

constexpr int kBadInput = 2;

const char* const kUsage =
    "usage: quorbel-sim run [--text] [--literal] FILE\n"
    "       quorbel-sim demo\n";

std::string jsonText(const sim::Json& transcript) {
    return transcript.dump(2, ' ', false, sim::Json::error_handler_t::replace) + "\n";
}

int usage() {
    std::cerr << kUsage;
    return kBadInput;
}

int run(const std::vector<std::string>& args) {
    if (args.empty()) return usage();
    bool text = false;
    bool literal = false;
    for (size_t i = 0; i + 1 < args.size(); ++i) {
        if (args[i] == "--text" && !text) {
            text = true;
        } else if (args[i] == "--literal" && !literal) {
            literal = true;
        } else {
            return usage();
        }
    }
    const std::string& file = args.back();
    const auto reads = literal ? host::ReadMode::Literal : host::ReadMode::Cached;
    const sim::Json transcript = native::runScenarioText(sim::readWholeFile(file), reads);
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
