#include "FaultSweep.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <random>
#include <set>

#include "Judge.h"
#include "Play.h"
#include "sim/ScenarioLoader.h"

namespace faults {

namespace {

namespace fs = std::filesystem;

constexpr sim::FaultKind kKinds[] = {sim::FaultKind::Raise, sim::FaultKind::EmptyText,
                                     sim::FaultKind::MinusOne, sim::FaultKind::HugeText};

bool endsWith(const std::string& text, const std::string& tail) {
    return text.size() >= tail.size() &&
           text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

void addScenario(const fs::path& file, const fs::path& root, std::vector<SweepScenario>& out) {
    out.push_back({fs::relative(file, root).generic_string(), sim::readWholeFile(file.string())});
}

void addFolder(const fs::path& folder, const fs::path& root, std::vector<SweepScenario>& out) {
    if (!fs::is_directory(folder)) return;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        if (entry.is_regular_file() && endsWith(name, ".json"))
            addScenario(entry.path(), root, out);
    }
}

// FNV-1a: a seed that stays the same for a scenario whatever else is swept.
uint32_t seedOf(const std::string& name) {
    uint32_t h = 2166136261u;
    for (const unsigned char c : name) h = (h ^ c) * 16777619u;
    return h;
}

// A run budget far above what any faulted run needs: the faults only shorten loops.
int64_t budgetFor(int64_t cleanCalls) {
    return 2 * cleanCalls + 1000;
}

}  // namespace

std::vector<SweepScenario> sweepScenarios(const std::string& sourceDir) {
    const fs::path root(sourceDir);
    std::vector<SweepScenario> out;
    const fs::path goldens = root / "tests" / "scenarios";
    if (fs::is_directory(goldens)) {
        for (const auto& entry : fs::recursive_directory_iterator(goldens)) {
            const std::string name = entry.path().filename().string();
            if (!entry.is_regular_file() || !endsWith(name, ".json") ||
                endsWith(name, ".expected.json"))
                continue;
            const fs::path golden =
                entry.path().parent_path() / (name.substr(0, name.size() - 5) + ".expected.json");
            if (fs::exists(golden)) addScenario(entry.path(), root, out);
        }
    }
    addFolder(root / "samples", root, out);
    addFolder(root / "samples" / "dialog", root, out);
    std::sort(out.begin(), out.end(),
              [](const SweepScenario& a, const SweepScenario& b) { return a.name < b.name; });
    return out;
}

std::vector<int64_t> callsToFail(const std::string& name, const std::vector<const char*>& trace,
                                 Share share) {
    const auto total = static_cast<int64_t>(trace.size());
    std::set<int64_t> calls;
    if (share == Share::Every || (share == Share::Sampled && trace.size() <= kEveryUpTo)) {
        for (int64_t k = 1; k <= total; ++k) calls.insert(k);
        return {calls.begin(), calls.end()};
    }
    std::map<std::string, std::pair<int64_t, int64_t>> firstAndLast;
    for (int64_t k = 1; k <= total; ++k) {
        auto [it, added] = firstAndLast.try_emplace(trace[static_cast<size_t>(k - 1)], k, k);
        if (!added) it->second.second = k;
    }
    for (const auto& [member, range] : firstAndLast) {
        calls.insert(range.first);
        calls.insert(range.second);
    }
    if (share == Share::Sampled) {
        std::mt19937 draw(seedOf(name));
        while (calls.size() < kSampled)
            calls.insert(1 + static_cast<int64_t>(draw() % trace.size()));
    }
    return {calls.begin(), calls.end()};
}

void sweep(const SweepScenario& scenario, Share share, Figures& figures,
           const std::function<void(const std::string&)>& beforeRun) {
    std::vector<const char*> trace;
    beforeRun(scenario.name + " without a fault");
    // Loaded once: each run copies the world instead of reading the file again.
    const auto loaded = sim::loadScenario(scenario.text);
    const Played clean = play(*loaded, {{}, 0, &trace, nullptr});
    ++figures.scenarios;
    figures.hostCalls += clean.hostCalls;
    for (const std::string& p : clean.problems)
        figures.findings.push_back(scenario.name + " without a fault: " + p);
    const int64_t budget = budgetFor(clean.hostCalls);
    for (const int64_t k : callsToFail(scenario.name, trace, share)) {
        for (const sim::FaultKind kind : kKinds) {
            const std::string run =
                scenario.name + " " + std::to_string(k) + ":" + sim::faultKindName(kind);
            beforeRun(run);
            sim::FaultPlan plan;
            plan.counted.push_back({k, kind});
            const Played faulted = play(*loaded, {plan, budget, nullptr, &clean.start});
            ++figures.runs;
            ++figures.outcomes[std::string(sim::faultKindName(kind)) + " " + outcome(faulted)];
            for (const std::string& p : judge(clean, faulted, k, kind, budget))
                figures.findings.push_back(run + ": " + p);
        }
    }
}

}  // namespace faults
