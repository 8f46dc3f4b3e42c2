// fault-sweep: plays every golden scenario and sample with the simulated host failing each of
// its calls in turn (see FaultSweep.h) and prints what it found.
//   fault-sweep [--every | --members] [--only TEXT] [--part I/N]
// Without an option, scenarios of more than 300 host calls have a fixed sample of their calls
// failed (the CI share); --every fails every call, --members only each member's first and last
// call (the share the sanitizer build plays, after the plain build played the CI share); --only
// keeps the scenarios whose name contains TEXT; --part I/N keeps every N-th scenario from the I-th
// on (1 <= I <= N), so that N processes share a sweep. Exit codes: 0 nothing found, 1 findings, 2
// bad usage. A crash names the run it happened in.
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <iostream>
#include <string>

#include "FaultSweep.h"

namespace {

constexpr size_t kFindingsShown = 40;

char currentRun[512] = "";

void onCrash(int signal) {
    const char head[] = "fault-sweep: crashed in ";
    [[maybe_unused]] auto a = write(STDERR_FILENO, head, sizeof head - 1);
    [[maybe_unused]] auto b = write(STDERR_FILENO, currentRun, strlen(currentRun));
    [[maybe_unused]] auto c = write(STDERR_FILENO, "\n", 1);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void noteRun(const std::string& run) {
    std::snprintf(currentRun, sizeof currentRun, "%s", run.c_str());
}

struct Part {
    size_t index = 0;  // from 0
    size_t count = 1;
};

// "I/N" with 1 <= I <= N.
bool readPart(const std::string& text, Part& part) {
    size_t i = 0, n = 0;
    char slash = 0, rest = 0;
    if (std::sscanf(text.c_str(), "%zu%c%zu%c", &i, &slash, &n, &rest) != 3 || slash != '/')
        return false;
    if (i < 1 || i > n) return false;
    part = {i - 1, n};
    return true;
}

const char* shareName(faults::Share share) {
    switch (share) {
        case faults::Share::Members:
            return "each member's first and last call";
        case faults::Share::Sampled:
            return "sampled";
        case faults::Share::Every:
            return "every call";
    }
    return "";
}

int sweepAll(faults::Share share, const std::string& only, Part part) {
    const auto start = std::chrono::steady_clock::now();
    faults::Figures figures;
    const auto scenarios = faults::sweepScenarios(QUORBEL_SOURCE_DIR);
    for (size_t i = 0; i < scenarios.size(); ++i) {
        const auto& scenario = scenarios[i];
        if (i % part.count != part.index) continue;
        if (scenario.name.find(only) == std::string::npos) continue;
        faults::sweep(scenario, share, figures, noteRun);
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    for (size_t i = 0; i < figures.findings.size() && i < kFindingsShown; ++i)
        std::cout << "finding: " << figures.findings[i] << "\n";
    for (const auto& [what, runs] : figures.outcomes)
        std::printf("  %-20s %zu runs\n", what.c_str(), runs);
    std::printf(
        "fault sweep (%s): %zu scenarios, %lld host calls without faults, %zu faulted runs, "
        "%.1f s, %zu findings\n",
        shareName(share), figures.scenarios, static_cast<long long>(figures.hostCalls),
        figures.runs, took.count(), figures.findings.size());
    return figures.findings.empty() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    for (const int s : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS, SIGILL}) std::signal(s, onCrash);
    faults::Share share = faults::Share::Sampled;
    std::string only;
    Part part;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--every") {
            share = faults::Share::Every;
        } else if (a == "--members") {
            share = faults::Share::Members;
        } else if (a == "--only" && i + 1 < argc) {
            only = argv[++i];
        } else if (a == "--part" && i + 1 < argc && readPart(argv[i + 1], part)) {
            ++i;
        } else {
            std::cerr << "usage: fault-sweep [--every | --members] [--only TEXT] [--part I/N]\n";
            return 2;
        }
    }
    try {
        return sweepAll(share, only, part);
    } catch (const std::exception& e) {
        std::cerr << "fault-sweep: " << currentRun << ": " << e.what() << "\n";
    }
    return 1;
}
