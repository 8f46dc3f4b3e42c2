// The matrix against the plug-in itself: every cell of a world with varied MO_ lines is played
// on a cabinet of that door model carrying only the kind's marker child, as a real placement
// (exactly the kind's measures changed: the measures kept or restored) and as the special-editing
// dialog (the types it shows), and each must be what the cell says.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "lint/Matrix.h"
#include "native/RunScenario.h"
#include "rules/ExplicaDimension.h"
#include "rules/TablasDecision.h"
#include "sim/ScenarioLoader.h"
#include "vb/Strings.h"

namespace {

using sim::Json;

struct Placed {
    int id;
    std::string model;
    int kind;
};

// Standard measures of article B60 in the world, and the changed ones.
const std::map<int32_t, std::pair<std::string, std::string>> kMeasures = {
    {12, {"600", "650"}}, {13, {"560", "610"}}, {14, {"720", "770"}}};

// A cabinet for each door model and kind; `dialog`: the calls open the dialog and snapshot it,
// else they place the cabinet.
Json worldOfCells(std::vector<Placed>& placed, bool dialog) {
    std::ifstream in(std::string(QUORBEL_SOURCE_DIR) + "/tests/tools/matrix-world.json");
    std::stringstream text;
    text << in.rdbuf();
    Json world = Json::parse(text.str());
    world["application"]["files"]["C:\\Quorbel\\SPACE.INI"] = "[Local]\r\nCatalogsDir=C:\\Cat\r\n";
    world["scene"] = Json::array();
    world["calls"] = Json::array();
    int id = 100;
    for (const char* model : {"TIBER", "MONZA"}) {
        for (int k = 0; k < 7; ++k, id += 10) {
            Json info = {{"0", "cocinas"},
                         {"2", "40"},
                         {"7", "B60"},
                         {"8", "R" + std::to_string(id)},
                         {"64", model}};
            for (const auto& [code, values] : kMeasures) info[std::to_string(code)] = values.first;
            for (const int32_t m : rules::medidasDelTipo(k))
                if (!dialog) info[std::to_string(m)] = kMeasures.at(m).second;
            Json marker = {{"4", vb::toUtf8(rules::prefijoTipo(k)) + "01"}};
            if (dialog) {
                // The cabinet may vary every measure; its marker child is no component.
                for (const char* code : {"15", "16", "17"}) info[code] = "1";
                for (const char* code : {"15", "16", "17", "58", "59"}) marker[code] = "0";
            }
            world["scene"].push_back(
                {{"id", id}, {"info", info}, {"children", {{{"id", id + 1}, {"info", marker}}}}});
            Json call = {{"class", "Plugin"}, {"object", id}};
            call["method"] = dialog ? "OnObjectComponentsBefore" : "OnObjectPlaceAfter";
            if (dialog) call["ui"] = {{{"do", "snapshot"}}};
            world["calls"].push_back(call);
            placed.push_back({id, model, k});
        }
    }
    return world;
}

const lint::MatrixCell& cellOf(const std::vector<lint::CatalogueMatrix>& matrices,
                               const Placed& p) {
    for (const auto& r : matrices.at(0).rows)
        if (vb::toUtf8(r.model) == p.model) return r.cells.at(p.kind);
    throw std::runtime_error("no row " + p.model);
}

TEST(MatrixAgrees, WithWhatAPlacementKeeps) {
    std::vector<Placed> placed;
    const Json world = worldOfCells(placed, false);
    const auto matrices = lint::permissionMatrix(sim::loadScenario(world.dump())->world);
    ASSERT_EQ(matrices.size(), 1u);
    const Json transcript = native::runScenarioText(world.dump());
    ASSERT_EQ(transcript["calls"].size(), placed.size());
    int keptCount = 0;
    for (const auto& call : transcript["calls"]) EXPECT_TRUE(call["error"].is_null()) << call;
    for (const auto& p : placed) {
        bool kept = true;
        for (const int32_t m : rules::medidasDelTipo(p.kind)) {
            const Json& value = transcript["objects"][std::to_string(p.id)][std::to_string(m)];
            kept = kept && value == kMeasures.at(m).second;
        }
        keptCount += kept;
        EXPECT_EQ(cellOf(matrices, p).placementStays, kept)
            << p.model << ", kind " << vb::toUtf8(rules::nombreTipo(p.kind));
    }
    // The world has both outcomes, so the comparison cannot pass by a placement doing nothing.
    EXPECT_GT(keptCount, 0);
    EXPECT_LT(keptCount, static_cast<int>(placed.size()));
}

TEST(MatrixAgrees, WithWhatTheDialogOffers) {
    std::vector<Placed> placed;
    const Json world = worldOfCells(placed, true);
    const auto matrices = lint::permissionMatrix(sim::loadScenario(world.dump())->world);
    const Json transcript = native::runScenarioText(world.dump());
    ASSERT_EQ(transcript["calls"].size(), placed.size());
    int offered = 0;
    for (size_t i = 0; i < placed.size(); ++i) {
        const Json* shown = nullptr;
        for (const auto& event : transcript["calls"][i]["events"])
            if (event["type"] == "snapshot") shown = &event["controls"]["PictureEsp"];
        ASSERT_NE(shown, nullptr) << transcript["calls"][i];
        const bool visible = (*shown)[placed[i].kind]["visible"].get<bool>();
        offered += visible;
        EXPECT_EQ(cellOf(matrices, placed[i]).dialogOffers, visible)
            << placed[i].model << ", kind " << vb::toUtf8(rules::nombreTipo(placed[i].kind));
    }
    EXPECT_GT(offered, 0);
    EXPECT_LT(offered, static_cast<int>(placed.size()));
}

}  // namespace
