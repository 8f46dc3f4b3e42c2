// Picture names that may not become files of the temporary folder.
#include <gtest/gtest.h>

#include "dialog/NombreSeguro.h"
#include "vb/Strings.h"

namespace {

TEST(NombreSeguro, RefusesPathsAndDevices) {
    const std::pair<const char16_t*, bool> cases[] = {
        {u"PIC1", true},      {u"pic1.bmp", true},  {u"CONSOLA", true},   {u"COM10", true},
        {u"", false},         {u"..", false},       {u"a..b", false},     {u"..\\x", false},
        {u"sub\\PIC", false}, {u"sub/PIC", false},  {u"C:PIC", false},    {u"CON", false},
        {u"con.bmp", false},  {u"Nul", false},      {u"PRN.txt", false},  {u"AUX", false},
        {u"COM1", false},     {u"lpt9.jpg", false}, {u"CON .bmp", false},
    };
    for (const auto& [nombre, esperado] : cases) {
        SCOPED_TRACE(vb::toUtf8(nombre));
        EXPECT_EQ(dialog::nombreSeguro(nombre), esperado);
    }
}

}  // namespace
