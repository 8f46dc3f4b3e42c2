// Reads kept for the call, on the simulated host: keys that differ in one argument, what a scene
// write, a load or a session forgets, that failed reads are never kept, and that nothing
// outlives the call's objects. That kept answers equal the literal ones on whole scenarios is
// the scenario tests' business (tests/unit/scenarios/ModesTest.cpp).
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <string_view>

#include "host/CachingFactory.h"
#include "sim/Player.h"
#include "vb/Errors.h"

namespace {

using host::ReadMode;
using vb::String;
using vb::Variant;
using namespace std::string_literals;

const String kA = u"C:\\Cat\\a.cat";
const String kB = u"C:\\Cat\\b.cat";

// Two catalogues with the same lines, object 100 with a child; "ausente.cat" is not there.
sim::World mundo() {
    sim::World world;
    for (const String& path : {kA, kB}) {
        auto& tables = world.addCatalog(path, u"ESP").tables;
        tables[2].add({u"TR_1", u"T1", {{9, u"uno"}}, u""});
        tables[8].add({u"M01", u"", {{3, u"TIBER"}}, u""});
        tables[8].add({u"M02", u"", {{3, u"MONZA"}}, u""});
    }
    world.scene.add(100).info = {{12, u"600"}, {13, u"560"}};
    world.scene.add(101, 100);
    return world;
}

struct Objetos {
    host::AppliRef appli;
    host::SceneRef scene;
    host::CatalogRef catalog;
    int32_t s = 1;

    Variant linea(int32_t rank, int16_t col = 3) {
        return catalog->TableGetLineInfo(s, 8, 0, rank, col);
    }
    Variant info(int32_t id, int32_t code = 12) { return scene->ObjectGetInfo(s, id, code); }
    void carga(const String& path) { catalog->FileLoad(s, path); }
};

class ReadCache : public testing::Test {
  protected:
    void SetUp() override { host.state().callTrace = &asked; }
    Objetos crea(host::Factory& factory) {
        return {host::createAppli(factory), host::createScene(factory),
                host::createCatalog(factory)};
    }
    int preguntas(const char* member) const {
        return static_cast<int>(std::count_if(asked.begin(), asked.end(), [&](const char* m) {
            return std::strcmp(m, member) == 0;
        }));
    }
    void fallaLaProxima() {  // the next host call raises
        host.state().faults.counted.push_back({host.state().hostCallsMade + 1});
    }

