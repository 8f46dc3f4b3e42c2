// The rules' preparation with reads kept for the call, where a catalogue prepared before in the
// call is applied again without reading: after every step the rule tables are exactly those of
// the literal run, leftovers of earlier catalogues included, and no member is asked more often.
#include <gtest/gtest.h>

#include <set>

#include "../OpenCall.h"
#include "common/Catalogo.h"
#include "handlers/Preparacion.h"
#include "vb/Errors.h"

namespace {

using host::ReadMode;
using vb::String;

struct Linea {
    const char16_t *code, *text;
};
struct Modelo {
    const char16_t *code, *name, *script;
};

void catalogo(sim::World& world, const char16_t* nombre, std::vector<Linea> reglas,
              std::vector<Modelo> modelos) {
    auto& cat = world.addCatalog(u"C:\\Cat\\" + String(nombre) + u".cat", u"ESP");
    for (const auto& r : reglas) cat.tables[2].add({r.code, u"", {{2, r.text}}, u""});
    for (const auto& m : modelos)
        cat.tables[8].add({m.code, u"", {{1, m.code}, {3, m.name}, {4, m.script}}, u""});
}

// a: three valid models, width allowed by a list, height for all, an exception list for width.
// b: two models, one without script; no width exceptions (the earlier list stays).
// c: no valid door model at all. A file "zz" is nowhere, so its load fails and the host keeps
// the catalogue it holds. One cabinet per step, of that step's catalogue file.
sim::World mundo(const std::vector<String>& ficheros) {
    sim::World world;
    catalogo(world, u"a",
             {{u"MO_EA", u"MO: M02 M03"},
              {u"MO_EAl", u"MO: ALL"},
              {u"EX_EA", u"EX: R1 R2"},
              {u"EX_EAF", u"EX: R5"}},
             {{u"M01", u"TIBER", u"s"},
              {u"M02", u"MONZA", u"s"},
              {u"M09", u"@OCULTO", u"s"},
              {u"M03", u"URAL", u"s"}});
    catalogo(world, u"b", {{u"MO_EF", u"MO:  M01 X"}, {u"EX_EAAF", u"EX: R7"}},
             {{u"M01", u"LAZIO", u"s"}, {u"M02", u"SIN", u""}});
    catalogo(world, u"c", {{u"EX_EA", u"EX:"}}, {{u"M01", u"@X", u"s"}});
    world.scene.add(100);
    for (size_t i = 0; i < ficheros.size(); ++i)
        world.scene.add(static_cast<int32_t>(110 + 10 * i)).info[0] = ficheros[i];
    return world;
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
    sim::Json preguntas;  // host calls by member
};

// One call that loads and prepares `ficheros` in turn; the rule tables after each step. In the
// steps of `fallan` the host lacks TableGetLineRankFromCode, so the preparation stops halfway.
Juego juega(ReadMode mode, const std::vector<String>& ficheros, const std::set<size_t>& fallan) {
    tests::OpenCall call(mundo(ficheros), u"", mode);
    auto& mv = common::modVariables();
    mv.modelos = {u"V1", u"V2", u"V3", u"V4", u"V5", u"V6"};  // an earlier catalogue's
    mv.excepciones[2] = std::vector<String>{u"", u"VIEJA"};
    mv.dirCatalogos = u"C:\\Cat\\";
    auto& faltan = call.simulation.state().faults.missingMembers;
    Juego juego;
    for (size_t i = 0; i < ficheros.size(); ++i) {
        const int32_t id = static_cast<int32_t>(110 + 10 * i);
        bool error = false;
        if (fallan.count(i)) faltan = {"TableGetLineRankFromCode"};
        try {
            common::cargaCatalogoObjeto(call.env, id);
            handlers::preparaReglasDe(id, true);
        } catch (const vb::RuntimeError&) {
            error = true;
        }
        faltan.clear();
        juego.pasos.push_back(
            {mv.modelos, mv.numModelos, mv.excepciones, mv.permisosModelo, error});
    }
    juego.preguntas = call.look()["hostCalls"];
    return juego;
}

TEST(PreparacionModos, KeptPreparationsHaveTheLiteralEffect) {
    const struct {
        const char* nombre;
        std::vector<String> ficheros;
        std::set<size_t> fallan;
    } casos[] = {
        {"alternating catalogues", {u"a", u"b", u"a", u"b", u"a"}, {}},
        {"a failed load prepares what the host still holds", {u"a", u"zz", u"b", u"zz", u"a"}, {}},
        {"no door model between two", {u"b", u"c", u"b", u"c", u"a", u"c"}, {}},
        {"an error leaves nothing kept", {u"a", u"a", u"b", u"a"}, {0}},
        {"errors on two preparations", {u"a", u"b", u"a", u"b"}, {0, 1}},
    };
    for (const auto& caso : casos) {
        const Juego guardado = juega(ReadMode::Cached, caso.ficheros, caso.fallan);
        const Juego literal = juega(ReadMode::Literal, caso.ficheros, caso.fallan);
        ASSERT_EQ(guardado.pasos.size(), literal.pasos.size());
        for (size_t i = 0; i < literal.pasos.size(); ++i) {
            EXPECT_TRUE(guardado.pasos[i] == literal.pasos[i]) << caso.nombre << ", step " << i;
            EXPECT_EQ(literal.pasos[i].error, caso.fallan.count(i) > 0) << caso.nombre;
        }
        for (const auto& [member, n] : guardado.preguntas.items())
            EXPECT_LE(n, literal.preguntas.value(member, 0)) << caso.nombre << ": " << member;
        EXPECT_EQ(guardado.preguntas["FileLoad"], literal.preguntas["FileLoad"]);
    }
}

TEST(PreparacionModos, APreparedCatalogueIsNotReadAgain) {
    const auto lecturas = [](const std::vector<String>& ficheros) {
        return juega(ReadMode::Cached, ficheros, {}).preguntas["TableGetLineInfo"].get<int>();
    };
    const int dos = lecturas({u"a", u"b"});
    EXPECT_EQ(lecturas({u"a", u"b", u"a", u"b", u"a"}), dos);
    EXPECT_GT(dos, lecturas({u"a"}));
}

}  // namespace
