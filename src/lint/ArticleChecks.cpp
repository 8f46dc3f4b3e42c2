// Table 3 as the rules read it: articles found by name (a cabinet's information 7), standard
// measures in columns 3, 4 and 5 read as whole numbers.
#include "lint/Reading.h"
#include "vb/Conversions.h"

namespace lint {

namespace {

struct Measure {
    int column;
    const char16_t* name;
};
constexpr Measure kMeasures[] = {
    {3, u"standard width"}, {4, u"standard depth"}, {5, u"standard height"}};

void checkMeasure(const sim::TableLine& line, const Measure& m, Report& r) {
    const String value = cell(line, m.column);
    try {
        vb::CLng(vb::Variant(value));
    } catch (const vb::RuntimeError& e) {
        r.finding(3, line.name,
                  u"column " + number(m.column) + u" (" + m.name + u") holds " + quoted(value) +
                      u", which the rules cannot read as a whole number: checking a cabinet of "
                      u"this article stops with error " +
                      number(e.number()) + u" (" + e.description() + u")");
    }
}

}  // namespace

void checkArticles(const Subject& s, Report& r) {
    const auto lines = linesOf(s.table(3));
    for (size_t i = 0; i < lines.size(); ++i) {
        if (lines[i]->name.empty()) {
            r.finding(3, u"(no name, line " + number(static_cast<long>(i + 1)) + u" of the table)",
                      u"the rules look articles up by name (a cabinet's information 7), so they "
                      u"never find this line");
            continue;
        }
        for (const auto& m : kMeasures) checkMeasure(*lines[i], m, r);
    }
}

}  // namespace lint
