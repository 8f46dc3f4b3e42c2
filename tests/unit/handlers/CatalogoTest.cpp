// Catalogue directory from SPACE.INI (section order, 63-character cut), the text reader, and
// the search of the catalogue file in sub-folders.
#include <gtest/gtest.h>

#include "../CaseNames.h"
#include "../rules/FakeHost.h"
#include "common/Catalogo.h"
#include "common/ModVariables.h"
#include "native/SimPlatform.h"

namespace {

using vb::String;

// SPACE.INI as the simulated machine holds it, read through the native profile reader.
struct IniCase {
    const char* name;
    String ini;
    String expected;
};
void PrintTo(const IniCase& c, std::ostream* os) {
    *os << c.name;
}

const IniCase kIniCases[] = {
    {"RemoteOnly", u"[Remote]\r\nCatalogsDir=R:\\Cat\r\n", u"R:\\Cat"},
    {"LocalBeatsInSitu", u"[InSitu]\r\nCatalogsDir=I:\\Cat\r\n[Local]\r\nCatalogsDir=L:\\Cat\r\n",
     u"L:\\Cat"},
    {"InSituBeatsRemote", u"[Remote]\r\nCatalogsDir=R:\\Cat\r\n[InSitu]\r\nCatalogsDir=I:\\Cat\r\n",
     u"I:\\Cat"},
    {"None", u"[Local]\r\nOther=1\r\n", u""},
    {"Exactly63", u"[Local]\r\nCatalogsDir=" + String(63, u'a') + u"\r\n", String(63, u'a')},
    {"LongerIsCut", u"[Local]\r\nCatalogsDir=" + String(70, u'b') + u"\r\n", String(63, u'b')},
};

class Ini : public testing::TestWithParam<IniCase> {};

TEST_P(Ini, SectionOrderAndCut) {
    sim::World world;
    world.files.putFile(u"C:\\Quorbel\\SPACE.INI", GetParam().ini);
    sim::Simulation simulation(std::move(world));
    native::SimPlatform platform(simulation);
    env::Env env{platform, simulation.factory()};
    EXPECT_EQ(common::leeDirCatalogos(env), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, Ini, testing::ValuesIn(kIniCases), casos::PorNombre());

struct TextCase {
    const char* name;
    std::vector<String> lines;
    String expected;
};
void PrintTo(const TextCase& c, std::ostream* os) {
    *os << c.name;
}

const TextCase kTextCases[] = {
    {"LocalFirstLine", {u"[Local]", u"CatalogsDir=C:\\Cat", u"Other=1"}, u"C:\\Cat"},
    {"LaterRemoteReplaces",
     {u"[Local]", u"CatalogsDir=C:\\Cat", u"[Remote]", u"CatalogsDir=D:\\Cat"},
     u"D:\\Cat"},
    {"ValueStopsAtNextEquals", {u"[Remote]", u"CatalogsDir=C:\\A=B"}, u"C:\\A"},
    {"NoValueEndsAtEndOfFile", {u"[Local]", u"Other=1"}, u""},
    {"HeaderAtEndOfFile", {u"x", u"[Local]"}, u""},
    {"OnlyTheLineAfterTheHeader", {u"[Local]", u"Other=1", u"CatalogsDir=C:\\Cat"}, u""},
    {"EmptyFile", {}, u""},
};

class IniTexto : public testing::TestWithParam<TextCase> {};

TEST_P(IniTexto, Reads) {
    fake::Platform platform;
    fake::Factory factory;
    env::Env env{platform, factory};
    platform.textLines = GetParam().lines;
    EXPECT_EQ(common::leeDirCatalogosTexto(env), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, IniTexto, testing::ValuesIn(kTextCases), casos::PorNombre());

class Busqueda : public testing::Test {
  protected:
    void SetUp() override {
        mv = common::ModVariables{};
        mv.miScene = factory.scene;
        mv.miCatalog = factory.catalog;
        mv.miSessionId = 1;
        mv.dirCatalogos = u"C:\\Cat\\";
        factory.scene->objects[100].info[0] = u"forma10";
        platform.listings[u"C:\\Cat\\"] = {{u".", true}, {u"..", true}, {u"A", true},
                                           {u"B", true}, {u"C", true},  {u"forma10.txt", false}};
    }
    String carga() { return common::cargaCatalogoObjeto(env, -2).ruta; }
    common::ModVariables& mv = common::modVariables();
    fake::Platform platform;
    fake::Factory factory;
    env::Env env{platform, factory};
};

TEST_F(Busqueda, DirectPathFirst) {
    platform.files[u"C:\\Cat\\forma10.cat"] = 10;
    platform.files[u"C:\\Cat\\B\\forma10.cat"] = 10;
    EXPECT_EQ(carga(), u"C:\\Cat\\forma10.cat");
}

TEST_F(Busqueda, LaterSubFolderWinsAndEmptyFilesAreNotTaken) {
    platform.files[u"C:\\Cat\\A\\forma10.cat"] = 10;
    platform.files[u"C:\\Cat\\B\\forma10.cat"] = 10;
    platform.files[u"C:\\Cat\\C\\forma10.cat"] = 0;
    EXPECT_EQ(carga(), u"C:\\Cat\\B\\forma10.cat");
    EXPECT_EQ(factory.catalog->loads, (std::vector<String>{u"C:\\Cat\\B\\forma10.cat"}));
}

TEST_F(Busqueda, NotFoundStillLoadsTheDirectPath) {
    EXPECT_EQ(carga(), u"C:\\Cat\\forma10.cat");
    EXPECT_EQ(factory.catalog->loads.size(), 1u);
}

}  // namespace
