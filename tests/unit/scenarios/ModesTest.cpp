// The kept reads are invisible: every golden scenario and every sample played with reads kept
// for the call and played literally gives the same transcript apart from the host-call counts,
// and no host member is asked more often when reads are kept. Both play with explanations on,
// so that the decisions the trace names are the same in both modes too.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "ScenarioFiles.h"
#include "native/RunScenario.h"
#include "sim/ScenarioLoader.h"

namespace {

using namespace scenario_files;
using Plain = nlohmann::json;

Plain play(const std::string& text, host::ReadMode reads) {
    native::RunOptions options;
    options.reads = reads;
    options.explain = true;
    return Plain::parse(native::runScenarioText(text, options).dump());
}

// The transcript without its calls' host-call counts, which are returned apart, call by call.
Plain withoutHostCalls(Plain transcript, std::vector<Plain>& counts) {
    for (auto& call : transcript["calls"]) {
        counts.push_back(call["hostCalls"]);
        call.erase("hostCalls");
    }
    return transcript;
}

void expectFewerOrEqual(const std::vector<Plain>& cached, const std::vector<Plain>& literal) {
    ASSERT_EQ(cached.size(), literal.size());
    for (size_t i = 0; i < cached.size(); ++i) {
        for (const auto& [member, n] : cached[i].items()) {
            const int64_t asked = literal[i].value(member, int64_t{0});
            EXPECT_LE(n.get<int64_t>(), asked) << "call " << i << ": " << member;
        }
    }
}

class BothModes : public ::testing::TestWithParam<std::string> {};

TEST_P(BothModes, SameTranscriptAndNoMoreHostCalls) {
    const std::string text = sim::readWholeFile((sourceRoot() / GetParam()).string());
    std::vector<Plain> cachedCounts, literalCounts;
    const Plain cached = withoutHostCalls(play(text, host::ReadMode::Cached), cachedCounts);
    const Plain literal = withoutHostCalls(play(text, host::ReadMode::Literal), literalCounts);
    EXPECT_EQ(cached, literal) << GetParam() << ":\n" << Plain::diff(literal, cached).dump(2);
    expectFewerOrEqual(cachedCounts, literalCounts);
}

std::vector<std::string> everyScenario() {
    std::vector<std::string> all;
    for (const auto& golden : scenariosWithGoldens()) all.push_back("tests/scenarios/" + golden);
    for (const auto& sample : samples()) all.push_back(sample);
    return all;
}

std::string nameOf(const ::testing::TestParamInfo<std::string>& info) {
    return testName(info.param);
}

INSTANTIATE_TEST_SUITE_P(Scenarios, BothModes, ::testing::ValuesIn(everyScenario()), nameOf);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(BothModes);

}  // namespace
