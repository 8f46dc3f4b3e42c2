// Micro-benchmarks of the kept reads over host objects that answer at once (a fixed answer, a
// text longer than a string object holds by itself): a kept answer read again (a hit), and
// reads of answers not kept yet (misses), forgotten by a scene write every `kept` reads; beside
// them the same read asked of the host directly.
#include <benchmark/benchmark.h>

#include "host/CachingFactory.h"

namespace {

using host::Variant;

const Variant kAnswer = vb::String(u"Componente P_CJ12 del mueble 100");

#define QUORBEL_ANSWER_AT_ONCE(object, member, keeping, ...) \
    Variant member(QUORBEL_TYPES(__VA_ARGS__)) override {    \
        return kAnswer;                                      \
    }

struct InstantAppli : host::Appli {
    QUORBEL_APPLI_MEMBERS(QUORBEL_ANSWER_AT_ONCE)
};
struct InstantScene : host::Scene {
    QUORBEL_SCENE_MEMBERS(QUORBEL_ANSWER_AT_ONCE)
};
struct InstantCatalog : host::Catalog {
    QUORBEL_CATALOG_MEMBERS(QUORBEL_ANSWER_AT_ONCE)
};

#undef QUORBEL_ANSWER_AT_ONCE

class InstantHost : public host::Factory {
  public:
    std::shared_ptr<host::HostObject> CreateObject(const vb::String& progId) override {
        if (progId == host::kProgIdAppli) return std::make_shared<InstantAppli>();
        if (progId == host::kProgIdScene) return std::make_shared<InstantScene>();
        return std::make_shared<InstantCatalog>();
    }
};

struct Objects {
    explicit Objects(host::ReadMode mode) : factory(host, mode) {}
    InstantHost host;
    host::CachingFactory factory;
    host::SceneRef scene = host::createScene(factory);
    host::CatalogRef catalog = host::createCatalog(factory);
    int32_t session = 1;
};

host::ReadMode modeOf(const benchmark::State& state) {
    return state.range(0) != 0 ? host::ReadMode::Cached : host::ReadMode::Literal;
}

// Args: kept (1: reads kept, 0: the host asked directly).
void BM_SceneHit(benchmark::State& state) {
    Objects o(modeOf(state));
    for (auto _ : state) benchmark::DoNotOptimize(o.scene->ObjectGetInfo(o.session, 100, 5));
}

void BM_CatalogueTextHit(benchmark::State& state) {
    Objects o(modeOf(state));
    const vb::String code = u"MO_EAAlF";
    for (auto _ : state)
        benchmark::DoNotOptimize(
            o.catalog->TableGetLineRankFromCode(o.session, 2, 0, 1, code, false));
}

// Args: kept, reads between two scene writes (each forgets the scene's answers).
void BM_SceneMiss(benchmark::State& state) {
    Objects o(modeOf(state));
    const auto perWrite = static_cast<int32_t>(state.range(1));
    int32_t id = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(o.scene->ObjectGetInfo(o.session, id, 5));
        if (++id == perWrite) {
            o.scene->ObjectSetInfo(o.session, 0, u"1", 59);
            id = 0;
        }
    }
}

}  // namespace

BENCHMARK(BM_SceneHit)->ArgName("kept")->Arg(1)->Arg(0);
BENCHMARK(BM_CatalogueTextHit)->ArgName("kept")->Arg(1)->Arg(0);
BENCHMARK(BM_SceneMiss)->ArgNames({"kept", "per_write"})->ArgsProduct({{1, 0}, {64, 4096, 65536}});
