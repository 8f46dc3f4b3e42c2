// Golden scenarios: every tests/scenarios/**/X.json with a sibling X.expected.json is played in
// this process and its transcript must equal the golden one (key order aside).
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "../CaseNames.h"
#include "native/RunScenario.h"
#include "sim/ScenarioLoader.h"

namespace {

namespace fs = std::filesystem;
using Plain = nlohmann::json;

const std::string kExpectedSuffix = ".expected.json";

bool endsWith(const std::string& text, const std::string& tail) {
    return text.size() >= tail.size() &&
           text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

fs::path scenariosRoot() {
    return fs::path(QUORBEL_SOURCE_DIR) / "tests" / "scenarios";
}

fs::path goldenOf(const fs::path& scenario) {
    const std::string name = scenario.filename().string();
    return scenario.parent_path() / (name.substr(0, name.size() - 5) + kExpectedSuffix);
}

std::vector<std::string> scenariosWithGoldens() {
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

// One line per difference, as a JSON patch from the golden to what was played.
std::string readableDiff(const Plain& expected, const Plain& actual) {
    std::string out;
    for (const auto& op : Plain::diff(expected, actual)) {
        const std::string path = op["path"];
        const Plain was = expected.contains(Plain::json_pointer(path))
                              ? expected.at(Plain::json_pointer(path))
                              : Plain();
        out += "  " + op["op"].get<std::string>() + " " + path;
        if (!was.is_null()) out += "\n      expected: " + was.dump();
        if (op.contains("value")) out += "\n      played:   " + op["value"].dump();
        out += "\n";
    }
    return out;
}

class Golden : public ::testing::TestWithParam<std::string> {};

TEST_P(Golden, TranscriptMatches) {
    const fs::path scenario = scenariosRoot() / GetParam();
    const Plain expected = Plain::parse(sim::readWholeFile(goldenOf(scenario).string()));
    const Plain actual =
        Plain::parse(native::runScenarioText(sim::readWholeFile(scenario.string())).dump());
    EXPECT_TRUE(expected == actual) << GetParam() << " differs from its golden:\n"
                                    << readableDiff(expected, actual);
}

// "dialog/open_and_exit.json" is the case dialog_open_and_exit.
std::string testName(const ::testing::TestParamInfo<std::string>& info) {
    return casos::nombreValido(info.param.substr(0, info.param.size() - 5));
}

INSTANTIATE_TEST_SUITE_P(Scenarios, Golden, ::testing::ValuesIn(scenariosWithGoldens()), testName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Golden);

TEST(GoldenScenarios, EveryGoldenHasItsScenario) {
    if (!fs::is_directory(scenariosRoot())) GTEST_SKIP();
    for (const auto& entry : fs::recursive_directory_iterator(scenariosRoot())) {
        const std::string name = entry.path().filename().string();
        if (!endsWith(name, kExpectedSuffix)) continue;
        const fs::path scenario = entry.path().parent_path() /
                                  (name.substr(0, name.size() - kExpectedSuffix.size()) + ".json");
        EXPECT_TRUE(fs::exists(scenario)) << entry.path() << " has no scenario beside it";
    }
}

}  // namespace
