#pragma once
// Where the bundled sample world lies: samples/ of the source checkout that holds the
// executable, else of the checkout it was built from.
#include <filesystem>
#include <optional>
#include <vector>

namespace quorbel_sim {

std::optional<std::filesystem::path> samplesFolder();

struct DemoRun {
    std::filesystem::path file;
    bool explained = false;  // played with each call's decisions and why
};

// The runs samples/demo.list names, in order: one scenario file per line, "explain FILE" for a
// run with its explanations (blank lines and "#" lines skipped).
std::vector<DemoRun> demoScenarios(const std::filesystem::path& samples);

}  // namespace quorbel_sim
