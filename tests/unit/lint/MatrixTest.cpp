// The permission matrix of a world whose tables say what each cell must be: placement against the
// dialog by door model and kind, the lines a placement reads, the exception lists, and the page.
#include <gtest/gtest.h>

#include "World.h"
#include "lint/Matrix.h"
#include "lint/MatrixWords.h"

namespace {

using namespace lint_test;

std::vector<lint::CatalogueMatrix> matrixOf(const Json& world) {
    return lint::permissionMatrix(sim::loadScenario(world.dump())->world);
}

struct Cell {
    const char* model;
    int kind;
    const char* placement;
    const char* dialog;
};

struct MatrixCase {
    const char* name;
    std::function<void(Json&)> change;
    std::vector<Cell> cells;
};

void PrintTo(const MatrixCase& c, std::ostream* os) {
    *os << c.name;
}

class Matrix : public ::testing::TestWithParam<MatrixCase> {};

TEST_P(Matrix, HasTheCells) {
    Json world = cleanWorld();
    GetParam().change(world);
    const auto matrices = matrixOf(world);
    ASSERT_EQ(matrices.size(), 1u);
    for (const auto& expected : GetParam().cells) {
        const lint::MatrixRow* row = nullptr;
        for (const auto& r : matrices[0].rows)
            if (vb::toUtf8(r.model) == expected.model) row = &r;
        ASSERT_NE(row, nullptr) << expected.model;
        const auto& cell = row->cells[expected.kind];
        EXPECT_EQ(vb::toUtf8(lint::placementWords(cell)), expected.placement)
            << expected.model << ", kind " << expected.kind;
        EXPECT_EQ(vb::toUtf8(lint::dialogWords(cell)), expected.dialog)
            << expected.model << ", kind " << expected.kind;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Cells, Matrix,
    ::testing::Values(MatrixCase{"EachKindByItsLine",
                                 [](Json&) {},
                                 {{"TIBER", 0, "permitted by MO_EA", "offered"},
                                  {"MONZA", 0, "refused by MO_EA", "not offered"},
                                  {"MONZA", 3, "permitted by MO_EAAl", "offered"},
                                  {"MONZA", 5, "permitted by MO_EAAl", "offered"},
                                  {"MONZA", 6, "stays (no line decides)", "offered"}}},
                      MatrixCase{"HeightAndDepthOfferedByOneLineDecidedByAnother",
                                 [](Json& w) { setRule(w, "MO_EAlF", "MO: M01"); },
                                 {{"MONZA", 5, "permitted by MO_EAAl", "not offered"},
                                  {"TIBER", 5, "permitted by MO_EAAl", "offered"}}},
                      MatrixCase{"WidthAndHeightLineRefusesHeightAndDepth",
                                 [](Json& w) { setRule(w, "MO_EAAl", "MO: M01"); },
                                 {{"MONZA", 3, "refused by MO_EAAl", "not offered"},
                                  {"MONZA", 5, "refused by MO_EAAl", "offered"}}},
                      MatrixCase{"NoLineRefusesEveryModel",
                                 [](Json& w) { removeLine(w, 2, "MO_EF"); },
                                 {{"TIBER", 2, "refused by MO_EF", "not offered"}}},
                      MatrixCase{"AllPermitsEveryModel",
                                 [](Json& w) { setRule(w, "MO_EA", "MO: ALL"); },
                                 {{"MONZA", 0, "permitted by MO_EA", "offered"}}}));

TEST(MatrixKinds, NameTheLinesAPlacementReads) {
    const auto m = matrixOf(cleanWorld())[0];
    const char* expected[] = {"MO_EA",
                              "MO_EAl",
                              "MO_EF",
                              "MO_EAAl for every measure",
                              "MO_EAF for every measure",
                              "MO_EAAl for every measure",
                              "no line: the measures stay"};
    for (int k = 0; k < 7; ++k)
        EXPECT_EQ(vb::toUtf8(lint::placementLinesWords(m.kinds[k])), expected[k]) << k;
}

TEST(MatrixExceptions, SayWhatTheRulesSearch) {
    Json world = cleanWorld();
    setRule(world, "EX_EAl", "EX:B60");
    removeLine(world, 2, "EX_EF");
    const auto m = matrixOf(world)[0];
    EXPECT_EQ(vb::toUtf8(lint::exceptionWords(m.kinds[0])), "\"B60-TIBER\"");
    EXPECT_EQ(vb::toUtf8(lint::exceptionWords(m.kinds[1])),
              "none: one piece, \"B60\", is never searched");
    EXPECT_EQ(vb::toUtf8(lint::exceptionWords(m.kinds[2])),
              "no line: the list of the catalogue used before is kept");
    EXPECT_EQ(vb::toUtf8(lint::exceptionWords(m.kinds[3])), "none");
    EXPECT_EQ(vb::toUtf8(m.kinds[3].listAtPlacement), "never searched at placement");
}

TEST(MatrixPage, EscapesTheTablesText) {
    Json world = cleanWorld();
    tableOf(world, 8).push_back(modelLine("M03", "A&B <\"X\">"));
    const std::string page = lint::matrixHtml(matrixOf(world));
    EXPECT_NE(page.find("<tr data-model=\"A&amp;B &lt;&quot;X&quot;&gt;\">"), std::string::npos);
    EXPECT_EQ(page.find("<\"X\">"), std::string::npos);
    EXPECT_EQ(page.find("<script"), std::string::npos);
    EXPECT_EQ(page.find("http"), std::string::npos);
}

TEST(MatrixText, TellsACatalogueWithoutDoorModels) {
    Json world = cleanWorld();
    tableOf(world, 8) = Json::array({modelLine("M01", "@A")});
    const std::string text = lint::matrixText(matrixOf(world));
    EXPECT_NE(text.find("== C:\\Cat\\a.cat\n"), std::string::npos);
    EXPECT_NE(text.find("No door model in table 8"), std::string::npos);
}

}  // namespace
