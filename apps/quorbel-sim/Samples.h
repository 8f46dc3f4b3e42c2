#pragma once
// Where the bundled sample world lies: samples/ of the source checkout that holds the
// executable, else of the checkout it was built from.
#include <filesystem>
#include <optional>
#include <vector>

namespace quorbel_sim {

std::optional<std::filesystem::path> samplesFolder();

// The scenario files named in samples/demo.list, in order (blank lines and "#" lines skipped).
std::vector<std::filesystem::path> demoScenarios(const std::filesystem::path& samples);

}  // namespace quorbel_sim
