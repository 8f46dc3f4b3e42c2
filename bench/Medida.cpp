#include "Medida.h"

#include <malloc.h>
#include <sys/resource.h>
#include <time.h>

#include <algorithm>
#include <fstream>
#include <string>

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

Partida::Partida(host::ReadMode modo)
    : simulation_(sim::World{}), platform_(simulation_), player_(simulation_, platform_, modo) {}

Medida Partida::juega(sim::World world, const sim::CallSpec& call) {
    simulation_.world() = std::move(world);
    const double start = segundosCpu();
    player_.play(call);
    Medida m;
    m.segundos = segundosCpu() - start;
    const auto& played = simulation_.recorder().calls().back();
    for (const auto& [member, n] : played["hostCalls"].items()) m.llamadas += n.get<int64_t>();
    for (const auto& event : played["events"]) m.dialogos += event["type"] == "dialogShown" ? 1 : 0;
    m.picoMB = picoMB();
    // The world goes before the next one is built, so that a peak holds one world; no catalogue
    // of it may stay current.
    simulation_.world() = sim::World{};
    simulation_.state().currentCatalog = nullptr;
    simulation_.recorder().forgetCalls();
    return m;
}

}  // namespace bench
