// One row per kind of finding that the lint example (tests/lint/example.expected.txt) does not
// print: a clean world changed in one place, and the lines lint must print for it (each the start
// of a line, in order, nothing more).
#include <gtest/gtest.h>

#include "World.h"

namespace {

using namespace lint_test;

class Lint : public ::testing::TestWithParam<Case> {};

TEST_P(Lint, PrintsItsFindings) {
    expectFindings(GetParam());
}

const std::string MO_EA = "a.cat, table 2, line MO_EA: ";
const std::string EX_EA = "a.cat, table 2, line EX_EA: ";

INSTANTIATE_TEST_SUITE_P(
    PermissionLines, Lint,
    ::testing::Values(
        Case{"CodeOnlyInColumnOne",
             [](Json& w) {
                 tableOf(w, 8).push_back(
                     {{"code", "M03"}, {"cols", {{"1", "X03"}, {"3", "LAZIO"}, {"4", "s"}}}});
                 setRule(w, "MO_EA", "MO: M01 X03");
             },
             {MO_EA + "the code \"X03\" is not the code of any line of table 8, so the rules skip "
                      "it (line M03 has it in column 1, but the rules find lines by their line "
                      "code)",
              "a.cat, table 8, line M03: warning: column 1 holds \"X03\"",
              "a.cat, table 8, line M03: no MO_ line that a placement reads permits the door "
              "model \"LAZIO\""}},
        Case{"SameCodeTwice",
             [](Json& w) { setRule(w, "MO_EA", "MO: M01 M01"); },
             {MO_EA + "the code \"M01\" is listed twice"}},
        Case{"NoBlankAfterThree",
             [](Json& w) { setRule(w, "MO_EA", "MO:M01 M02"); },
             {MO_EA + "warning: the fourth character of the rule text \"MO:M01 M02\" is not a "
                      "blank; the rules skip the first three characters (\"MO:\") all the same "
                      "and read the codes \"M01\", \"M02\""}},
        Case{"NoPrefix",
             [](Json& w) { setRule(w, "MO_EA", "M02 M01"); },
             {MO_EA + "the rules skip the first three characters, \"M02\", which are a table-8 "
                      "code"}},
        Case{"ShorterThanFour",
             [](Json& w) { setRule(w, "MO_EA", "MO:"); },
             {MO_EA + "the rule text \"MO:\" is shorter than four characters"}},
        Case{"NoRuleText",
             [](Json& w) { lineOf(w, 2, "MO_EA")["cols"] = Json::object(); },
             {MO_EA + "the line has no rule text in column 2, so at placement no door model is "
                      "permitted the width when a child of the cabinet carries \"EA_\""}},
        Case{"AllWithBlankAfter",
             [](Json& w) { setRule(w, "MO_EA", "MO: ALL "); },
             {MO_EA + "the rule text \"MO: ALL \" does not permit every model"}},
        Case{"TwoBlanks",
             [](Json& w) { setRule(w, "MO_EA", "MO: M01  M02"); },
             {MO_EA + "warning: two blanks in a row, or a blank at the end"}},
        Case{"CodeOfATemplate",
             [](Json& w) {
                 tableOf(w, 8).push_back(modelLine("M04", "@PLANTILLA"));
                 setRule(w, "MO_EA", "MO: M01 M04");
             },
             {MO_EA + "the code \"M04\" names a line of table 8 that is not a door model (its "
                      "model name \"@PLANTILLA\" begins with \"@\"), so it permits nothing"}},
        Case{"KindWithoutLine",
             [](Json& w) { removeLine(w, 2, "MO_EAAlF"); },
             {"a.cat, table 2, line MO_EAAlF: warning: no such line, so placement never reads "
              "this line (a change of the width, the height and the depth on a cabinet with an "
              "\"EAAF_\" child keeps the width, the height and the depth whatever the lines "
              "say), and the special-editing dialog offers type ANCHO_ALTO_FONDO to no door "
              "model"}},
        Case{"NoPermissionLineAtAll",
             [](Json& w) {
                 for (const char* code :
                      {"MO_EA", "MO_EAl", "MO_EF", "MO_EAAl", "MO_EAF", "MO_EAlF", "MO_EAAlF"})
                     removeLine(w, 2, code);
             },
             {"a.cat, table 2: warning: no permission line (MO_EA to MO_EAAlF)"}},
        Case{"AllOpenedByTheWizard",
             [](Json& w) {
                 setRule(w, "MO_EAl", "MO: ALL");
                 w["scene"][0]["info"]["2"] = "31";
             },
             {"a.cat, table 2, line MO_EAl: warning: cabinet 100 has the catalogue number 31, "
              "so the Wizard opens its special-editing dialog",
              "a.cat, table 2, line MO_EAAlF: warning: cabinet 100 has the catalogue number 31"}},
        Case{"AllElsewhereIsClean", [](Json& w) { setRule(w, "MO_EAl", "MO: ALL"); }, {}}));

INSTANTIATE_TEST_SUITE_P(
    DoorModels, Lint,
    ::testing::Values(
        Case{"PermittedThroughAll",
             [](Json& w) {
                 tableOf(w, 8).push_back(modelLine("M03", "LAZIO"));
                 setRule(w, "MO_EAl", "MO: ALL");
             },
             {}},
        Case{"TemplateLineIsClean",
             [](Json& w) { tableOf(w, 8).push_back(modelLine("M04", "@PLANTILLA")); },
             {}},
        Case{"EmptyScript",
             [](Json& w) { tableOf(w, 8).push_back(modelLine("M03", "LAZIO", "")); },
             {"a.cat, table 8, line M03: this line is not a door model: its script (column 4) "
              "is empty"}},
        Case{"ListedCodeWithoutScript",
             [](Json& w) {
                 tableOf(w, 8).push_back(modelLine("M03", "LAZIO", ""));
                 setRule(w, "MO_EA", "MO: M01 M03");
             },
             {"a.cat, table 2, line MO_EA: the code \"M03\" names a line of table 8 that is not "
              "a door model (it has no script in column 4), so it permits nothing",
              "a.cat, table 8, line M03: this line is not a door model"}},
        Case{"SameNameTwice",
             [](Json& w) {
                 tableOf(w, 8).push_back(modelLine("M03", "TIBER"));
                 setRule(w, "MO_EA", "MO: M03");
             },
             {"a.cat, table 8, line M03: the model name \"TIBER\" is also that of line M01: the "
              "rules know door models by name"}},
        Case{"NamesDifferInCase",
             [](Json& w) {
                 tableOf(w, 8).push_back(modelLine("M03", "Tiber"));
                 setRule(w, "MO_EA", "MO: M01 M03");
             },
             {"a.cat, table 8, line M03: the model names \"TIBER\" (line M01) and \"Tiber\" "
              "differ only in letter case"}},
        Case{"ModelWithoutCode",
             [](Json& w) {
                 tableOf(w, 8).push_back({{"cols", {{"3", "NEVADA"}, {"4", "s"}}}});
             },
             {"a.cat, table 8, line (no code, model \"NEVADA\"): a door model without a line "
              "code",
              "a.cat, table 8, line (no code, model \"NEVADA\"): no MO_ line that a placement "
              "reads permits"}},
        Case{"NoDoorModel",
             [](Json& w) {
                 tableOf(w, 8) = Json::array({modelLine("M01", "@A")});
                 for (const char* code :
                      {"MO_EA", "MO_EAl", "MO_EF", "MO_EAAl", "MO_EAF", "MO_EAlF", "MO_EAAlF"})
                     setRule(w, code, "MO: ALL");
             },
             {"a.cat, table 8: no door model: a door model is a line whose model name (column 3) "
              "does not begin with \"@\""}}));

}  // namespace
