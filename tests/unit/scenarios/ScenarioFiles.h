#pragma once
// The scenario files the scenario tests play: the goldens under tests/scenarios (every X.json
// with an X.expected.json beside it) and the samples.
#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "../CaseNames.h"

namespace scenario_files {

namespace fs = std::filesystem;

inline const std::string kExpectedSuffix = ".expected.json";

inline bool endsWith(const std::string& text, const std::string& tail) {
    return text.size() >= tail.size() &&
           text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

inline fs::path sourceRoot() {
    return fs::path(QUORBEL_SOURCE_DIR);
}

inline fs::path scenariosRoot() {
    return sourceRoot() / "tests" / "scenarios";
}

inline fs::path goldenOf(const fs::path& scenario) {
    const std::string name = scenario.filename().string();
    return scenario.parent_path() / (name.substr(0, name.size() - 5) + kExpectedSuffix);
}

// Relative to tests/scenarios, sorted.
inline std::vector<std::string> scenariosWithGoldens() {
    std::vector<std::string> found;
    if (!fs::is_directory(scenariosRoot())) return found;
    for (const auto& entry : fs::recursive_directory_iterator(scenariosRoot())) {
        const std::string name = entry.path().filename().string();
        if (!entry.is_regular_file() || !endsWith(name, ".json") || endsWith(name, kExpectedSuffix))
            continue;
        if (fs::exists(goldenOf(entry.path())))
            found.push_back(fs::relative(entry.path(), scenariosRoot()).generic_string());
    }
    std::sort(found.begin(), found.end());
    return found;
}

// samples/*.json and samples/dialog/*.json, relative to the source root, sorted.
inline std::vector<std::string> samples() {
    std::vector<std::string> found;
    for (const char* folder : {"samples", "samples/dialog"}) {
        const fs::path dir = sourceRoot() / folder;
        if (!fs::is_directory(dir)) continue;
        for (const auto& entry : fs::directory_iterator(dir)) {
            if (entry.is_regular_file() && entry.path().extension() == ".json")
                found.push_back(fs::relative(entry.path(), sourceRoot()).generic_string());
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

// A test name from a file name: "dialog/open_and_exit.json" is dialog_open_and_exit.
inline std::string testName(const std::string& path) {
    return casos::nombreValido(path.substr(0, path.size() - 5));
}

}  // namespace scenario_files
