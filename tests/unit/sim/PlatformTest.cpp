// The native platform over the virtual files: profile reads, Dir, sizes, folders, text lines and
// the attribute dialog.
#include <gtest/gtest.h>

#include "native/IniProfile.h"
#include "native/SimPlatform.h"
#include "vb/Errors.h"

namespace {

using vb::String;

const String kIni = u"C:\\Quorbel\\SPACE.INI";

class Platform : public ::testing::Test {
  protected:
    Platform() : simulation(world()), platform(simulation) {}

    static sim::World world() {
        sim::World w;
        w.files.putFile(kIni,
                        u"; settings\r\n[Remote]\r\nCatalogsDir=R\r\n[local]\r\n"
                        u" catalogsdir = \"L\" \r\n[Local]\r\nCatalogsDir=second\r\n"
                        u"[Long]\r\nCatalogsDir=" +
                            String(70, u'x') + u"\r\n");
        w.files.putFile(u"C:\\Cat\\B\\forma10.cat", u"abc");
        w.files.putFileOfSize(u"C:\\Cat\\A\\forma10.cat", 0);
        w.files.putFile(u"C:\\Cat\\top.cat", u"");
        return w;
    }
    String profile(const String& section, uint32_t size = 64, const String& file = kIni) {
        String buffer;
        const uint32_t n =
            platform.GetPrivateProfileString(section, u"CatalogsDir", u"def", buffer, size, file);
        EXPECT_EQ(n, buffer.size());
        return buffer;
    }
    std::vector<String> names(const String& pattern, bool folders) {
        std::vector<String> out;
        for (const auto& e : platform.dir(pattern, folders)) out.push_back(e.name);
        return out;
    }

    sim::Simulation simulation;
    native::SimPlatform platform;
};

TEST_F(Platform, ProfileReadsFollowWindows) {
    EXPECT_EQ(profile(u"LOCAL"), u"L");  // first section of the name, case-free, unquoted
    EXPECT_EQ(profile(u"Remote"), u"R");
    EXPECT_EQ(profile(u"InSitu"), u"def");
    EXPECT_EQ(profile(u"Long"), String(63, u'x'));  // a 64-unit buffer holds 63 characters
    EXPECT_EQ(profile(u"Long", 10), String(9, u'x'));
    EXPECT_EQ(profile(u"Local", 0), u"");
    EXPECT_EQ(profile(u"Local", 64, u"C:\\Quorbel\\none.ini"), u"def");
    EXPECT_EQ(profile(u"Local", 64, u"c:/quorbel/space.ini"), u"L");
}

TEST_F(Platform, DirListsInCreationOrderWithDotsBelowTheRoot) {
    EXPECT_EQ(names(u"C:\\Cat\\", true),
              (std::vector<String>{u".", u"..", u"B", u"A", u"top.cat"}));
    EXPECT_EQ(names(u"c:\\cat\\", false), (std::vector<String>{u"top.cat"}));
    EXPECT_EQ(names(u"C:\\", true), (std::vector<String>{u"Quorbel", u"Cat"}));
    EXPECT_EQ(names(u"C:\\Cat\\B\\FORMA10.CAT", false), (std::vector<String>{u"forma10.cat"}));
    EXPECT_EQ(names(u"C:\\Cat\\B", false), (std::vector<String>{}));
    EXPECT_EQ(names(u"C:\\Cat\\B", true), (std::vector<String>{u"B"}));
    EXPECT_EQ(names(u"C:\\Cat\\*.cat", false), (std::vector<String>{u"top.cat"}));
    EXPECT_EQ(names(u"C:\\Nowhere\\", true), (std::vector<String>{}));
    EXPECT_THROW(platform.dir(u"C:\\a|b", false), vb::RuntimeError);
}

TEST_F(Platform, FileLengthsAndFolders) {
    EXPECT_EQ(platform.fileLength(u"C:\\Cat\\B\\forma10.cat"), 3);
    EXPECT_EQ(platform.fileLength(u"C:\\Cat\\A\\forma10.cat"), 0);
    try {
        platform.fileLength(u"C:\\Cat\\C\\forma10.cat");
        FAIL();
    } catch (const vb::RuntimeError& e) {
        EXPECT_EQ(e.number(), 53);
    }
    EXPECT_TRUE(platform.folderExists(u"C:\\Cat\\A"));
    EXPECT_FALSE(platform.folderExists(u"C:\\Cat\\top.cat"));
    struct Case {
        const char16_t* path;
        int error;  // 0: created
    };
    for (const Case& c : {Case{u"C:\\Quorbel\\Textures", 0}, Case{u"C:\\Quorbel\\Textures", 75},
                          Case{u"C:\\X\\Y", 76}, Case{u"C:\\Quorbel\\Textures\\Temp", 0}}) {
        try {
            platform.createFolder(c.path);
            EXPECT_EQ(c.error, 0) << vb::toUtf8(c.path);
        } catch (const vb::RuntimeError& e) {
            EXPECT_EQ(e.number(), c.error) << vb::toUtf8(c.path);
        }
    }
    EXPECT_TRUE(platform.folderExists(u"c:\\quorbel\\textures\\temp\\"));
}

TEST_F(Platform, TextLinesEndAtAnyLineBreak) {
    EXPECT_EQ(native::splitLines(u"a\r\nb\nc\rd"), (std::vector<String>{u"a", u"b", u"c", u"d"}));
    EXPECT_EQ(native::splitLines(u"a\r\n\r\n"), (std::vector<String>{u"a", u""}));
    EXPECT_EQ(native::splitLines(u""), (std::vector<String>{}));
    EXPECT_THROW(platform.readTextLines(u"C:\\none.txt"), vb::RuntimeError);
}

TEST_F(Platform, AttributeDialogTextIsCutToTheBuffer) {
    sim::CallSpec spec;
    spec.attributeDialog[150] = u"123456789012";
    simulation.state().call = {1005, &spec};
    const int32_t handle = simulation.state().attributeDialogHandle();
    EXPECT_EQ(platform.GetDlgItemText(handle, 150, 11), u"1234567890");
    EXPECT_EQ(platform.GetDlgItemText(handle, 151, 11), u"");
    EXPECT_EQ(platform.GetDlgItemText(handle + 1, 150, 11), u"");
}

}  // namespace
