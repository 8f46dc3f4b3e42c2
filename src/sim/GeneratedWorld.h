#pragma once
// A kitchen world built in code, of any size, for benchmarks and load tests: SPACE.INI pointing
// at C:\Cat, one catalogue "cocinas" with texts, a permission line, one article and one door
// model, and `cabinets` top-level cabinets (every other one 50 wider than its article) with a
// marker child and a description child each.
#include "sim/World.h"

namespace sim {

World generatedKitchen(int cabinets);

}  // namespace sim
