// Reads kept for the call: which reads reach the host in each mode, how loads switch the
// catalogue's answers, what a write forgets, that errors are never kept, and that nothing
// outlives the call's session or its objects.
#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "../rules/FakeHost.h"
#include "host/CachingFactory.h"

namespace {

using host::ReadMode;
using vb::String;
using vb::Variant;

// The in-memory catalogue, with loads that fail or raise and reads that raise on request.
class Catalogo : public fake::Catalog {
  public:
    using fake::Catalog::Catalog;
    std::set<String> ausentes;  // FileLoad answers False
    bool cargaFalla = false;    // FileLoad raises
    int lecturasFallidas = 0;   // so many TableGetLineInfo calls raise first
    Variant FileLoad(int32_t& s, const String& path) override {
        Variant ok = fake::Catalog::FileLoad(s, path);
        if (cargaFalla) throw vb::RuntimeError(440, u"load failed");
        return ausentes.count(path) ? Variant(false) : ok;
    }
    Variant TableGetLineInfo(int32_t& s, int32_t t, int32_t z, int32_t r, int16_t c) override {
        Variant v = fake::Catalog::TableGetLineInfo(s, t, z, r, c);
        if (lecturasFallidas > 0 && lecturasFallidas--) throw vb::RuntimeError(440, u"busy");
        return v;
    }
};

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
    void SetUp() override {
        host.catalog = catalogo;
        catalogo->tables[2] = {{u"TR_1", u"T1", {{9, u"uno"}}}};
        catalogo->tables[8] = {{u"M01", u"", {{3, u"TIBER"}}}, {u"M02", u"", {{3, u"MONZA"}}}};
        host.scene->objects[100].info = {{12, u"600"}, {13, u"560"}};
        host.scene->objects[100].children = {101};
        host.scene->order = {100};
    }
    Objetos crea(host::Factory& factory) {
        return {host::createAppli(factory), host::createScene(factory),
                host::createCatalog(factory)};
    }
    int preguntas(const char* member) { return host.calls.byMember[member]; }

    fake::Factory host;
    std::shared_ptr<Catalogo> catalogo = std::make_shared<Catalogo>(host.calls);
};

struct Caso {
    const char* nombre;
    std::function<void(Objetos&)> pasos;
    std::map<std::string, int> guardadas;  // calls per member with reads kept
    std::map<std::string, int> literales;  // the same, literally
};

