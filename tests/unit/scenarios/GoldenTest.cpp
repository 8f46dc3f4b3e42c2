// Golden scenarios: every tests/scenarios/**/X.json with a sibling X.expected.json is played in
// this process and its transcript must equal the golden one (key order aside). They are played
// in the literal reading mode: their host-call counts pin the procedures' own steps.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "ScenarioFiles.h"
#include "native/RunScenario.h"
#include "sim/ScenarioLoader.h"

namespace {

using namespace scenario_files;
using Plain = nlohmann::json;

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
    native::RunOptions literal;
    literal.reads = host::ReadMode::Literal;
    const Plain actual = Plain::parse(
        native::runScenarioText(sim::readWholeFile(scenario.string()), literal).dump());
    EXPECT_TRUE(expected == actual) << GetParam() << " differs from its golden:\n"
                                    << readableDiff(expected, actual);
}

// "dialog/open_and_exit.json" is the case dialog_open_and_exit.
std::string nameOf(const ::testing::TestParamInfo<std::string>& info) {
    return testName(info.param);
}

INSTANTIATE_TEST_SUITE_P(Scenarios, Golden, ::testing::ValuesIn(scenariosWithGoldens()), nameOf);
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
