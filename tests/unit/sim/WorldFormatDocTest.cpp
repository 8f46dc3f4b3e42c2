// docs/world-format.md describes the files the runner reads: its world example must load, each
// of its calls must load into that world, and its transcript example must have the keys a
// played transcript has, so that the page and the loader cannot drift apart.
#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "native/RunScenario.h"
#include "sim/Json.h"
#include "sim/ScenarioLoader.h"

namespace {

// The ```json blocks of the page, in order.
std::vector<std::string> jsonBlocks() {
    std::ifstream in(std::string(QUORBEL_SOURCE_DIR) + "/docs/world-format.md");
    std::vector<std::string> blocks;
    std::string line, block;
    bool inside = false;
    while (std::getline(in, line)) {
        if (!inside && line == "```json") {
            inside = true;
            block.clear();
        } else if (inside && line == "```") {
            inside = false;
            blocks.push_back(block);
        } else if (inside) {
            block += line + "\n";
        }
    }
    return blocks;
}

std::set<std::string> keysOf(const sim::Json& object) {
    std::set<std::string> keys;
    for (const auto& [key, value] : object.items()) keys.insert(key);
    return keys;
}

TEST(WorldFormatDoc, ExamplesLoadAndMatchTheTranscript) {
    const auto blocks = jsonBlocks();
    ASSERT_EQ(blocks.size(), 3u) << "the world, the calls and the transcript";
    sim::Json world = sim::Json::parse(blocks[0]);
    world["calls"] = sim::Json::parse(blocks[1]);
    const auto scenario = sim::loadScenario(world.dump());
    ASSERT_EQ(scenario->calls.size(), world["calls"].size());

    const sim::Json documented = sim::Json::parse(blocks[2]);
    const sim::Json played = native::runScenarioText(world.dump());
    EXPECT_EQ(keysOf(documented), keysOf(played));
    EXPECT_EQ(keysOf(documented["calls"][0]), keysOf(played["calls"][0]));
}

}  // namespace
