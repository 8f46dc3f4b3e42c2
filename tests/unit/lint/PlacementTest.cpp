// Lines that a placement reads otherwise than they say, and the scene's door models: one row per
// kind of finding, and one per situation that must stay silent.
#include <gtest/gtest.h>

#include "World.h"

namespace {

using namespace lint_test;

class LintPlacement : public ::testing::TestWithParam<Case> {};

TEST_P(LintPlacement, PrintsItsFindings) {
    expectFindings(GetParam());
}

Json child(int id, const std::string& name) {
    return {{"id", id}, {"info", {{"4", name}}}};
}

const std::string T2 = "a.cat, table 2, line ";

INSTANTIATE_TEST_SUITE_P(
    ExceptionLists, LintPlacement,
    ::testing::Values(
        Case{"HeightListIsSearchedForWidthAndHeight",
             [](Json& w) { setRule(w, "EX_EAl", "EX: B45-MONZA"); },
             {T2 + "EX_EAl: at placement this list is searched only for the width when the "
                   "height differs too and a child of the cabinet carries \"EAA_\" (unless the "
                   "depth differs too and a child of the cabinet carries \"EAF_\"); and the "
                   "height when the width differs too and a child of the cabinet carries "
                   "\"EAA_\": a change of the height on a cabinet with an \"EAl_\" child searches "
                   "EX_EA for the height, which does not name \"B45-MONZA\"; so the "
                   "special-editing dialog offers type ALTO to these cabinets, while a placement "
                   "refuses that change of theirs unless their door model is permitted it"}},
        Case{"HeightListNamingWhatTheWidthListNamesIsClean",
             [](Json& w) { setRule(w, "EX_EAl", "EX: B60-TIBER"); },
             {}},
        Case{"WidthAndHeightListIsNeverSearched",
             [](Json& w) { setRule(w, "EX_EAA", "EX: B45-MONZA"); },
             {T2 +
              "EX_EAA: warning: placement never searches this list: a change of the width and the "
              "height on a cabinet with an \"EAA_\" child searches EX_EAl for the width and "
              "the height, which does not name \"B45-MONZA\""}},
        Case{"HeightAndDepthListAgreeingWithWidthAndDepthIsClean",
             [](Json& w) {
                 setRule(w, "EX_EAlF", "EX: B45-MONZA");
                 setRule(w, "EX_EAF", "EX: B45-MONZA");
             },
             {}},
        Case{"AllThreeListIsMootAtPlacement",
             [](Json& w) { setRule(w, "EX_EAAF", "EX: B45-MONZA"); },
             {}},
        Case{"WidthListAlsoSearchedForHeight",
             [](Json& w) { w["scene"][0]["children"] = Json::array({child(101, "EAl_01")}); },
             {T2 + "EX_EA: warning: at placement this list is also searched for the height when "
                   "a child named with \"EAl_\" has been found (on any cabinet checked before, "
                   "too) (unless the width differs too and a child of the cabinet carries "
                   "\"EAA_\", or the depth differs too and a child of the cabinet carries "
                   "\"EAlF_\"); object 101 of the scene is such a child (\"EAl_01\")"}},
        Case{"ReferenceOfNoCabinetInTheSceneIsClean",
             [](Json& w) { setRule(w, "EX_EA", "EX: A60-TIBER B45-MONZA"); },
             {}},
        Case{"NoBlankAfterTheColonIsReadAsMeant",
             [](Json& w) { setRule(w, "EX_EA", "EX:B60-TIBER B45-MONZA"); },
             {T2 + "EX_EA: warning: the fourth character of the text \"EX:B60-TIBER B45-MONZA\" "
                   "is not a blank; the rules skip the first three characters (\"EX:\") all the "
                   "same and search the references \"B60-TIBER\", \"B45-MONZA\""}}));

INSTANTIATE_TEST_SUITE_P(
    PermissionLines, LintPlacement,
    ::testing::Values(
        Case{"HeightAndDepthLineDisagreesWithTheLinePlacementReads",
             [](Json& w) { setRule(w, "MO_EAlF", "MO: M01"); },
             {T2 +
              "MO_EAlF: warning: placement never reads this line: a change of the height and the "
              "depth on a cabinet with an \"EAlF_\" child is decided by MO_EAAl for the "
              "height and the depth; so a placement keeps that change for \"MONZA\", to "
              "which the special-editing dialog does not offer type ALTO_FONDO"}},
        Case{"WidthAndHeightLineAlsoDecidesHeightAndDepth",
             [](Json& w) { w["scene"][0]["children"] = Json::array({child(101, "EAlF_01")}); },
             {T2 + "MO_EAAl: warning: at placement this line also decides the depth when the "
                   "height differs too and a child of the cabinet carries \"EAlF_\" (unless the "
                   "width differs too and a child of the cabinet carries \"EAF_\"); and the "
                   "height when the depth differs too and a child of the cabinet carries "
                   "\"EAlF_\" (unless the width differs too and a child of the cabinet carries "
                   "\"EAA_\"); object 101 of the scene is such a child (\"EAlF_01\")"}},
        Case{"NoBlankAfterTheColonIsReadAsMeant",
             [](Json& w) { setRule(w, "MO_EAl", "MO:M01 M02"); },
             {T2 + "MO_EAl: warning: the fourth character of the rule text \"MO:M01 M02\" is "
                   "not a blank; the rules skip the first three characters (\"MO:\") all the "
                   "same and read the codes \"M01\", \"M02\""}},
        Case{"WidthLineMissingSaysWhereAPlacementRefuses",
             [](Json& w) { removeLine(w, 2, "MO_EA"); },
             {T2 + "MO_EA: warning: no such line, so at placement no door model is permitted "
                   "the width when a child of the cabinet carries \"EA_\" (unless the depth "
                   "differs too and a child of the cabinet carries \"EAF_\", or the height "
                   "differs too and a child of the cabinet carries \"EAA_\"): such a change is "
                   "refused unless the exception list searched names the cabinet; the "
                   "special-editing dialog offers type ANCHO to no door model (only to the "
                   "cabinets EX_EA names)"}}));

INSTANTIATE_TEST_SUITE_P(
    SceneDoorModels, LintPlacement,
    ::testing::Values(
        Case{"ModelInOtherLetterCaseIsJudgedByTwoRows",
             [](Json& w) { w["scene"][0]["info"]["64"] = "monza"; },
             {"a.cat, table 8, line M02: cabinet 100 has the door model \"monza\", which matches "
              "this line's \"MONZA\" only when letter case is ignored: a placement looks door "
              "models up exactly and judges it by the first model's (\"TIBER\") permissions, "
              "while the special-editing dialog ignores case and offers it \"MONZA\"'s; they "
              "differ for MO_EA"}},
        Case{"FirstModelInOtherLetterCaseIsClean",
             [](Json& w) { w["scene"][0]["info"]["64"] = "tiber"; },
             {}},
        Case{"RowsWithTheSamePermissionsAreClean",
             [](Json& w) {
                 w["scene"][0]["info"]["64"] = "monza";
                 setRule(w, "MO_EA", "MO: M01 M02");
             },
             {}}));

}  // namespace
