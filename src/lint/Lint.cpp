#include "lint/Lint.h"

#include <algorithm>

#include "lint/Checks.h"
#include "vb/Conversions.h"

namespace lint {

namespace {

// Numbers in the tables are read as the rules read them: with the world's decimal separator.
class DecimalSeparator {
  public:
    explicit DecimalSeparator(char16_t separator) : saved_(vb::decimalSeparator()) {
        vb::setDecimalSeparator(separator);
    }
    ~DecimalSeparator() { vb::setDecimalSeparator(saved_); }
    DecimalSeparator(const DecimalSeparator&) = delete;
    DecimalSeparator& operator=(const DecimalSeparator&) = delete;

  private:
    char16_t saved_;
};

using Check = void (*)(const Subject&, Report&);
constexpr Check kChecks[] = {checkLineCodes, checkPermissions, checkModels,
                             checkMatrix,    checkExceptions,  checkPlacementReading,
                             checkTexts,     checkArticles,    checkSceneModels};

}  // namespace

void Report::finding(int table, const String& line, const String& text) {
    findings_.push_back({Severity::Finding, catalog_.path, table, line, text});
}

void Report::warning(int table, const String& line, const String& text) {
    findings_.push_back({Severity::Warning, catalog_.path, table, line, text});
}

std::vector<Finding> lintWorld(const sim::World& world) {
    const DecimalSeparator separator(world.application.decimalSeparator);
    std::vector<Finding> all;
    for (const sim::CatalogData* catalog : world.catalogs()) {
        Report report(*catalog);
        for (const Check check : kChecks) check(Subject{world, *catalog}, report);
        // Table by table, each in the order the checks told it.
        std::stable_sort(report.findings().begin(), report.findings().end(),
                         [](const Finding& a, const Finding& b) { return a.table < b.table; });
        all.insert(all.end(), report.findings().begin(), report.findings().end());
    }
    return all;
}

}  // namespace lint
