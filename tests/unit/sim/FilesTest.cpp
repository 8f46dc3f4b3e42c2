// Windows paths on the virtual machine: normalisation, writes and folder creation, wildcards.
#include <gtest/gtest.h>

#include "native/DirListing.h"
#include "sim/VirtualFs.h"
#include "vb/Strings.h"

namespace {

using vb::String;

TEST(Paths, NormaliseAsWindowsDoes) {
    struct Case {
        const char16_t* given;
        const char16_t* text;  // null: refused
    };
    for (const Case& c : {Case{u"c:/Cat//forma10.cat", u"C:\\Cat\\forma10.cat"},
                          Case{u"C:\\Cat\\A\\..\\.\\B\\", u"C:\\Cat\\B"},
                          Case{u"\\forma10.cat", u"C:\\forma10.cat"}, Case{u"D:\\", u"D:\\"},
                          Case{u"C:\\Cat\\name. ", u"C:\\Cat\\name"}, Case{u"C:\\a<b", nullptr},
                          Case{u"C:\\a\\b:c", nullptr}, Case{u"", nullptr}}) {
        const auto parsed = sim::parsePath(c.given);
        if (!c.text) {
            EXPECT_FALSE(parsed) << vb::toUtf8(c.given);
            continue;
        }
        ASSERT_TRUE(parsed) << vb::toUtf8(c.given);
        EXPECT_EQ(parsed->text(), c.text);
    }
    EXPECT_EQ(sim::parsePath(u"c:\\ÁRBOL")->key(), sim::parsePath(u"C:\\árbol")->key());
}

TEST(Files, WritesNeedTheirFolder) {
    sim::VirtualFs fs;
    fs.putFile(u"C:\\Quorbel\\SPACE.INI", u"x");
    EXPECT_EQ(fs.writeFile(u"C:\\Quorbel\\Temp\\a.bmp", u"1"), sim::WriteResult::Failed);
    EXPECT_EQ(fs.writeFile(u"C:\\Quorbel", u"1"), sim::WriteResult::Failed);  // a folder
    EXPECT_EQ(fs.writeFile(u"C:\\Quorbel\\a.bmp", u"12"), sim::WriteResult::Created);
    EXPECT_EQ(fs.writeFile(u"c:\\quorbel\\A.BMP", u"123"), sim::WriteResult::Replaced);
    EXPECT_EQ(fs.fileSize(u"C:\\Quorbel\\a.bmp"), 3);
    using R = sim::VirtualFs::MkDirResult;
    EXPECT_EQ(fs.createFolder(u"C:\\New"), R::Created);  // under the drive root
    EXPECT_EQ(fs.createFolder(u"C:\\New\\"), R::Exists);
    EXPECT_EQ(fs.createFolder(u"C:\\Quorbel\\SPACE.INI"), R::Exists);
    EXPECT_EQ(fs.createFolder(u"C:\\None\\Sub"), R::NoParent);
    EXPECT_EQ(fs.createFolder(u"C:\\a|b"), R::BadPath);
    EXPECT_TRUE(fs.folderExists(u"C:\\"));
    EXPECT_FALSE(fs.folderExists(u"E:\\"));
}

TEST(Files, WildcardsIgnoreCase) {
    struct Case {
        const char16_t* pattern;
        const char16_t* name;
        bool match;
    };
    for (const Case& c :
         {Case{u"*.cat", u"FORMA10.CAT", true}, Case{u"f?rma*", u"forma10.cat", true},
          Case{u"*.cat", u"forma10.ca", false}, Case{u"a*b*c", u"aXbYc", true},
          Case{u"a*b*c", u"aXbY", false}, Case{u"*", u"", true}}) {
        EXPECT_EQ(native::wildcardMatch(c.pattern, c.name), c.match) << vb::toUtf8(c.pattern);
    }
}

}  // namespace
