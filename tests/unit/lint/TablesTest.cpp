// Exception lines, keyed texts, line codes and articles: one row per kind of finding that the lint
// example (tests/lint/example.expected.txt) does not print.
#include <gtest/gtest.h>

#include "World.h"

namespace {

using namespace lint_test;

void setText(Json& w, const std::string& code, const std::string& text) {
    lineOf(w, 2, code)["cols"]["9"] = text;
}

class LintTables : public ::testing::TestWithParam<Case> {};

TEST_P(LintTables, PrintsItsFindings) {
    expectFindings(GetParam());
}

const std::string EX_EA = "a.cat, table 2, line EX_EA: ";

INSTANTIATE_TEST_SUITE_P(
    ExceptionLines, LintTables,
    ::testing::Values(
        Case{"OnePieceNeverSearched",
             [](Json& w) { setRule(w, "EX_EA", "EX:B60-TIBER"); },
             {EX_EA + "the fourth character of the text \"EX:B60-TIBER\" is not a blank, so the "
                      "rules read one piece, \"B60-TIBER\", and never search a list of one "
                      "piece"}},
        Case{"NoBlankAfterThree",
             [](Json& w) { setRule(w, "EX_EA", "EX:B60-TIBER B60"); },
             {EX_EA + "warning: the fourth character of the text \"EX:B60-TIBER B60\" is not a "
                      "blank; the rules skip the first three characters (\"EX:\") all the same "
                      "and search the references \"B60-TIBER\", \"B60\"",
              EX_EA + "\"B60\" is the article (information 7) of cabinet 100"}},
        Case{"NoPrefix",
             [](Json& w) { setRule(w, "EX_EA", "B60 B60-TIBER"); },
             {EX_EA + "the rules skip the first three characters, \"B60\", which are a "
                      "reference"}},
        Case{"ArticleWithoutCabinetsIsClean",
             [](Json& w) {
                 w["scene"] = Json::array();
                 setRule(w, "EX_EA", "EX: B60");
             },
             {}},
        Case{"ReferenceTwice",
             [](Json& w) { setRule(w, "EX_EA", "EX: B60-TIBER B60-TIBER"); },
             {EX_EA + "the reference \"B60-TIBER\" is listed twice"}},
        Case{"TwoBlanks",
             [](Json& w) { setRule(w, "EX_EA", "EX: B60-TIBER  "); },
             {EX_EA + "warning: two blanks in a row"}},
        Case{"ListLeftByAnotherCatalogue",
             [](Json& w) {
                 Json other = cleanCatalogue();
                 auto& t2 = other["tables"]["2"];
                 for (size_t i = 0; i < t2.size(); ++i)
                     if (t2[i]["code"] == "EX_EA") t2.erase(i);
                 w["catalogs"]["C:\\Cat\\b.cat"] = other;
             },
             {"b.cat, table 2, line EX_EA: warning: no such line: the rules then keep the width "
              "exception list of the catalogue used before, so after a cabinet of C:\\Cat\\a.cat "
              "its list \"EX: B60-TIBER\" still applies here"}},
        Case{"MissingWithNothingToInheritIsClean",
             [](Json& w) { removeLine(w, 2, "EX_EAF"); },
             {}}));

INSTANTIATE_TEST_SUITE_P(
    KeyedTexts, LintTables,
    ::testing::Values(
        Case{"MessageWithoutText",
             [](Json& w) { setText(w, "TR_9001", ""); },
             {"a.cat, table 2, line TR_9001: the line has no text in column 9, so the caption "
              "of every message"}},
        Case{"DialogMessageMissing",
             [](Json& w) { removeLine(w, 2, "TR_9018"); },
             {"a.cat, table 2, line TR_9018: no such line, so the start of the dialog's line "
              "for a width out of its limits is empty"}},
        Case{"CaptionsMissing",
             [](Json& w) {
                 removeLine(w, 2, "TR_0002");
                 removeLine(w, 2, "TR_0044");
             },
             {"a.cat, table 2: warning: no lines TR_0002, TR_0044: these dialog captions keep "
              "their designed Spanish text"}},
        Case{"CaptionWithoutText",
             [](Json& w) { setText(w, "TR_0016", ""); },
             {"a.cat, table 2, line TR_0016: the line has no text in column 9, so the caption "
              "\"Medidas\" is empty"}},
        Case{"RecessSwitchMissing",
             [](Json& w) { removeLine(w, 2, "TR_0008"); },
             {"a.cat, table 2, line TR_0008: no such line: the dialog then never writes the "
              "recess values"}},
        Case{"DiagonalNameMissing",
             [](Json& w) { removeLine(w, 2, "TR_0047"); },
             {"a.cat, table 2, line TR_0047: no such line: the name of a diagonal given by an "
              "angle is empty"}},
        Case{"DiagonalNamesOverlap",
             [](Json& w) {
                 setText(w, "TR_0046", "diagonal");
                 setText(w, "TR_0047", "Diagonal por ángulo");
             },
             {"a.cat, table 2, line TR_0047: the text of TR_0046, \"diagonal\", is part of this "
              "line's text \"Diagonal por ángulo\""}}));

INSTANTIATE_TEST_SUITE_P(
    LineCodesAndArticles, LintTables,
    ::testing::Values(
        Case{"CodeInOtherLetterCase",
             [](Json& w) { lineOf(w, 2, "MO_EAl")["code"] = "MO_EAL"; },
             {"a.cat, table 2, line MO_EAL: the rules look this line up as MO_EAl, exactly as "
              "written",
              "a.cat, table 2, line MO_EAl: warning: no such line"}},
        Case{"UnknownExceptionCode",
             [](Json& w) { tableOf(w, 2).push_back(ruleLine("EX_EAX", "EX: B60-TIBER")); },
             {"a.cat, table 2, line EX_EAX: the rules never read a line of this code: the "
              "exception codes are EX_EA, EX_EAl"}},
        Case{"CodeTwice",
             [](Json& w) { tableOf(w, 2).push_back(ruleLine("MO_EA", "MO: M01 M02")); },
             {"a.cat, table 2, line MO_EA: lines 47 and 61 of the table have this code; the "
              "rules only ever find line 47"}},
        Case{"ArticleTwice",
             [](Json& w) { tableOf(w, 3).push_back(tableOf(w, 3)[0]); },
             {"a.cat, table 3, line B60: lines 1 and 2 of the table have this name"}},
        Case{"ArticleWithoutName",
             [](Json& w) {
                 tableOf(w, 3).push_back({{"cols", {{"3", "600"}}}});
             },
             {"a.cat, table 3, line (no name, line 2 of the table): the rules look articles up "
              "by name"}},
        Case{"MeasureNotANumber",
             [](Json& w) { lineOf(w, 3, "B60")["cols"]["3"] = "60O"; },
             {"a.cat, table 3, line B60: column 3 (standard width) holds \"60O\", which the "
              "rules cannot read as a whole number: checking a cabinet of this article stops "
              "with error 13 (Type mismatch)"}},
        Case{"MeasureMissing",
             [](Json& w) { lineOf(w, 3, "B60")["cols"].erase("5"); },
             {"a.cat, table 3, line B60: column 5 (standard height) holds \"\""}},
        Case{"DecimalCommaOfTheWorld",
             [](Json& w) {
                 w["application"]["decimalSeparator"] = ",";
                 lineOf(w, 3, "B60")["cols"]["3"] = "600,5";
             },
             {}}));

TEST(LintClean, TheCleanWorldHasNoLine) {
    EXPECT_TRUE(lintLines(cleanWorld()).empty());
}

TEST(LintSummary, CountsFindingsAndWarnings) {
    using lint::Finding;
    using lint::Severity;
    const Finding f{Severity::Finding, u"C:\\a.cat", 2, u"MO_EA", u"x"};
    const Finding w{Severity::Warning, u"C:\\a.cat", 8, u"", u"y"};
    EXPECT_EQ(lint::summary({}), "No findings.");
    EXPECT_EQ(lint::summary({f}), "1 finding.");
    EXPECT_EQ(lint::summary({f, f, w}), "2 findings, 1 warning.");
    EXPECT_EQ(lint::summary({w, w}), "0 findings, 2 warnings.");
    EXPECT_TRUE(lint::anyFinding({w, f}));
    EXPECT_FALSE(lint::anyFinding({w}));
}

}  // namespace
