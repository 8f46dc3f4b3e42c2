// The rules' preparation with reads kept for the call, where a catalogue prepared before in the
// call is applied again without reading: after every step the rule tables are exactly those of
// the literal run, leftovers of earlier catalogues included, and no member is asked more often.
#include <gtest/gtest.h>

#include <map>

#include "../rules/FakeHost.h"
#include "common/Catalogo.h"
#include "common/ModVariables.h"
#include "handlers/Preparacion.h"
#include "host/CachingFactory.h"
#include "vb/Conversions.h"

namespace {

using host::ReadMode;
using vb::String;

using Tablas = std::map<int, std::vector<fake::Line>>;

// A catalogue host that serves each file's tables after its load; an unknown file fails to
// load and leaves the previous tables current, and reads of table 8 may raise for a while.
class Catalogos : public fake::Catalog {
  public:
    using fake::Catalog::Catalog;
    std::map<String, Tablas> ficheros;
    int fallosTabla8 = 0;
    host::Variant FileLoad(int32_t& s, const String& path) override {
        fake::Catalog::FileLoad(s, path);
        const auto it = ficheros.find(path);
        if (it == ficheros.end()) return false;
        tables = it->second;
        return true;
    }
    host::Variant TableGetLineRankFromCode(int32_t& s, int32_t t, int32_t z, int16_t sel,
                                           const String& code, bool flag) override {
        if (t == 8 && fallosTabla8 > 0 && fallosTabla8--) throw vb::RuntimeError(440, u"busy");
        return fake::Catalog::TableGetLineRankFromCode(s, t, z, sel, code, flag);
    }
};

fake::Line modelo(const String& code, const String& name, const String& script = u"s") {
    return {code, u"", {{1, code}, {3, name}, {4, script}}};
}

fake::Line regla(const String& code, const String& text) {
    return {code, u"", {{2, text}}};
}

// Three valid models, width allowed by a list, height for all, an exception list for width.
Tablas catalogoA() {
    return {{2,
             {regla(u"MO_EA", u"MO: M02 M03"), regla(u"MO_EAl", u"MO: ALL"),
              regla(u"EX_EA", u"EX: R1 R2"), regla(u"EX_EAF", u"EX: R5")}},
            {8,
             {modelo(u"M01", u"TIBER"), modelo(u"M02", u"MONZA"), modelo(u"M09", u"@OCULTO"),
              modelo(u"M03", u"URAL")}}};
}

// Two models, one without script; no width exceptions (the earlier list stays).
Tablas catalogoB() {
    return {{2, {regla(u"MO_EF", u"MO:  M01 X"), regla(u"EX_EAAF", u"EX: R7")}},
            {8, {modelo(u"M01", u"LAZIO"), modelo(u"M02", u"SIN", u"")}}};
}

// No valid door model at all.
Tablas catalogoC() {
    return {{2, {regla(u"EX_EA", u"EX:")}}, {8, {modelo(u"M01", u"@X")}}};
}

struct Reglas {
    std::vector<String> modelos;
    int16_t numModelos;
    std::array<common::ListaExcepciones, common::kNumTipos> excepciones;
    std::vector<std::vector<bool>> permisos;
    bool error;
    bool operator==(const Reglas&) const = default;
};

struct Juego {
    std::vector<Reglas> pasos;
    std::map<std::string, int> preguntas;
};

// One call that loads and prepares `ficheros` in turn; the rule tables after each step.
Juego juega(ReadMode mode, const std::vector<String>& ficheros, int fallosTabla8) {
    auto& mv = common::modVariables();
    mv = common::ModVariables{};
    mv.modelos = {u"V1", u"V2", u"V3", u"V4", u"V5", u"V6"};  // an earlier catalogue's
    mv.excepciones[2] = std::vector<String>{u"", u"VIEJA"};
    fake::Platform platform;
    platform.profile[u"Local"] = u"C:\\Cat";
    fake::Factory host;
    auto catalogos = std::make_shared<Catalogos>(host.calls);
    catalogos->ficheros = {{u"C:\\Cat\\a.cat", catalogoA()},
                           {u"C:\\Cat\\b.cat", catalogoB()},
                           {u"C:\\Cat\\c.cat", catalogoC()}};
    catalogos->fallosTabla8 = fallosTabla8;
    host.catalog = catalogos;
    for (const auto& f : ficheros) platform.files[u"C:\\Cat\\" + f + u".cat"] = 1;
    host::CachingFactory factory(host, mode);
    env::Env env{platform, factory};
    mv.miAppli = host::createAppli(factory);
    mv.miScene = host::createScene(factory);
    mv.miCatalog = host::createCatalog(factory);
    int32_t block = 1;
    mv.miSessionId = vb::CLng(mv.miAppli->StartSessionFromCallParams(block));
    mv.dirCatalogos = u"C:\\Cat\\";
    int32_t id = 100;  // one cabinet per step, of that step's catalogue
    for (const auto& f : ficheros) host.scene->objects[id += 10].info[0] = f;
    Juego juego;
    id = 100;
    for (size_t i = 0; i < ficheros.size(); ++i) {
        bool error = false;
        try {
            common::cargaCatalogoObjeto(env, id += 10);
            handlers::preparaReglasDe(id, true);
        } catch (const vb::RuntimeError&) {
            error = true;
        }
        juego.pasos.push_back(
            {mv.modelos, mv.numModelos, mv.excepciones, mv.permisosModelo, error});
    }
    mv = common::ModVariables{};
    juego.preguntas = host.calls.byMember;
    return juego;
}

TEST(PreparacionModos, KeptPreparationsHaveTheLiteralEffect) {
    const struct {
        const char* nombre;
        std::vector<String> ficheros;
        int fallosTabla8;
    } casos[] = {
        {"alternating catalogues", {u"a", u"b", u"a", u"b", u"a"}, 0},
        {"a failed load prepares what the host still holds", {u"a", u"zz", u"b", u"zz", u"a"}, 0},
        {"no door model between two", {u"b", u"c", u"b", u"c", u"a", u"c"}, 0},
        {"an error leaves nothing kept", {u"a", u"a", u"b", u"a"}, 1},
        {"errors on two preparations", {u"a", u"b", u"a", u"b"}, 2},
    };
    for (const auto& caso : casos) {
        const Juego guardado = juega(ReadMode::Cached, caso.ficheros, caso.fallosTabla8);
        const Juego literal = juega(ReadMode::Literal, caso.ficheros, caso.fallosTabla8);
        ASSERT_EQ(guardado.pasos.size(), literal.pasos.size());
        for (size_t i = 0; i < literal.pasos.size(); ++i) {
            EXPECT_TRUE(guardado.pasos[i] == literal.pasos[i]) << caso.nombre << ", step " << i;
        }
        for (const auto& [member, n] : guardado.preguntas) {
            EXPECT_LE(n, literal.preguntas.at(member)) << caso.nombre << ": " << member;
        }
        EXPECT_EQ(guardado.preguntas.at("FileLoad"), literal.preguntas.at("FileLoad"));
    }
}

TEST(PreparacionModos, APreparedCatalogueIsNotReadAgain) {
    const Juego una = juega(ReadMode::Cached, {u"a"}, 0);
    const Juego varias = juega(ReadMode::Cached, {u"a", u"b", u"a", u"b", u"a"}, 0);
    const Juego dos = juega(ReadMode::Cached, {u"a", u"b"}, 0);
    EXPECT_EQ(varias.preguntas.at("TableGetLineInfo"), dos.preguntas.at("TableGetLineInfo"));
    EXPECT_GT(dos.preguntas.at("TableGetLineInfo"), una.preguntas.at("TableGetLineInfo"));
}

}  // namespace
