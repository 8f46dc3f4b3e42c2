// The trace for catalogue authors: it changes nothing a call does, and it names the decisions
// the rules took, call by call.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "ScenarioFiles.h"
#include "native/RunScenario.h"
#include "sim/ScenarioLoader.h"

namespace {

using namespace scenario_files;
using Plain = nlohmann::json;

Plain play(const fs::path& scenario, bool explain) {
    native::RunOptions options;
    options.explain = explain;
    return Plain::parse(
        native::runScenarioText(sim::readWholeFile(scenario.string()), options).dump());
}

// Every scenario file that the goldens or the demo play, and the worlds of the trace's own cases.
std::vector<fs::path> playedScenarios() {
    std::vector<fs::path> found;
    for (const auto& golden : scenariosWithGoldens()) found.push_back(scenariosRoot() / golden);
    for (const auto& sample : samples()) found.push_back(sourceRoot() / sample);
    for (const auto& entry : fs::directory_iterator(sourceRoot() / "tests" / "explain"))
        if (entry.path().extension() == ".json") found.push_back(entry.path());
    return found;
}

TEST(Explain, ChangesNothingTheCallsDo) {
    for (const auto& scenario : playedScenarios()) {
        Plain explained = play(scenario, true);
        for (auto& call : explained["calls"]) {
            ASSERT_TRUE(call.contains("explain")) << scenario;
            call.erase("explain");
        }
        EXPECT_EQ(play(scenario, false), explained) << scenario;
    }
}

struct Decision {
    const char* scenario;
    size_t call;
    const char* says;
};

class Explains : public ::testing::TestWithParam<Decision> {};

TEST_P(Explains, TheDecision) {
    const Decision& d = GetParam();
    const Plain transcript = play(sourceRoot() / d.scenario, true);
    ASSERT_LT(d.call, transcript["calls"].size());
    std::string all;
    for (const auto& line : transcript["calls"][d.call]["explain"])
        all += line.get<std::string>() + "\n";
    EXPECT_NE(all.find(d.says), std::string::npos) << d.scenario << " explains:\n" << all;
}

const Decision kDecisions[] = {
    {"samples/04_colocacion_rechazada.json", 0,
     "Width: kind ANCHO (line MO_EA) decides, as child 101 carries the marker \"EA_\"; door model "
     "\"TIBER\" is row 1 of the permission matrix (table 8's door models in order); MO_EA does not "
     "permit it: the width is refused."},
    {"samples/04_colocacion_rechazada.json", 0,
     "Width restored to the catalogue's \"600\"; the cabinet's reference joins the refused ones."},
    {"samples/03_colocacion_permitida_excepcion.json", 0,
     "exception list EX_EA is searched for reference \"B45-TIBER\" (child 121 carries the marker "
     "\"EA_\"); it is listed, so the width may stay."},
    {"samples/06_dialogo_atributos.json", 0,
     "Depth may stay: no child of the cabinet carries the marker \"EF_\", so no door-model "
     "permission applies."},
    {"tests/scenarios/rules/scene_prepares_on_catalogue_change.json", 0,
     "Object 130 is not checked: its catalogue number \"X\" is not a number."},
    {"tests/scenarios/rules/scene_prepares_on_catalogue_change.json", 0,
     "Object 110, catalogue number 31, as the object before: the rules prepared for it are used "
     "again."},
    {"tests/scenarios/rules/place_st_notice.json", 0,
     "Door model \"TIBER ST\" belongs to the ST programme: notice TR_9021 shown."},
    {"tests/scenarios/wizard/forma_exempt.json", 0,
     "Article code \"0446\" is exempt from every rule of this manufacturer."},
    {"tests/scenarios/wizard/xey_depth_only.json", 0,
     "the cabinet is replaced from xey08.cat keeping its depth \"580\"."},
    // A height marker found in an earlier call: where and when, so that the next line (no such
    // child on this cabinet) does not read as a contradiction.
    {"tests/explain/decisions.json", 0,
     "(a child named with \"EAl_\" has been found: child 101, among the children of this "
     "call's cabinet, in this call)"},
    {"tests/explain/decisions.json", 1,
     "(a child named with \"EAl_\" has been found: child 101, among the children of the "
     "cabinet of that call, in an earlier call (call 1 of this trace), and the rules remember it "
     "for every later cabinet); it is not listed."},
    {"tests/explain/decisions.json", 2,
     "as the width differs too as text (\"600.0\" against the catalogue's \"600\"; as whole "
     "numbers they are equal, but here the texts are compared) and child 121 carries the marker "
     "\"EAA_\""},
    {"tests/explain/decisions.json", 3,
     "The cabinet's width \"6x0\" cannot be read as a whole number: the check stops with error "
     "13 (Type mismatch)."},
    {"tests/explain/summary.json", 0,
     "Summary TR_9017 shown (caption TR_9001) with the refused references \"B60-TIBER\"; its "
     "texts go through the dictionary, as the application's language \"ENG\" differs from the "
     "language \"\" of the catalogue that was current when the check began"},
    {"tests/explain/summary.json", 2, "No cabinet was refused: no summary is shown."},
    {"tests/explain/wizard_measure.json", 0,
     "The catalogue's width (table 3) \"6OO\" cannot be read as a whole number: the check stops "
     "with error 13 (Type mismatch)."},
    {"tests/scenarios/dialog/flags_not_boolean.json", 0,
     "The call stops at error 13 (Type mismatch): the text \"s\u00ED\" cannot be read as a "
     "number; the error is shown in a message and the call returns true."},
};

INSTANTIATE_TEST_SUITE_P(Rules, Explains, ::testing::ValuesIn(kDecisions),
                         [](const ::testing::TestParamInfo<Decision>& info) {
                             return "decision_" + std::to_string(info.index);
                         });

}  // namespace
