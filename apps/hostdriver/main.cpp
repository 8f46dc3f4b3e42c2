// hostdriver: plays a scenario file through the real Quorbel.dll, as `quorbel-sim run FILE`
// plays it through the native shell, and prints the same transcript.
//   hostdriver [--time] FILE
// --time also writes, on standard error, the wall-clock time of each call through the DLL
// ("<method> <milliseconds> ms"), for measuring the real boundary by hand.
// The plug-in is the Quorbel.dll beside this program; the scenario's files are laid out on
// drive C: of the machine it runs on (a throw-away Wine prefix).
// Exit codes: 0 played, 2 bad input or usage, 1 an unexpected failure of the driver itself.
#include <fcntl.h>
#include <io.h>
#include <objbase.h>

#include <chrono>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>

#include "ComPlayer.h"
#include "HostServer.h"
#include "Machine.h"
#include "MessageBoxHook.h"
#include "sim/ScenarioLoader.h"

namespace {

constexpr int kBadInput = 2;

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

// Plays one call; with `timed`, reports how long it took.
void playCall(hostdriver::ComPlayer& player, const sim::CallSpec& call, bool timed) {
    const auto start = std::chrono::steady_clock::now();
    player.play(call);
    if (!timed) return;
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    std::cerr << call.method << " " << took.count() << " ms\n";
}

sim::Json play(sim::Scenario& scenario, bool timed) {
    sim::Simulation simulation(std::move(scenario.world));
    simulation.state().resourceWriter = hostdriver::writeResourceFile;
    const auto& application = simulation.world().application;
    hostdriver::layOutFiles(simulation.world().files);
    hostdriver::installPlugin(pluginBesideProgram(), application.moduleDir);
    hostdriver::setUserDecimalSeparator(application.decimalSeparator);
    hostdriver::HostServer server(simulation.state());
    hostdriver::MessageBoxHook boxes(simulation.recorder());
    {
        hostdriver::ComPlayer player(simulation);
        for (const auto& call : scenario.calls) playCall(player, call, timed);
    }
    return simulation.transcript();
}

int run(const std::string& file, bool timed) {
    auto scenario = sim::loadScenario(sim::readWholeFile(file));
    Apartment apartment;
    const sim::Json transcript = play(*scenario, timed);
    std::cout << transcript.dump(2, ' ', false, sim::Json::error_handler_t::replace) << "\n";
    std::cout.flush();
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    _setmode(_fileno(stdout), _O_BINARY);  // the transcript's line ends as the native runner's
    const bool timed = argc == 3 && std::string(argv[1]) == "--time";
    if (argc != 2 && !timed) {
        std::cerr << "usage: hostdriver [--time] FILE\n";
        return kBadInput;
    }
    try {
        return run(argv[argc - 1], timed);
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
