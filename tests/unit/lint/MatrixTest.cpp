// The permission matrix of a clean world: the lines a placement reads, the exception lists, the
// page and the text. The cells' words are pinned by the test lint.matrix_page, which renders
// tests/tools/matrix-world.json and compares every cell with matrix-world.cells.
#include <gtest/gtest.h>

#include "World.h"
#include "lint/Matrix.h"
#include "lint/MatrixWords.h"

namespace {

using namespace lint_test;

std::vector<lint::CatalogueMatrix> matrixOf(const Json& world) {
    return lint::permissionMatrix(sim::loadScenario(world.dump())->world);
}

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
