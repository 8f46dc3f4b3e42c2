// SPACE.INI as the plug-in reads it: the simulated platform's profile reader (iniValue and the
// profile function's answer, through leeDirCatalogos) and the Wizard's text reader
// (leeDirCatalogosTexto). The input is the file's text, a section and a key, cut at 0xFF.
//
// Properties:
// - a value read is one line's text: no line break, and found in the file as it is;
// - the profile reader does not depend on line ends (LF or CR LF), on a comment line in
//   front, or on the letter case of the section and key asked for;
// - leeDirCatalogos answers at most 63 characters, "" when no line names CatalogsDir;
// - leeDirCatalogosTexto never fails on a file that is there, and answers text between two
//   "=" of a line holding "CatalogsDir=" ("" when none does).
#include "FuzzCheck.h"
#include "common/Catalogo.h"
#include "native/IniProfile.h"
#include "native/SimPlatform.h"
#include "sim/Player.h"
#include "vb/Strings.h"

namespace {

using vb::Compare;
using vb::String;

bool contains(const String& text, const String& part) {
    return text.find(part) != String::npos;
}

bool isOneLineOf(const String& value, const String& file) {
    return !contains(value, u"\r") && !contains(value, u"\n") && contains(file, value);
}

String asciiUpper(String text) {
    for (auto& c : text)
        if (c >= u'a' && c <= u'z') c = static_cast<char16_t>(c - u'a' + u'A');
    return text;
}

String withCrLf(const String& text) {
    return vb::Replace(text, u"\n", u"\r\n");
}

void checkProfileReader(const String& file, const String& section, const String& key) {
    const auto value = native::iniValue(file, section, key);
    if (value) FUZZ_CHECK(isOneLineOf(*value, file));
    FUZZ_CHECK(native::iniValue(withCrLf(file), section, key) == value);
    FUZZ_CHECK(native::iniValue(u"; SPACE.INI\n" + file, section, key) == value);
    FUZZ_CHECK(native::iniValue(file, asciiUpper(section), asciiUpper(key)) == value);
    FUZZ_CHECK(native::profileAnswer(value, section, 64).size() <= 63);
}

void checkHandlersReaders(const String& file) {
    sim::World world;
    world.files.putFile(world.application.moduleDir + u"\\SPACE.INI", file);
    sim::Simulation simulation(std::move(world));
    native::SimPlatform platform(simulation);
    env::Env env{platform, simulation.factory(), nullptr};

    const String perfil = common::leeDirCatalogos(env);
    FUZZ_CHECK(perfil.size() <= 63 && isOneLineOf(perfil, file));
    if (vb::InStr(file, u"CatalogsDir", Compare::Text) == 0) FUZZ_CHECK(perfil.empty());

    const String texto = common::leeDirCatalogosTexto(env);
    FUZZ_CHECK(isOneLineOf(texto, file) && !contains(texto, u"="));
    if (!contains(file, u"CatalogsDir=")) FUZZ_CHECK(texto.empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto t = fuzzcheck::texts(data, size, 3);
    checkProfileReader(t[0], t[1], t[2]);
    checkHandlersReaders(t[0]);
    return 0;
}
