// The catalogue directory from SPACE.INI (section order, letter case, empty values, the
// 63-character cut), the Wizard's text reader of Space.ini, and the catalogue file taken
// before any sub-folder: all on the simulated machine's files.
#include <gtest/gtest.h>

#include <optional>

#include "../CaseNames.h"
#include "../OpenCall.h"
#include "common/Catalogo.h"
#include "vb/Strings.h"

namespace {

using vb::String;

struct IniCase {
    const char* name;
    std::optional<String> ini;  // none: no SPACE.INI
    String expected;
};
void PrintTo(const IniCase& c, std::ostream* os) {
    *os << c.name;
}

const String k63(63, u'a');

const IniCase kIniCases[] = {
    {"RemoteOnly", u"[Remote]\r\nCatalogsDir=R:\\Cat\r\n", u"R:\\Cat"},
    {"LocalBeatsInSitu", u"[InSitu]\r\nCatalogsDir=I:\\Cat\r\n[Local]\r\nCatalogsDir=L:\\Cat\r\n",
     u"L:\\Cat"},
    {"InSituBeatsRemote", u"[Remote]\r\nCatalogsDir=R:\\Cat\r\n[InSitu]\r\nCatalogsDir=I:\\Cat\r\n",
     u"I:\\Cat"},
    {"SectionAndKeyInAnyCase", u"[LOCAL]\r\ncatalogsdir=L\r\n[InSitu]\r\nCatalogsDir=I\r\n", u"L"},
    {"AnEmptyValueGoesOn", u"[Local]\r\nCatalogsDir=\r\n[Remote]\r\nCatalogsDir=R\r\n", u"R"},
    {"NoSuchKey", u"[Local]\r\nOther=1\r\n[Other]\r\nCatalogsDir=O\r\n", u""},
    {"NoFile", std::nullopt, u""},
    {"Exactly63", u"[Local]\r\nCatalogsDir=" + k63 + u"\r\n", k63},
    {"LongerIsCut", u"[InSitu]\r\nCatalogsDir=" + k63 + u"bbbbbbb", k63},
};

class Ini : public testing::TestWithParam<IniCase> {};

TEST_P(Ini, SectionOrderAndCut) {
    sim::World world;
    if (GetParam().ini) world.files.putFile(u"C:\\Quorbel\\SPACE.INI", *GetParam().ini);
    tests::OpenCall call(std::move(world));
    EXPECT_EQ(common::leeDirCatalogos(call.env), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, Ini, testing::ValuesIn(kIniCases), casos::PorNombre());

struct TextCase {
    const char* name;
    const char16_t* text;
    String expected;
};
void PrintTo(const TextCase& c, std::ostream* os) {
    *os << c.name;
}

const TextCase kTextCases[] = {
    {"LocalFirstLine", u"[Local]\r\nCatalogsDir=C:\\Cat\r\nOther=1\r\n", u"C:\\Cat"},
    {"LaterRemoteReplaces",
     u"[Local]\r\nCatalogsDir=C:\\Cat\r\n[Remote]\r\nCatalogsDir=D:\\Cat\r\n", u"D:\\Cat"},
    {"ValueStopsAtNextEquals", u"[Remote]\r\nCatalogsDir=C:\\A=B\r\n", u"C:\\A"},
    {"NoValueEndsAtEndOfFile", u"[Local]\r\nOther=1\r\n", u""},
    {"HeaderAtEndOfFile", u"x\r\n[Local]\r\n", u""},
    {"OnlyTheLineAfterTheHeader", u"[Local]\r\nOther=1\r\nCatalogsDir=C:\\Cat\r\n", u""},
    {"EmptyFile", u"", u""},
};

class IniTexto : public testing::TestWithParam<TextCase> {};

TEST_P(IniTexto, Reads) {
    sim::World world;
    world.files.putFile(u"C:\\Quorbel\\Space.ini", GetParam().text);
    tests::OpenCall call(std::move(world));
    EXPECT_EQ(common::leeDirCatalogosTexto(call.env), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, IniTexto, testing::ValuesIn(kTextCases), casos::PorNombre());

// The path cargaCatalogoObjeto hands to FileLoad (once) for cabinet 100 of catalogue file
// forma10 under C:\Cat, with `files` on the machine.
String cargaDe(const std::vector<String>& files) {
    sim::World world;
    for (const auto& file : files) world.files.putFile(file, u"catalogue");
    world.scene.add(100).info[0] = u"forma10";
    tests::OpenCall call(std::move(world));
    common::modVariables().dirCatalogos = u"C:\\Cat\\";
    const String ruta = common::cargaCatalogoObjeto(call.env, -2).ruta;
    const auto loads = call.events("fileLoad");
    EXPECT_EQ(loads.size(), 1u);
    for (const auto& load : loads) EXPECT_EQ(load["path"], vb::toUtf8(ruta));
    return ruta;
}

TEST(CargaCatalogoObjeto, TakesTheDirectPathBeforeAnySubFolder) {
    EXPECT_EQ(cargaDe({u"C:\\Cat\\forma10.cat", u"C:\\Cat\\B\\forma10.cat"}),
              u"C:\\Cat\\forma10.cat");
}

TEST(CargaCatalogoObjeto, LoadsTheDirectPathWhenTheFileIsNowhere) {
    EXPECT_EQ(cargaDe({u"C:\\Cat\\A\\other.cat"}), u"C:\\Cat\\forma10.cat");
}

}  // namespace
