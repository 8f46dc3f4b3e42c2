// Benchmarks of the script readers on scripts of 64 KB to 1 MB (UTF-16 units): the limits of
// a script whose limits come last, and the range of a recess parameter whose definition is half
// the script and matches the rest of it all but at its end (the worst case of a plain text
// search). Both must grow linearly: the fitted complexity is printed as BigO.
#include <benchmark/benchmark.h>

#include "dialog/ScriptParametros.h"

namespace {

using vb::String;

constexpr int64_t kSmallest = 64 << 10;
constexpr int64_t kLargest = 1 << 20;

void BM_LimitesScript(benchmark::State& state) {
    const auto n = static_cast<size_t>(state.range(0));
    const String limites = u"LMIN=300,LMAX=1200,HMIN=500,HMAX=900,PMIN=300,PMAX=700)";
    const String script = String(n - limites.size(), u'x') + limites;
    for (auto _ : state) {
        benchmark::DoNotOptimize(dialog::limitesScript(script, true, true, true, u"600", u"720",
                                                       u"560", [](const String&) {}));
    }
    state.SetComplexityN(state.range(0));
}

void BM_RangoParametro(benchmark::State& state) {
    const auto n = static_cast<size_t>(state.range(0));
    const String definicion = String(n / 2, u'a') + u"b";
    const String script = String(n - definicion.size() - 20, u'a') + definicion + u"(MIN=5,MAX=@L)";
    const std::array<String, 3> cajas{u"600", u"720", u"560"};
    for (auto _ : state)
        benchmark::DoNotOptimize(dialog::rangoParametro(definicion, script, cajas));
    state.SetComplexityN(state.range(0));
}

}  // namespace

BENCHMARK(BM_LimitesScript)
    ->RangeMultiplier(4)
    ->Range(kSmallest, kLargest)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(BM_RangoParametro)
    ->RangeMultiplier(4)
    ->Range(kSmallest, kLargest)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
