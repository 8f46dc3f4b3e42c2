#pragma once
// The checks of one catalogue, each a small function over its tables, and what they share.
#include <vector>

#include "lint/Lint.h"

namespace lint {

// The catalogue under check and the world around it (the other catalogues, the scene).
struct Subject {
    const sim::World& world;
    const sim::CatalogData& catalog;

    const sim::Table* table(int number) const { return catalog.table(number); }
};

class Report {
  public:
    explicit Report(const sim::CatalogData& catalog) : catalog_(catalog) {}

    void finding(int table, const String& line, const String& text);
    void warning(int table, const String& line, const String& text);
    std::vector<Finding>& findings() { return findings_; }

  private:
    const sim::CatalogData& catalog_;
    std::vector<Finding> findings_;
};

void checkLineCodes(const Subject& s, Report& r);    // table 2 codes never read; repeated codes
void checkPermissions(const Subject& s, Report& r);  // MO_ lines as the rules read them
void checkModels(const Subject& s, Report& r);       // table-8 lines that are or are not models
void checkMatrix(const Subject& s, Report& r);       // door models that no kind permits
void checkExceptions(const Subject& s, Report& r);   // EX_ lines as the rules read them
void checkTexts(const Subject& s, Report& r);        // TR_ keys of the messages and the dialog
void checkArticles(const Subject& s, Report& r);     // table-3 measures the rules can read
void checkPlacementReading(const Subject& s, Report& r);  // lines a placement reads otherwise
void checkSceneModels(const Subject& s, Report& r);  // cabinets' door models, placement and dialog

}  // namespace lint
