#include "MatrixCommand.h"

#include <iostream>

#include "lint/Matrix.h"
#include "sim/ScenarioLoader.h"

namespace quorbel_sim {

int matrix(const std::string& file, bool html) {
    const auto scenario = sim::loadScenarioFile(file);
    const auto matrices = lint::permissionMatrix(scenario->world);
    std::cout << (html ? lint::matrixHtml(matrices) : lint::matrixText(matrices));
    return 0;
}

}  // namespace quorbel_sim
