#include "Samples.h"

#include <fstream>
#include <string>
#include <system_error>

namespace quorbel_sim {

namespace fs = std::filesystem;

namespace {

const char* const kDemoList = "demo.list";

bool holdsSamples(const fs::path& folder) {
    std::error_code ec;
    return fs::is_regular_file(folder / "samples" / kDemoList, ec);
}

std::optional<fs::path> besideExecutable() {
    std::error_code ec;
    fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    if (ec) return std::nullopt;
    for (fs::path folder = exe.parent_path(); !folder.empty(); folder = folder.parent_path()) {
        if (holdsSamples(folder)) return folder / "samples";
        if (folder == folder.root_path()) break;
    }
    return std::nullopt;
}

std::string trimmed(const std::string& line) {
    const auto begin = line.find_first_not_of(" \t\r");
    if (begin == std::string::npos) return "";
    const auto end = line.find_last_not_of(" \t\r");
    return line.substr(begin, end - begin + 1);
}

}  // namespace

std::optional<fs::path> samplesFolder() {
    if (auto found = besideExecutable()) return found;
#ifdef QUORBEL_SOURCE_DIR
    if (holdsSamples(QUORBEL_SOURCE_DIR)) return fs::path(QUORBEL_SOURCE_DIR) / "samples";
#endif
    return std::nullopt;
}

std::vector<DemoRun> demoScenarios(const fs::path& samples) {
    const std::string explain = "explain ";
    std::vector<DemoRun> runs;
    std::ifstream list(samples / kDemoList);
    std::string line;
    while (std::getline(list, line)) {
        const std::string name = trimmed(line);
        if (name.empty() || name[0] == '#') continue;
        if (name.rfind(explain, 0) == 0) {
            runs.push_back({samples / trimmed(name.substr(explain.size())), true});
        } else {
            runs.push_back({samples / name, false});
        }
    }
    return runs;
}

}  // namespace quorbel_sim