TEST_F(ReadCache, WhichReadsReachTheHost) {
    const Caso casos[] = {
        {"a catalogue line read twice",
         [](Objetos& o) {
             o.linea(1);
             o.linea(1);
         },
         {{"TableGetLineInfo", 1}},
         {{"TableGetLineInfo", 2}}},
        {"other columns and ranks are other reads",
         [](Objetos& o) {
             o.linea(1, 3);
             o.linea(1, 4);
             o.linea(2, 3);
             o.linea(1, 3);
         },
         {{"TableGetLineInfo", 3}},
         {{"TableGetLineInfo", 4}}},
        {"by code and by name are other members",
         [](Objetos& o) {
             o.catalog->TableGetLineRankFromCode(o.s, 2, 0, 1, u"TR_1", false);
             o.catalog->TableGetLineRankFromName(o.s, 2, 0, 1, u"TR_1", false);
             o.catalog->TableGetLineRankFromCode(o.s, 2, 0, 1, u"TR_1", false);
             o.catalog->TableGetLineRankFromCode(o.s, 2, 0, 1, u"TR_1", true);
             o.catalog->TableGetLineRankFromCode(o.s, 2, 0, 2, u"TR_1", false);
         },
         {{"TableGetLineRankFromCode", 3}, {"TableGetLineRankFromName", 1}},
         {{"TableGetLineRankFromCode", 4}, {"TableGetLineRankFromName", 1}}},
        {"the dictionary by text and language",
         [](Objetos& o) {
             o.catalog->DicoGetStringFromKey(o.s, u"uno", u"ENG");
             o.catalog->DicoGetStringFromKey(o.s, u"uno", u"FRA");
             o.catalog->DicoGetStringFromKey(o.s, u"uno", u"ENG");
         },
         {{"DicoGetStringFromKey", 2}},
         {{"DicoGetStringFromKey", 3}}},
        {"scene reads and the language until a write",
         [](Objetos& o) {
             o.info(-2);
             o.info(-2);
             o.info(100);
             o.appli->GetLanguage(o.s);
             o.scene->ObjectSetInfo(o.s, 100, u"650", 12);
             o.info(-2);
             o.appli->GetLanguage(o.s);
             o.appli->GetLanguage(o.s);
         },
         {{"ObjectGetInfo", 3}, {"GetLanguage", 2}},
         {{"ObjectGetInfo", 4}, {"GetLanguage", 3}}},
        {"a replaced selection forgets the scene, not the catalogue",
         [](Objetos& o) {
             o.scene->ObjectGetChildId(o.s, 100, 1, 0);
             o.linea(1);
             o.scene->EditReplaceSelection(o.s, u"c", u"r", 0, 1, 2, 3, 0);
             o.scene->ObjectGetChildId(o.s, 100, 1, 0);
             o.linea(1);
         },
         {{"ObjectGetChildId", 2}, {"TableGetLineInfo", 1}},
         {{"ObjectGetChildId", 2}, {"TableGetLineInfo", 2}}},
        {"every other scene read is kept",
         [](Objetos& o) {
             for (int i = 0; i < 2; ++i) {
                 o.scene->SceneGetObjectsNb(o.s);
                 o.scene->SceneGetObjectId(o.s, 1);
                 o.scene->ObjectGetParentId(o.s, 100);
                 o.scene->ObjectGetScript(o.s, 100);
                 o.scene->ObjectGetChildrenNb(o.s, 100, 0);
                 o.scene->ObjectGetChildrenNb(o.s, 100, 1);
             }
         },
         {{"SceneGetObjectsNb", 1},
          {"SceneGetObjectId", 1},
          {"ObjectGetParentId", 1},
          {"ObjectGetScript", 1},
          {"ObjectGetChildrenNb", 2}},
         {{"SceneGetObjectsNb", 2},
          {"SceneGetObjectId", 2},
          {"ObjectGetParentId", 2},
          {"ObjectGetScript", 2},
          {"ObjectGetChildrenNb", 4}}},
        {"writes, exports, the view, call parameters and loads always reach the host",
         [](Objetos& o) {
             for (int i = 0; i < 2; ++i) {
                 o.scene->ViewRefresh(o.s);
                 o.appli->GetCallParamsInfo(o.s, 9);
                 o.catalog->FileExportResource(o.s, 1, u"C:\\x.bmp");
                 o.carga(u"a.cat");
                 o.scene->ObjectSetInfo(o.s, 100, u"1", 59);
             }
         },
         {{"ViewRefresh", 2},
          {"GetCallParamsInfo", 2},
          {"FileExportResource", 2},
          {"FileLoad", 2},
          {"ObjectSetInfo", 2}},
         {{"ViewRefresh", 2},
          {"GetCallParamsInfo", 2},
          {"FileExportResource", 2},
          {"FileLoad", 2},
          {"ObjectSetInfo", 2}}},
        {"each loaded file has its answers, found again on return",
         [](Objetos& o) {
             o.linea(1);
             o.carga(u"a.cat");
             o.linea(1);
             o.linea(1);
             o.carga(u"b.cat");
             o.linea(1);
             o.carga(u"a.cat");
             o.linea(1);
             o.catalog->GetInfo(o.s, 17);
             o.carga(u"b.cat");
             o.catalog->GetInfo(o.s, 17);
         },
         {{"TableGetLineInfo", 3}, {"GetInfo", 2}, {"FileLoad", 4}},
         {{"TableGetLineInfo", 5}, {"GetInfo", 2}, {"FileLoad", 4}}},
        {"after a failed load reads pass through until the next good one",
         [](Objetos& o) {
             o.carga(u"a.cat");
             o.linea(1);
             o.carga(u"ausente.cat");
             o.linea(1);
             o.linea(1);
             o.carga(u"a.cat");
             o.linea(1);
         },
         {{"TableGetLineInfo", 3}},
         {{"TableGetLineInfo", 4}}},
        {"a key's text is a copy, not the caller's string",
         [](Objetos& o) {
             String text(5000, u'x');  // longer than the kept texts' blocks
             o.catalog->DicoGetStringFromKey(o.s, text, u"ENG");
             text[0] = u'y';
             o.catalog->DicoGetStringFromKey(o.s, text, u"ENG");
             o.catalog->DicoGetStringFromKey(o.s, String(5000, u'x'), u"ENG");
             o.catalog->DicoGetStringFromKey(o.s, text, u"ENG");
         },
         {{"DicoGetStringFromKey", 2}},
         {{"DicoGetStringFromKey", 4}}},
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
         {{"ObjectGetInfo", 6000}},
         {{"ObjectGetInfo", 9000}}},
        {"many lines of two files, each file's kept apart",
         [](Objetos& o) {
             for (int round = 0; round < 2; ++round) {
                 for (const char16_t* file : {u"a.cat", u"b.cat"}) {
                     o.carga(file);
                     for (int32_t rank = 1; rank <= 500; ++rank) o.linea(rank);
                 }
             }
         },
         {{"TableGetLineInfo", 1000}},
         {{"TableGetLineInfo", 2000}}},
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
         {{"TableGetLineInfo", 3}, {"ObjectGetInfo", 3}},
         {{"TableGetLineInfo", 3}, {"ObjectGetInfo", 3}}},
    };
    catalogo->ausentes = {u"ausente.cat"};
    for (const auto& caso : casos) {
        for (const ReadMode mode : {ReadMode::Cached, ReadMode::Literal}) {
            host.calls = {};
            host::CachingFactory factory(host, mode);
            Objetos o = crea(factory);
            caso.pasos(o);
            const auto& esperadas = mode == ReadMode::Cached ? caso.guardadas : caso.literales;
            for (const auto& [member, n] : esperadas) {
                EXPECT_EQ(preguntas(member.c_str()), n)
                    << caso.nombre << (mode == ReadMode::Cached ? " (kept): " : " (literal): ")
                    << member;
            }
        }
    }
}

