#include "lint/Matrix.h"

#include <set>

#include "lint/Placement.h"

namespace lint {

namespace {

MatrixKind kindOf(const Subject& s, const Kind& kind) {
    MatrixKind k{
        kind.type, kind.permission, kind.exception, kind.marker, ruleOf(s, kind), {}, {}, {}, false,
        {}};
    for (const auto& read : ownChange(Decision::Permissions, kind.index))
        k.placementLines.push_back(read.value);
    if (const auto* line = lineByCode(s.table(2), kind.exception)) {
        k.exceptionText = cell(*line, 2);
        const auto list = rules::leeExcepcion(*k.exceptionText);
        k.listSearched = list && list->size() >= 2;
        if (list)
            for (const auto& ref : *list)
                if (!ref.empty()) k.excepted.push_back(ref);
    }
    const auto uses = usesOf(Decision::Exceptions, kind.index);
    k.listAtPlacement =
        uses.empty() ? u"never searched at placement"
                     : u"searched at placement for " + describeUses(Decision::Exceptions, uses);
    return k;
}

MatrixCell cellOf(const Subject& s, const Kind& kind, const String& model) {
    MatrixCell c;
    c.placementStays = true;
    for (const auto& read : ownChange(Decision::Permissions, kind.index)) {
        const bool stays = read.value < 0 || permits(s, kinds()[read.value], model);
        c.placement.push_back({read.measure, read.value, stays});
        c.placementStays = c.placementStays && stays;
    }
    c.dialogOffers = permits(s, kind, model);
    return c;
}

CatalogueMatrix matrixOf(const Subject& s) {
    CatalogueMatrix m{s.catalog.path, {}, {}};
    for (const auto& kind : kinds()) m.kinds.push_back(kindOf(s, kind));
    std::set<String> seen;
    for (const auto* line : linesOf(s.table(8))) {
        const String model = cell(*line, 3);
        if (!isDoorModel(*line) || !seen.insert(model).second) continue;
        MatrixRow row{model, modelPlace(*line), {}};
        for (const auto& kind : kinds()) row.cells.push_back(cellOf(s, kind, model));
        m.rows.push_back(std::move(row));
    }
    return m;
}

}  // namespace

std::vector<CatalogueMatrix> permissionMatrix(const sim::World& world) {
    std::vector<CatalogueMatrix> all;
    for (const sim::CatalogData* catalog : world.catalogs())
        all.push_back(matrixOf(Subject{world, *catalog}));
    return all;
}

}  // namespace lint
