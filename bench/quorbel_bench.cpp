// Benchmarks of the special-size check on generated worlds: the scene-wide check over N
// top-level cabinets from three catalogues, and one placement, each catalogue holding M door
// models whose permission lines list 50 codes. Reports wall time and host calls per object.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <chrono>
#include <memory>

#include "native/SimPlatform.h"
#include "sim/Player.h"
#include "sim/World.h"

namespace {

using vb::String;

constexpr int kCatalogos = 3;
constexpr int kCodigosPorRegla = 50;
constexpr int kArticulos = 20;

String num(int n) {
    String t;
    for (char c : std::to_string(n)) t += static_cast<char16_t>(c);
    return t;
}

void anadeCatalogo(sim::World& w, int k, int modelos) {
    auto& c = w.addCatalog(u"C:\\Cat\\cocina" + num(k) + u".cat", u"ESP");
    auto& t2 = c.tables[2];
    t2.add({u"TR_9001", u"", {{9, u"Atención"}}, u""});
    t2.add({u"TR_9014", u"", {{9, u"Medidas no permitidas."}}, u""});
    t2.add({u"TR_9015", u"", {{9, u"Medida no permitida."}}, u""});
    t2.add({u"TR_9016", u"", {{9, u"Se ha restaurado la medida."}}, u""});
    t2.add({u"TR_9017", u"", {{9, u"Muebles rechazados:"}}, u""});
    const char16_t* codigos[] = {u"MO_EA",  u"MO_EAl",  u"MO_EF",   u"MO_EAAl",
                                 u"MO_EAF", u"MO_EAlF", u"MO_EAAlF"};
    for (int kind = 0; kind < 7; ++kind) {
        String regla = u"MO:";
        for (int i = 0; i < kCodigosPorRegla; ++i) regla += u" M" + num((i * 3 + kind) % modelos);
        t2.add({codigos[kind], u"", {{2, regla}}, u""});
    }
    t2.add({u"EX_EA", u"", {{2, u"EX: R0 R7 R14"}}, u""});
    for (int a = 0; a < kArticulos; ++a) {
        c.tables[3].add({u"", u"A" + num(a), {{3, u"600"}, {4, u"560"}, {5, u"720"}}, u""});
    }
    for (int m = 0; m < modelos; ++m) {
        const String code = u"M" + num(m);
        c.tables[8].add({code, u"", {{1, code}, {3, u"MODELO " + num(m)}, {4, u"s"}}, u""});
    }
}

// `muebles` top-level cabinets in three runs, one per catalogue (or alternating catalogues, so
// that every cabinet prepares its catalogue's rules again); every cabinet carries a width marker
// child, and every fifth has a changed width, decided by its door model.
sim::World mundo(int muebles, int modelos, bool alterna = false) {
    sim::World w;
    w.files.putFile(u"C:\\Quorbel\\SPACE.INI", u"[Local]\r\nCatalogsDir=C:\\Cat\r\n");
    for (int k = 0; k < kCatalogos; ++k) anadeCatalogo(w, k, modelos);
    for (int i = 0; i < muebles; ++i) {
        const int k = alterna ? i % kCatalogos : i * kCatalogos / muebles;
        const int32_t id = 10 + 10 * i;
        auto& o = w.scene.add(id);
        o.info = {{0, u"cocina" + num(k)},
                  {2, num(40 + k)},
                  {7, u"A" + num(i % kArticulos)},
                  {8, u"R" + num(i)},
                  {12, i % 5 == 0 ? u"650" : u"600"},
                  {13, u"560"},
                  {14, u"720"},
                  {64, u"MODELO " + num(i % modelos)}};
        w.scene.add(id + 1, id).info = {{4, u"EA_" + num(i)}};
    }
    return w;
}

struct Medida {
    double segundos = 0;
    int64_t llamadas = 0;
};

Medida juega(sim::World world, const sim::CallSpec& call) {
    sim::Simulation simulation(std::move(world));
    native::SimPlatform platform(simulation);
    sim::Player player(simulation, platform);
    const auto start = std::chrono::steady_clock::now();
    player.play(call);
    Medida m;
    m.segundos = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    for (const auto& [member, n] : simulation.recorder().calls().back()["hostCalls"].items()) {
        m.llamadas += n.get<int64_t>();
    }
    return m;
}

double picoMB() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024.0;  // kilobytes on Linux
}

void informa(benchmark::State& state, const Medida& total, int objetos) {
    const double n = static_cast<double>(objetos) * static_cast<double>(state.iterations());
    state.counters["us_per_object"] = total.segundos * 1e6 / n;
    state.counters["host_calls_per_object"] = static_cast<double>(total.llamadas) / n;
    state.counters["peak_rss_MB"] = picoMB();
}

void BM_EscenaCompleta(benchmark::State& state) {
    const int muebles = static_cast<int>(state.range(0));
    const bool alterna = state.range(1) != 0;
    sim::CallSpec call;
    call.className = "Plugin";
    call.method = "OnSceneGenericFinishesAfter";
    Medida total;
    for (auto _ : state) {
        state.PauseTiming();
        sim::World world = mundo(muebles, 200, alterna);
        state.ResumeTiming();
        const Medida m = juega(std::move(world), call);
        total.segundos += m.segundos;
        total.llamadas += m.llamadas;
    }
    informa(state, total, muebles);
}

void BM_Colocacion(benchmark::State& state) {
    const int modelos = static_cast<int>(state.range(0));
    sim::CallSpec call;
    call.className = "Plugin";
    call.method = "OnObjectPlaceAfter";
    call.object = 10;
    Medida total;
    for (auto _ : state) {
        state.PauseTiming();
        sim::World world = mundo(1, modelos);
        state.ResumeTiming();
        const Medida m = juega(std::move(world), call);
        total.segundos += m.segundos;
        total.llamadas += m.llamadas;
    }
    informa(state, total, 1);
}

}  // namespace

BENCHMARK(BM_EscenaCompleta)
    ->ArgNames({"cabinets", "alternating"})
    ->Args({5000, 0})
    ->Args({10000, 0})
    ->Args({10000, 1})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
BENCHMARK(BM_Colocacion)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond)->Iterations(50);

BENCHMARK_MAIN();