TEST_F(ReadCache, AKeptAnswerIsTheHostsFirstAnswer) {
    host::CachingFactory factory(host, ReadMode::Cached);
    Objetos o = crea(factory);
    EXPECT_EQ(o.linea(2), Variant(String(u"MONZA")));
    EXPECT_EQ(o.info(-2, 13), Variant(String(u"560")));
    EXPECT_EQ(o.linea(2), Variant(String(u"MONZA")));
    EXPECT_EQ(o.info(-2, 13), Variant(String(u"560")));
    EXPECT_EQ(o.linea(9), Variant(String()));  // what the host says of a missing rank
}

TEST_F(ReadCache, AnErrorIsNotKept) {
    host::CachingFactory factory(host, ReadMode::Cached);
    Objetos o = crea(factory);
    catalogo->lecturasFallidas = 1;
    EXPECT_THROW(o.linea(1), vb::RuntimeError);
    EXPECT_EQ(o.linea(1), Variant(String(u"TIBER")));
    EXPECT_EQ(o.linea(1), Variant(String(u"TIBER")));
    EXPECT_EQ(preguntas("TableGetLineInfo"), 2);
}

TEST_F(ReadCache, ALoadThatRaisesLeavesNoCurrentFile) {
    host::CachingFactory factory(host, ReadMode::Cached);
    Objetos o = crea(factory);
    o.carga(u"a.cat");
    o.linea(1);
    catalogo->cargaFalla = true;
    EXPECT_THROW(o.carga(u"a.cat"), vb::RuntimeError);
    o.linea(1);
    o.linea(1);
    EXPECT_EQ(preguntas("TableGetLineInfo"), 3);
    EXPECT_EQ(host::fileMemo(*o.catalog), nullptr);
}

TEST_F(ReadCache, AHostThatChangesItsAnswerIsNoFault) {
    for (const ReadMode mode : {ReadMode::Cached, ReadMode::Literal}) {
        SetUp();
        host::CachingFactory factory(host, mode);
        Objetos o = crea(factory);
        EXPECT_EQ(o.linea(1), Variant(String(u"TIBER")));
        catalogo->tables[8].clear();
        host.scene->objects[100].info[12] = u"abc";
        o.info(100);
        const Variant again = o.linea(1);
        EXPECT_EQ(again, Variant(String(mode == ReadMode::Cached ? u"TIBER" : u"")));
    }
}

TEST_F(ReadCache, TheCacheGoesWithTheLastObjectOfTheCall) {
    host::CachingFactory factory(host, ReadMode::Cached);
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
        host::CachingFactory factory(host, ReadMode::Cached);
        o = crea(factory);
        o.linea(1);
    }
    EXPECT_EQ(o.linea(1), Variant(String(u"TIBER")));
    EXPECT_EQ(preguntas("TableGetLineInfo"), 1);
    o = Objetos{};  // the cache goes with them
}

// The memo, and whether the catalogue's reads are kept at all.
TEST_F(ReadCache, FileMemoSitsBesideTheCurrentFilesAnswers) {
    host::CachingFactory literal(host, ReadMode::Literal);
    EXPECT_EQ(host::fileMemo(*host::createCatalog(literal)), nullptr);
    EXPECT_FALSE(host::keepsReads(*host::createCatalog(literal)));

    host::CachingFactory factory(host, ReadMode::Cached);
    catalogo->ausentes = {u"ausente.cat"};
    Objetos o = crea(factory);
    ASSERT_NE(host::fileMemo(*o.catalog), nullptr);  // as at the call's start
    o.carga(u"a.cat");
    *host::fileMemo(*o.catalog) = 1;
    o.carga(u"b.cat");
    EXPECT_FALSE(host::fileMemo(*o.catalog)->has_value());
    *host::fileMemo(*o.catalog) = 2;
    o.carga(u"ausente.cat");
    EXPECT_EQ(host::fileMemo(*o.catalog), nullptr);
    EXPECT_FALSE(host::keepsReads(*o.catalog));
    o.carga(u"a.cat");
    EXPECT_EQ(std::any_cast<int>(*host::fileMemo(*o.catalog)), 1);
    EXPECT_TRUE(host::keepsReads(*o.catalog));
    o.appli->EndSession(o.s);
    o.carga(u"a.cat");
    EXPECT_FALSE(host::fileMemo(*o.catalog)->has_value());
}

}  // namespace
