// Benchmarks of the special-size check and of the special-editing dialog on generated worlds,
// each case in both reading modes (reads kept for the call, the default, and literal): the
// scene-wide check over N top-level cabinets from three catalogues (in three runs, or
// alternating so that every cabinet prepares its catalogue again), one placement on catalogues
// of M door models, and the dialog opened headless on a cabinet of C components. Reports the
// CPU time of the call alone (the generated world is built and freed outside it), host calls
// per object and the peak memory of the case.
#include <benchmark/benchmark.h>

#include "Medida.h"
#include "Mundos.h"

namespace {

using bench::Medida;
using host::ReadMode;

// The second argument of every case: 1 plays literally.
ReadMode modo(const benchmark::State& state) {
    return state.range(1) != 0 ? ReadMode::Literal : ReadMode::Cached;
}

void informa(benchmark::State& state, const Medida& total, int objetos) {
    const double veces = static_cast<double>(state.iterations());
    state.counters["call_cpu_ms"] = total.segundos * 1e3 / veces;
    state.counters["host_calls_per_object"] =
        static_cast<double>(total.llamadas) / (veces * objetos);
    state.counters["peak_MB"] = total.picoMB;
    state.SetLabel(modo(state) == ReadMode::Literal ? "literal" : "cached");
}

// Plays `call` on a fresh world each iteration, by one plug-in instance for all of them; only
// the call itself is timed.
template <class Mundo>
Medida mide(benchmark::State& state, Mundo&& mundo, const sim::CallSpec& call, int objetos) {
    bench::Partida partida(modo(state));
    bench::reiniciaPico();
    Medida total;
    for (auto _ : state) {
        state.PauseTiming();
        sim::World world = mundo();
        state.ResumeTiming();
        total.suma(partida.juega(std::move(world), call));
    }
    informa(state, total, objetos);
    return total;
}

sim::CallSpec llamada(const char* method, int32_t object = 0) {
    sim::CallSpec call;
    call.className = "Plugin";
    call.method = method;
    call.object = object;
    return call;
}

// Args: cabinets, literal, alternating.
void BM_EscenaCompleta(benchmark::State& state) {
    const int muebles = static_cast<int>(state.range(0));
    const bool alterna = state.range(2) != 0;
    mide(
        state, [&] { return bench::mundoCocina(muebles, 200, alterna); },
        llamada("OnSceneGenericFinishesAfter"), muebles);
}

// Args: door models, literal.
void BM_Colocacion(benchmark::State& state) {
    const int modelos = static_cast<int>(state.range(0));
    mide(
        state, [&] { return bench::mundoCocina(1, modelos); }, llamada("OnObjectPlaceAfter", 10),
        1);
}

// Args: components, literal. The headless view with no action loads the dialog and closes it.
void BM_AbreDialogo(benchmark::State& state) {
    const int componentes = static_cast<int>(state.range(0));
    const Medida total = mide(
        state, [&] { return bench::mundoDialogo(componentes); },
        llamada("OnObjectComponentsBefore", 100), componentes);
    // A dialog refused or an error trapped before it showed would measure nothing of interest.
    if (total.dialogos != static_cast<int64_t>(state.iterations()))
        state.SkipWithError("the dialog was not shown at every iteration");
}

}  // namespace

BENCHMARK(BM_Colocacion)
    ->ArgNames({"door_models", "literal"})
    ->ArgsProduct({{100, 200}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(20);
BENCHMARK(BM_AbreDialogo)
    ->ArgNames({"components", "literal"})
    ->ArgsProduct({{1000, 4000}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10);
BENCHMARK(BM_EscenaCompleta)
    ->ArgNames({"cabinets", "literal", "alternating"})
    ->ArgsProduct({{5000, 10000}, {0, 1}, {0}})
    ->Args({10000, 0, 1})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
// The literal check with a catalogue change at every cabinet takes about a minute: run once.
BENCHMARK(BM_EscenaCompleta)
    ->ArgNames({"cabinets", "literal", "alternating"})
    ->Args({10000, 1, 1})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

BENCHMARK_MAIN();
