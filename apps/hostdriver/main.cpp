// hostdriver: plays a scenario file through the real Quorbel.dll, as `quorbel-sim run FILE`
// plays it through the native shell, and prints the same transcript.
//   hostdriver [FAULT OPTION...] FILE
//   hostdriver --memory [FAULT OPTION...] FILE
//   hostdriver --time [FAULT OPTION...] FILE
// The plug-in is the Quorbel.dll beside this program; the scenario's files are laid out on
// drive C: of the machine it runs on (a throw-away Wine prefix). The fault options are the
// native runner's (sim/Faults.h): the simulated host fails in the same way behind COM. With
// --memory no transcript is kept: the output is the figures of the process's private memory over
// the run (see Lifetime.h). --time also writes, on standard error, the wall-clock time of each
// call through the DLL ("<method> <milliseconds> ms"), for measuring the real boundary by hand.
// After the run the driver checks the plug-in's object lifetime: no host object held after a
// call, and DllCanUnloadNow answering S_OK once the driver has released its instances.
// Exit codes: 0 played, 2 bad input or usage, 1 a failure of the driver itself or of the
// plug-in's object lifetime; anything else is a crash. Every non-zero exit says why on stderr.
#include <fcntl.h>
#include <io.h>
#include <objbase.h>

#include <chrono>
#include <cstdio>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "ComPlayer.h"
#include "HostServer.h"
#include "LastWords.h"
#include "Lifetime.h"
#include "Machine.h"
#include "MessageBoxHook.h"
#include "sim/ScenarioLoader.h"

namespace {

constexpr int kBadInput = 2;

struct Options {
    bool memory = false;
    bool timed = false;
    sim::FaultPlan faults;
    std::string file;
};

std::wstring pluginBesideProgram() {
    wchar_t path[MAX_PATH * 4];
    std::wstring self(path, GetModuleFileNameW(nullptr, path, MAX_PATH * 4));
    return self.substr(0, self.find_last_of(L"\\/") + 1) + L"Quorbel.dll";
}

class Apartment {
  public:
    Apartment() {
        if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)))
            throw std::runtime_error("cannot enter a single-threaded apartment");
    }
    ~Apartment() { CoUninitialize(); }
};

// Between two events the host's own message loop runs: what a call left in the thread's queue
// (notifications of the attribute window it made and destroyed, of the hooks) is handled there,
// not piled up for the whole run.
void pumpMessages() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

// Plays one call; with `timed`, reports how long it took.
void playCall(hostdriver::ComPlayer& player, const sim::CallSpec& call, bool timed) {
    const auto start = std::chrono::steady_clock::now();
    player.play(call);
    if (!timed) return;
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    std::cerr << call.method << " " << took.count() << " ms\n";
}

// One call after another; with --memory the recorded calls are dropped as they come.
void playCalls(sim::Simulation& simulation, const sim::Scenario& scenario, const Options& options,
               hostdriver::Lifetime& lifetime) {
    hostdriver::ComPlayer player(simulation);
    for (size_t i = 0; i < scenario.calls.size(); ++i) {
        const sim::CallSpec& call = scenario.calls[i];
        hostdriver::noteActivity("call " + std::to_string(i) + ": " + call.className + "." +
                                 call.method);
        playCall(player, call, options.timed);
        pumpMessages();
        lifetime.afterCall(i, simulation.state());
        if (options.memory) simulation.recorder().forgetCalls();
    }
    lifetime.whileHeld();
    hostdriver::noteActivity("the release of the plug-in's instances");
}

sim::Json play(sim::Scenario& scenario, const Options& options, hostdriver::Lifetime& lifetime) {
    sim::Simulation simulation(std::move(scenario.world));
    simulation.state().resourceWriter = hostdriver::writeResourceFile;
    simulation.state().faults = options.faults;
    const auto& application = simulation.world().application;
    hostdriver::noteActivity("the set-up of the machine");
    hostdriver::layOutFiles(simulation.world().files);
    hostdriver::installPlugin(pluginBesideProgram(), application.moduleDir);
    hostdriver::setUserDecimalSeparator(application.decimalSeparator);
    hostdriver::HostServer server(simulation.state());
    hostdriver::MessageBoxHook boxes(simulation.recorder());
    if (options.memory) lifetime.measureMemory();
    playCalls(simulation, scenario, options, lifetime);
    lifetime.afterRelease();
    return options.memory ? lifetime.memoryFigures() : simulation.transcript();
}

int run(const Options& options) {
    auto scenario = sim::loadScenario(sim::readWholeFile(options.file));
    Apartment apartment;
    hostdriver::Lifetime lifetime;
    const sim::Json output = play(*scenario, options, lifetime);
    hostdriver::noteActivity("the output");
    std::cout << output.dump(2, ' ', false, sim::Json::error_handler_t::replace) << "\n";
    std::cout.flush();
    for (const std::string& problem : lifetime.problems())
        std::cerr << "hostdriver: " << problem << "\n";
    return lifetime.problems().empty() ? 0 : 1;
}

// Raises std::invalid_argument for a bad command line.
Options readOptions(std::vector<std::string> args) {
    Options options;
    while (!args.empty() && (args.front() == "--memory" || args.front() == "--time")) {
        (args.front() == "--memory" ? options.memory : options.timed) = true;
        args.erase(args.begin());
    }
    sim::takeFaultOptions(args, options.faults);
    if (args.size() != 1 || args.front().rfind("--", 0) == 0)
        throw std::invalid_argument("one scenario file expected");
    options.file = args.front();
    return options;
}

int runFrom(const std::vector<std::string>& args) {
    Options options;
    try {
        options = readOptions(args);
    } catch (const std::invalid_argument& e) {
        std::cerr << "hostdriver: " << e.what() << "\n"
                  << "usage: hostdriver [--memory] [--time] [FAULT OPTION...] FILE\n"
                  << sim::kFaultOptionsUsage;
        return kBadInput;
    }
    try {
        return run(options);
    } catch (const sim::ScenarioError& e) {
        std::cerr << "hostdriver: " << e.what() << "\n";
        return kBadInput;
    } catch (const std::exception& e) {
        std::cerr << "hostdriver: unexpected failure: " << e.what() << "\n";
    } catch (...) {
        std::cerr << "hostdriver: unexpected failure\n";
    }
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    hostdriver::installLastWords();
    _setmode(_fileno(stdout), _O_BINARY);  // the transcript's line ends as the native runner's
    const int code = runFrom(std::vector<std::string>(argv + 1, argv + argc));
    std::cerr.flush();
    hostdriver::mainReturning();
    return code;
}
