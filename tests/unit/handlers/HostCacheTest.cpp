// The per-call caching host objects: which repeated reads reach the host and which do not.
#include <gtest/gtest.h>

#include "../rules/FakeHost.h"
#include "handlers/HostCache.h"

namespace {

using vb::String;

class HostCache : public testing::Test {
  protected:
    void SetUp() override {
        host.scene->objects[100].info[12] = u"650";
        host.catalog->tables[3] = {{u"", u"A1", {{3, u"600"}}}};
    }
    int llamadas(const char* member) { return host.calls.byMember[member]; }
    fake::Factory host;
    handlers::CachingFactory factory{host};
    std::shared_ptr<host::Scene> scene =
        std::dynamic_pointer_cast<host::Scene>(factory.CreateObject(host::kProgIdScene));
    std::shared_ptr<host::Catalog> catalog =
        std::dynamic_pointer_cast<host::Catalog>(factory.CreateObject(host::kProgIdCatalog));
    int32_t s = 1;
};

TEST_F(HostCache, SceneReadsAreForgottenAtEveryWrite) {
    EXPECT_EQ(scene->ObjectGetInfo(s, 100, 12).str(), u"650");
    EXPECT_EQ(scene->ObjectGetInfo(s, 100, 12).str(), u"650");
    EXPECT_EQ(llamadas("ObjectGetInfo"), 1);
    scene->ObjectSetInfo(s, 100, u"600", 12);
    EXPECT_EQ(scene->ObjectGetInfo(s, 100, 12).str(), u"600");
    EXPECT_EQ(llamadas("ObjectGetInfo"), 2);
    scene->EditReplaceSelection(s, u"x.cat", u"A1", 0, 1, 2, 3, 0);
    scene->ObjectGetInfo(s, 100, 12);
    EXPECT_EQ(llamadas("ObjectGetInfo"), 3);
    EXPECT_EQ(llamadas("ObjectSetInfo"), 1);
    EXPECT_EQ(llamadas("EditReplaceSelection"), 1);
}

TEST_F(HostCache, CatalogueReadsAreKeptPerCatalogueFile) {
    const auto lee = [&] { return catalog->TableGetLineRankFromName(s, 3, 0, 1, u"A1", false); };
    lee();  // before any load
    catalog->FileLoad(s, u"C:\\a.cat");
    lee();
    lee();
    catalog->FileLoad(s, u"C:\\b.cat");
    lee();
    catalog->FileLoad(s, u"C:\\a.cat");
    lee();
    EXPECT_EQ(llamadas("TableGetLineRankFromName"), 3);  // none, a, b
    EXPECT_EQ(llamadas("FileLoad"), 3);                  // every load reaches the host
}

TEST_F(HostCache, WritesAndMessagesOfOtherMembersPassThrough) {
    auto appli = std::dynamic_pointer_cast<host::Appli>(factory.CreateObject(host::kProgIdAppli));
    appli->GetLanguage(s);
    appli->GetLanguage(s);
    String command = u"ViewRefresh";
    appli->InsertMenuItem(s, command, 0, 0, u"", 8, 10, u"Quorbel.dll", u"Plugin", u"SceneCheck");
    scene->ViewRefresh(s);
    scene->ViewRefresh(s);
    EXPECT_EQ(llamadas("GetLanguage"), 1);
    EXPECT_EQ(llamadas("InsertMenuItem"), 1);
    EXPECT_EQ(llamadas("ViewRefresh"), 2);
}

}  // namespace
