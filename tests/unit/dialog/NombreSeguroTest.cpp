// Picture names that may not become files of the temporary folder.
#include <gtest/gtest.h>

#include <string>

#include "dialog/NombreSeguro.h"
#include "vb/Strings.h"

namespace {

using namespace std::string_literals;

TEST(NombreSeguro, RefusesPathsAndDevices) {
    const std::pair<vb::String, bool> cases[] = {
        {u"PIC1", true},      {u"pic1.bmp", true},  {u"CONSOLA", true},   {u"COM10", true},
        {u"", false},         {u"..", false},       {u"a..b", false},     {u"..\\x", false},
        {u"sub\\PIC", false}, {u"sub/PIC", false},  {u"C:PIC", false},    {u"CON", false},
        {u"con.bmp", false},  {u"Nul", false},      {u"PRN.txt", false},  {u"AUX", false},
        {u"COM1", false},     {u"lpt9.jpg", false}, {u"CON .bmp", false}, {u"Caj\u00F3n.jpg", true},
    };
    for (const auto& [nombre, esperado] : cases) {
        SCOPED_TRACE(vb::toUtf8(nombre));
        EXPECT_EQ(dialog::nombreSeguro(nombre), esperado);
    }
}

// Found by fuzzing: names that stand for the folder itself, that a NUL cuts short, devices with
// a superscript digit or a blank in front, and what a narrow code page's best fit makes of
// fullwidth letters, dots and the yen sign ("CON", "..", "\").
TEST(NombreSeguro, RefusesWhatWindowsReadsAsTheFolderOrADevice) {
    const std::pair<vb::String, bool> cases[] = {
        {u".", false},
        {u" ", false},
        {u". .", false},
        {u"NUL\0x"s, false},
        {u"PIC\tx", false},
        {u"COM0", false},
        {u"COM\u00B9", false},
        {u"lpt\u00B3.bmp", false},
        {u"CONIN$", false},
        {u"conout$.x", false},
        {u" NUL", false},
        {u"\uFF23\uFF2F\uFF2E", false},
        {u"a\uFF0E\uFF0Eb", false},
        {u"a\u00A5b", false},
        {u"a\u2215b", false},
        {u"\uFF30\uFF29\uFF23", true},
    };
    for (const auto& [nombre, esperado] : cases) {
        SCOPED_TRACE(vb::toUtf8(nombre));
        EXPECT_EQ(dialog::nombreSeguro(nombre), esperado);
    }
}

}  // namespace
