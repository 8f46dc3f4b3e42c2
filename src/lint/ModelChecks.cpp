// Table 8 as the rules collect door models: a line is a model only with a script and a name
// that does not begin with "@", and models are known by their names.
#include "lint/Reading.h"
#include "vb/Strings.h"

namespace lint {

namespace {

void checkNotAModel(const sim::TableLine& line, Report& r) {
    if (isDoorModel(line) || vb::Left(cell(line, 3), 1) == u"@") return;
    r.finding(8, modelPlace(line),
              u"this line is not a door model: its script (column 4) is empty, and the rules "
              u"take a line as a door model only with a script and a model name that does not "
              u"begin with \"@\"");
}

void checkModelLine(const sim::TableLine& line, Report& r) {
    if (cell(line, 3).empty())
        r.finding(8, modelPlace(line),
                  u"a door model without a name (column 3 is empty): cabinets without a door "
                  u"model are judged by it");
    if (line.code.empty())
        r.finding(8, modelPlace(line),
                  u"a door model without a line code: no MO_ line can name it, only ALL "
                  u"permits it");
    const String first = cell(line, 1);
    if (!first.empty() && first != line.code)
        r.warning(8, modelPlace(line),
                  u"column 1 holds " + quoted(first) + u" but the line's code is " +
                      quoted(line.code) + u": MO_ lines name door models by the line's code");
}

// Models are rows of the permission matrix by name: the same name twice is one model.
void checkSameName(const sim::TableLine& line, const sim::TableLine& earlier, Report& r) {
    const String name = cell(line, 3), other = cell(earlier, 3);
    if (name == other) {
        r.finding(8, modelPlace(line),
                  u"the model name " + quoted(name) + u" is also that of line " +
                      modelPlace(earlier) +
                      u": the rules know door models by name, so an MO_ line that lists "
                      u"either code permits both");
    } else if (vb::equalText(name, other)) {
        r.finding(8, modelPlace(line),
                  u"the model names " + quoted(other) + u" (line " + modelPlace(earlier) +
                      u") and " + quoted(name) +
                      u" differ only in letter case: placing a cabinet tells them apart, but "
                      u"the special-editing dialog takes the first for both");
    }
}

}  // namespace

void checkModels(const Subject& s, Report& r) {
    std::vector<const sim::TableLine*> models;
    for (const auto* line : linesOf(s.table(8))) {
        checkNotAModel(*line, r);
        if (!isDoorModel(*line)) continue;
        checkModelLine(*line, r);
        for (const auto* earlier : models) {
            if (!vb::equalText(cell(*line, 3), cell(*earlier, 3))) continue;
            checkSameName(*line, *earlier, r);
            break;
        }
        models.push_back(line);
    }
}

}  // namespace lint
