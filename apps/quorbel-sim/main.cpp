// quorbel-sim: plays scenario files against the plug-in in a simulated host.
//   quorbel-sim run FILE             the transcript as JSON
//   quorbel-sim run --text FILE      the same for a person
//   quorbel-sim run --explain FILE   with each call's decisions and why
//   quorbel-sim run --literal FILE   the host asked at every step (reads not kept for the call)
//   quorbel-sim run --fault K:KIND | --refuse PROGID | --missing MEMBER ... FILE
//                                    the same with the simulated host failing (sim/Faults.h)
//   quorbel-sim demo                 the bundled sample world, as text
//   quorbel-sim lint FILE            the rule-table check of the scenario's catalogues
//   quorbel-sim matrix [--html] FILE the permission matrix of its catalogues, as text or a page
//   quorbel-sim --version            the project's version
//   quorbel-sim --help               this usage, on standard output
// Exit codes: 0 played, 2 bad input or usage, 1 an unexpected failure of the runner itself;
// lint: 0 no finding, 1 findings, 2 bad input or usage.
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "LintCommand.h"
#include "MatrixCommand.h"
#include "QuorbelVersion.h"
#include "Samples.h"
#include "native/RunScenario.h"
#include "sim/ScenarioLoader.h"
#include "sim/TextReport.h"

namespace {

constexpr int kBadInput = 2;

const char* const kUsage =
    "usage: quorbel-sim run [--text] [--explain] [--literal] [FAULT OPTION...] FILE\n"
    "       quorbel-sim demo\n"
    "       quorbel-sim lint FILE\n"
    "       quorbel-sim matrix [--html] FILE\n"
    "       quorbel-sim --version\n"
    "       quorbel-sim --help\n";

std::string jsonText(const sim::Json& transcript) {
    return transcript.dump(2, ' ', false, sim::Json::error_handler_t::replace) + "\n";
}

int usage() {
    std::cerr << kUsage << sim::kFaultOptionsUsage;
    return kBadInput;
}

// A usage mistake, named, then the usage.
int usage(const std::string& mistake) {
    std::cerr << "quorbel-sim: " << mistake << "\n";
    return usage();
}

int help() {
    std::cout << kUsage << sim::kFaultOptionsUsage;
    return 0;
}

bool isOption(const std::string& arg) {
    return arg.size() > 1 && arg[0] == '-';
}

int run(std::vector<std::string> args) {
    native::RunOptions options;
    try {
        sim::takeFaultOptions(args, options.faults);
    } catch (const std::invalid_argument& e) {
        return usage(e.what());
    }
    if (args.empty()) return usage("run needs a scenario file");
    if (isOption(args.back())) return usage("run needs a scenario file after " + args.back());
    bool text = false;
    bool literal = false;
    for (size_t i = 0; i + 1 < args.size(); ++i) {
        if (args[i] == "--text" && !text) {
            text = true;
        } else if (args[i] == "--explain" && !options.explain) {
            options.explain = true;
        } else if (args[i] == "--literal" && !literal) {
            literal = true;
        } else if (isOption(args[i])) {
            return usage("unknown or repeated option " + args[i]);
        } else {
            return usage("run takes one scenario file, not " + args[i] + " as well");
        }
    }
    if (literal) options.reads = host::ReadMode::Literal;
    const std::string& file = args.back();
    const sim::Json transcript =
        native::runScenario(std::move(*sim::loadScenarioFile(file)), options);
    std::cout << (text ? sim::textReport(transcript) : jsonText(transcript));
    return 0;
}

int demo() {
    const auto samples = quorbel_sim::samplesFolder();
    if (!samples) {
        std::cerr << "quorbel-sim: no samples/demo.list found beside the program or its sources\n";
        return kBadInput;
    }
    const auto runs = quorbel_sim::demoScenarios(*samples);
    if (runs.empty()) {
        std::cerr << "quorbel-sim: " << (*samples / "demo.list").string() << " names no scenario\n";
        return kBadInput;
    }
    for (const auto& demoRun : runs) {
        const std::string title =
            "== " + demoRun.file.filename().string() + (demoRun.explained ? ", explained " : " ");
        std::cout << title << std::string(title.size() < 72 ? 72 - title.size() : 0, '=') << "\n\n";
        native::RunOptions options;
        options.explain = demoRun.explained;
        const std::string text = sim::readWholeFile(demoRun.file.string());
        std::cout << sim::textReport(native::runScenarioText(text, options)) << "\n";
    }
    return 0;
}

// lint FILE, matrix [--html] FILE.
int checkCommand(const std::string& command, std::vector<std::string> args) {
    bool html = false;
    if (command == "matrix" && !args.empty() && args[0] == "--html") {
        html = true;
        args.erase(args.begin());
    }
    for (const auto& arg : args)
        if (isOption(arg)) return usage("unknown option " + arg + " for " + command);
    if (args.size() != 1) return usage(command + " takes one scenario file");
    return command == "lint" ? quorbel_sim::lint(args[0]) : quorbel_sim::matrix(args[0], html);
}

int dispatch(const std::vector<std::string>& args) {
    if (args.empty()) return usage();
    const std::string& command = args[0];
    const std::vector<std::string> rest(args.begin() + 1, args.end());
    for (const auto& arg : args)
        if (arg == "--help" || arg == "-h") return help();
    if (command == "run") return run(rest);
    if (command == "lint" || command == "matrix") return checkCommand(command, rest);
    if (command == "demo") return rest.empty() ? demo() : usage("demo takes no argument");
    if (command == "--version" && rest.empty()) {
        std::cout << "quorbel-sim " QUORBEL_VERSION_TEXT "\n";
        return 0;
    }
    if (isOption(command)) return usage("unknown option " + command);
    return usage("unknown command " + command);
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
