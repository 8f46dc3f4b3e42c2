#include "Medida.h"

#include <malloc.h>
#include <sys/resource.h>
#include <time.h>

#include <algorithm>
#include <fstream>
#include <string>

#include "native/SimPlatform.h"
#include "sim/Player.h"

namespace bench {

void Medida::suma(const Medida& otra) {
    segundos += otra.segundos;
    llamadas += otra.llamadas;
    picoMB = std::max(picoMB, otra.picoMB);
    dialogos += otra.dialogos;
}

bool reiniciaPico() {
    malloc_trim(0);
    std::ofstream clear("/proc/self/clear_refs");
    clear << "5";
    return static_cast<bool>(clear.flush());
}

double picoMB() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind("VmHWM:", 0) == 0) return std::stod(line.substr(6)) / 1024.0;
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024.0;  // kilobytes on Linux
}

namespace {

// CPU time of this thread: the machine's other work does not count.
double segundosCpu() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
}

}  // namespace

Medida juega(sim::World world, const sim::CallSpec& call, host::ReadMode modo) {
    sim::Simulation simulation(std::move(world));
    native::SimPlatform platform(simulation);
    sim::Player player(simulation, platform, modo);
    const double start = segundosCpu();
    player.play(call);
    Medida m;
    m.segundos = segundosCpu() - start;
    const auto& played = simulation.recorder().calls().back();
    for (const auto& [member, n] : played["hostCalls"].items()) m.llamadas += n.get<int64_t>();
    for (const auto& event : played["events"]) m.dialogos += event["type"] == "dialogShown" ? 1 : 0;
    m.picoMB = picoMB();
    return m;
}

}  // namespace bench