    sim::Simulation host{mundo()};
    std::vector<const char*> asked;  // every member the host was asked, in order
};

// a, b, a, b with b differing from a in one argument asks the host twice, and the kept answer
// is the host's first.
TEST_F(ReadCache, KeysThatDifferInOneArgument) {
    using Read = std::function<Variant(Objetos&, bool)>;
    const String largo(5000, u'x');  // longer than the kept texts' blocks
    const std::pair<const char*, Read> lecturas[] = {
        {"TableGetLineInfo", [](Objetos& o, bool b) { return o.linea(1, b ? 4 : 3); }},
        {"TableGetLineInfo", [](Objetos& o, bool b) { return o.linea(b ? 2 : 1); }},
        {"TableGetLineRankFromCode",
         [](Objetos& o, bool b) {
             return o.catalog->TableGetLineRankFromCode(o.s, 2, 0, 1, u"TR_1", b);
         }},
        {"TableGetLineRankFromCode",
         [](Objetos& o, bool b) {
             return o.catalog->TableGetLineRankFromCode(o.s, 2, 0, b ? 2 : 1, u"TR_1", false);
         }},
        {"TableGetLineRankFromName",
         [](Objetos& o, bool b) {
             return o.catalog->TableGetLineRankFromName(o.s, b ? 8 : 2, 0, 1, u"T1", false);
         }},
        {"DicoGetStringFromKey",
         [](Objetos& o, bool b) {
             return o.catalog->DicoGetStringFromKey(o.s, u"uno", b ? u"FRA" : u"ENG");
         }},
        {"DicoGetStringFromKey",  // a text that differs after a NUL
         [](Objetos& o, bool b) {
             return o.catalog->DicoGetStringFromKey(o.s, b ? u"a\0c"s : u"a\0b"s, u"ENG");
         }},
        {"DicoGetStringFromKey",  // a trailing NUL
         [](Objetos& o, bool b) {
             return o.catalog->DicoGetStringFromKey(o.s, b ? u"a\0"s : u"a"s, u"ENG");
         }},
        {"DicoGetStringFromKey",  // long texts that differ in their last unit
         [&](Objetos& o, bool b) {
             return o.catalog->DicoGetStringFromKey(o.s, b ? largo + u'y' : largo + u'x', u"ENG");
         }},
        {"GetInfo", [](Objetos& o, bool b) { return o.catalog->GetInfo(o.s, b ? 18 : 17); }},
        {"ObjectGetInfo", [](Objetos& o, bool b) { return o.info(100, b ? 13 : 12); }},
        {"ObjectGetInfo", [](Objetos& o, bool b) { return o.info(b ? 101 : 100); }},
        {"ObjectGetChildrenNb",
         [](Objetos& o, bool b) { return o.scene->ObjectGetChildrenNb(o.s, 100, b); }},
        {"ObjectGetChildId",
         [](Objetos& o, bool b) { return o.scene->ObjectGetChildId(o.s, 100, b ? 2 : 1, 0); }},
        {"ObjectGetChildId",
         [](Objetos& o, bool b) { return o.scene->ObjectGetChildId(o.s, 100, 1, b); }},
        {"SceneGetObjectId",
         [](Objetos& o, bool b) { return o.scene->SceneGetObjectId(o.s, b ? 2 : 1); }},
        {"ObjectGetParentId",
         [](Objetos& o, bool b) { return o.scene->ObjectGetParentId(o.s, b ? 100 : 101); }},
        {"ObjectGetScript",
         [](Objetos& o, bool b) { return o.scene->ObjectGetScript(o.s, b ? 101 : 100); }},
    };
    for (const auto& [member, read] : lecturas) {
        asked.clear();
        host::CachingFactory factory(host.factory(), ReadMode::Cached);
        Objetos o = crea(factory);
        o.carga(kA);
        const Variant a = read(o, false), b = read(o, true);
        EXPECT_EQ(read(o, false), a) << member;
        EXPECT_EQ(read(o, true), b) << member;
        EXPECT_EQ(preguntas(member), 2) << member;
    }
}

struct Caso {
    const char* nombre;
    std::function<void(Objetos&)> pasos;
    std::map<std::string, int> preguntas;  // calls per member with reads kept
};

TEST_F(ReadCache, WhatIsForgottenAndWhatAlwaysReachesTheHost) {
    const Caso casos[] = {
        {"scene reads and the language until a write",
         [](Objetos& o) {
             o.info(-2);
             o.appli->GetLanguage(o.s);
             o.scene->ObjectSetInfo(o.s, 100, u"650", 12);
             o.info(-2);
             o.appli->GetLanguage(o.s);
             o.appli->GetLanguage(o.s);
         },
         {{"ObjectGetInfo", 2}, {"GetLanguage", 2}}},
        {"a replaced selection forgets the scene, not the catalogue",
         [](Objetos& o) {
             o.scene->ObjectGetChildId(o.s, 100, 1, 0);
             o.linea(1);
             o.scene->EditReplaceSelection(o.s, u"c", u"r", 0, 1, 2, 3, 0);
             o.scene->ObjectGetChildId(o.s, 100, 1, 0);
             o.linea(1);
         },
         {{"ObjectGetChildId", 2}, {"TableGetLineInfo", 1}}},
        {"writes, exports, the view, call parameters and loads always reach the host",
         [](Objetos& o) {
             for (int i = 0; i < 2; ++i) {
                 o.scene->ViewRefresh(o.s);
                 o.appli->GetCallParamsInfo(o.s, 9);
                 o.catalog->FileExportResource(o.s, 1, u"C:\\x.bmp");
                 o.carga(kA);
                 o.scene->ObjectSetInfo(o.s, 100, u"1", 59);
             }
         },
         {{"ViewRefresh", 2},
          {"GetCallParamsInfo", 2},
          {"FileExportResource", 2},
          {"FileLoad", 2},
          {"ObjectSetInfo", 2}}},
        {"each loaded file has its answers, found again on return",
         [](Objetos& o) {
             o.linea(1);
             o.carga(kA);
             o.linea(1);
             o.linea(1);
             o.carga(kB);
             o.linea(1);
             o.carga(kA);
             o.linea(1);
             o.catalog->GetInfo(o.s, 17);
             o.carga(kB);
             o.catalog->GetInfo(o.s, 17);
         },
         {{"TableGetLineInfo", 3}, {"GetInfo", 2}, {"FileLoad", 4}}},
        {"after a failed load reads pass through until the next good one",
         [](Objetos& o) {
             o.carga(kA);
             o.linea(1);
             o.carga(u"C:\\Cat\\ausente.cat");
             o.linea(1);
             o.linea(1);
             o.carga(kA);
             o.linea(1);
         },
         {{"TableGetLineInfo", 3}}},
        {"a key's text is a copy, not the caller's string",
         [](Objetos& o) {
             String text(5000, u'x');
             o.catalog->DicoGetStringFromKey(o.s, text, u"ENG");
             text[0] = u'y';
             o.catalog->DicoGetStringFromKey(o.s, text, u"ENG");
             o.catalog->DicoGetStringFromKey(o.s, String(5000, u'x'), u"ENG");
         },
         {{"DicoGetStringFromKey", 2}}},
        {"many answers, forgotten at each write and kept again",
         [](Objetos& o) {
             for (int round = 0; round < 3; ++round) {
                 for (int32_t id = 0; id < 1000; ++id) {
                     o.info(id);
                     o.info(id, 13);
                     o.info(id);
                 }
                 o.scene->ObjectSetInfo(o.s, 100, u"1", 59);
             }
         },
         {{"ObjectGetInfo", 6000}}},
        {"many lines of two files, each file's kept apart",
         [](Objetos& o) {
             for (int round = 0; round < 2; ++round) {
                 for (const String& file : {kA, kB}) {
                     o.carga(file);
                     for (int32_t rank = 1; rank <= 500; ++rank) o.linea(rank);
                 }
             }
         },
         {{"TableGetLineInfo", 1000}}},
        {"a session's start and end forget everything",
         [](Objetos& o) {
             o.linea(1);
             o.info(100);
             o.appli->StartSessionFromCallParams(o.s);
             o.linea(1);
             o.info(100);
             o.appli->EndSession(o.s);
             o.linea(1);
             o.info(100);
         },
         {{"TableGetLineInfo", 3}, {"ObjectGetInfo", 3}}},
    };
    for (const auto& caso : casos) {
        asked.clear();
        host::CachingFactory factory(host.factory(), ReadMode::Cached);
        Objetos o = crea(factory);
        caso.pasos(o);
        for (const auto& [member, n] : caso.preguntas)
            EXPECT_EQ(preguntas(member.c_str()), n) << caso.nombre << ": " << member;
    }
}

TEST_F(ReadCache, AFailedReadIsNotKept) {
    host::CachingFactory factory(host.factory(), ReadMode::Cached);
    Objetos o = crea(factory);
    o.carga(kA);
    fallaLaProxima();
    EXPECT_THROW(o.linea(1), vb::RuntimeError);
    EXPECT_EQ(o.linea(1), Variant(u"TIBER"));
    EXPECT_EQ(o.linea(1), Variant(u"TIBER"));
    EXPECT_EQ(preguntas("TableGetLineInfo"), 2);
}

TEST_F(ReadCache, ALoadThatRaisesLeavesNoCurrentFile) {
    host::CachingFactory factory(host.factory(), ReadMode::Cached);
    Objetos o = crea(factory);
    o.carga(kA);
    o.linea(1);
    fallaLaProxima();
    EXPECT_THROW(o.carga(kA), vb::RuntimeError);
    o.linea(1);
    o.linea(1);
    EXPECT_EQ(preguntas("TableGetLineInfo"), 3);
    EXPECT_EQ(host::fileMemo(*o.catalog), nullptr);
}

TEST_F(ReadCache, TheCacheGoesWithTheLastObjectOfTheCall) {
    host::CachingFactory factory(host.factory(), ReadMode::Cached);
    Objetos o = crea(factory);
    o.linea(1);
    o.catalog.reset();
    o.catalog = host::createCatalog(factory);  // the call's other objects still hold it
    o.linea(1);
    EXPECT_EQ(preguntas("TableGetLineInfo"), 1);
    o = Objetos{};  // an error skipped EndSession: releasing the objects is enough
    o = crea(factory);
    o.linea(1);
    EXPECT_EQ(preguntas("TableGetLineInfo"), 2);
}

TEST_F(ReadCache, ObjectsThatOutliveTheirFactoryStillWork) {
    Objetos o;
    {
        host::CachingFactory factory(host.factory(), ReadMode::Cached);
        o = crea(factory);
        o.carga(kA);
        o.linea(1);
    }
    EXPECT_EQ(o.linea(1), Variant(u"TIBER"));
    EXPECT_EQ(preguntas("TableGetLineInfo"), 1);
}

// The memo, and whether the catalogue's reads are kept at all.
TEST_F(ReadCache, FileMemoSitsBesideTheCurrentFilesAnswers) {
    host::CachingFactory literal(host.factory(), ReadMode::Literal);
    const host::CatalogRef own = host::createCatalog(literal);
    EXPECT_NE(dynamic_cast<sim::SimCatalog*>(own.get()), nullptr);  // the host's, as it is
    EXPECT_EQ(host::fileMemo(*own), nullptr);
    EXPECT_FALSE(host::keepsReads(*own));

    host::CachingFactory factory(host.factory(), ReadMode::Cached);
    Objetos o = crea(factory);
    ASSERT_NE(host::fileMemo(*o.catalog), nullptr);  // as at the call's start
    o.carga(kA);
    *host::fileMemo(*o.catalog) = 1;
    o.carga(kB);
    EXPECT_FALSE(host::fileMemo(*o.catalog)->has_value());
    *host::fileMemo(*o.catalog) = 2;
    o.carga(u"C:\\Cat\\ausente.cat");
    EXPECT_EQ(host::fileMemo(*o.catalog), nullptr);
    EXPECT_FALSE(host::keepsReads(*o.catalog));
    o.carga(kA);
    EXPECT_EQ(std::any_cast<int>(*host::fileMemo(*o.catalog)), 1);
    EXPECT_TRUE(host::keepsReads(*o.catalog));
    o.appli->EndSession(o.s);
    o.carga(kA);
    EXPECT_FALSE(host::fileMemo(*o.catalog)->has_value());
}

}  // namespace
